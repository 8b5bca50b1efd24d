#include "formats/reg_text.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "text/ignoring_case.h"
#include "text/trim.h"
#include "text/utf8.h"

namespace morpho {

namespace {

constexpr std::string_view kHeader = "Windows Registry Editor Version 5.00";
constexpr std::string_view kBlanks = " \t\r";

std::string TextOf(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE")) return Utf8FromUtf16(bytes.substr(2));
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    return std::string(bytes);
}

bool IsStringType(RegType type) {
    return type == RegType::kString || type == RegType::kExpandString || type == RegType::kLink ||
           type == RegType::kMultiString;
}

std::optional<unsigned> TakeHex(std::string_view& text) {
    unsigned number = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number, 16);
    if (error != std::errc()) return {};
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

bool TakeStart(std::string_view& text, std::string_view start) {
    if (!StartsWithIgnoringAsciiCase(text, start)) return false;
    text.remove_prefix(start.size());
    return true;
}

// A text in quotes, in which "\" stands before "\" and before a quote.
std::optional<std::string> TakeQuoted(std::string_view& text) {
    if (!TakeStart(text, "\"")) return {};
    std::string content;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            text.remove_prefix(i + 1);
            return content;
        }
        if (text[i] == '\\' && i + 1 < text.size()) ++i;
        content += text[i];
    }
    return {};
}

// "12,ab,..." to the end of the text.
std::optional<std::string> BytesFromHex(std::string_view text) {
    std::string bytes;
    for (text = Trim(text, kBlanks); !text.empty(); text = Trim(text, kBlanks)) {
        const auto byte = TakeHex(text);
        if (!byte || *byte > 0xFF) return {};
        bytes += static_cast<char>(*byte);
        text = Trim(text, kBlanks);
        if (!text.empty() && !TakeStart(text, ",")) return {};
    }
    return bytes;
}

// What stands behind the "=": sets the type and data; false when it is not understood.
bool ReadData(std::string_view text, RegistryValue& value) {
    if (text.starts_with('"')) {
        const auto content = TakeQuoted(text);
        if (!content || !text.empty()) return false;
        value.type = RegType::kString;
        value.data = *content;
        return true;
    }
    if (TakeStart(text, "dword:")) {
        const auto number = TakeHex(text);
        if (!number || !text.empty()) return false;
        value.type = RegType::kDword;
        for (int shift = 0; shift < 32; shift += 8)
            value.data += static_cast<char>(*number >> shift & 0xFFU);
        return true;
    }
    if (!TakeStart(text, "hex")) return false;
    value.type = RegType::kBinary;
    if (TakeStart(text, "(")) {
        const auto type = TakeHex(text);
        if (!type || !TakeStart(text, ")")) return false;
        value.type = static_cast<RegType>(*type);
    }
    if (!TakeStart(text, ":")) return false;
    const auto bytes = BytesFromHex(text);
    if (!bytes) return false;
    value.data = IsStringType(value.type) ? Utf8FromUtf16(*bytes) : *bytes;
    return true;
}

// Windows allows 512 levels and no total. Each key brings those above it, so that few bytes of text
// could ask for much memory; what FrontPage and the editors keep has fewer than 10 levels.
constexpr std::size_t kMaxKeyPath = 1024;  // bytes
constexpr std::ptrdiff_t kMaxKeyLevels = 64;

// Whether this may be the path of a key: within the limits, and no name empty.
bool IsKeyPath(std::string_view path) {
    return !path.empty() && path.size() <= kMaxKeyPath &&
           std::count(path.begin(), path.end(), '\\') < kMaxKeyLevels && !path.starts_with('\\') &&
           !path.ends_with('\\') && path.find("\\\\") == path.npos;
}

class RegTextReader {
  public:
    RegTextReader(std::string_view text, RegistryData& data) : text_(text), data_(data) {}

    void Read() {
        while (!text_.empty()) {
            const std::string line = NextLine();
            if (line.starts_with('[')) {
                ReadKey(line);
            } else if (!key_.empty()) {
                ReadValue(line);
            }
        }
    }

  private:
    std::string_view NextPhysicalLine() {
        const std::size_t end = std::min(text_.find('\n'), text_.size());
        const std::string_view line = Trim(text_.substr(0, end), kBlanks);
        text_.remove_prefix(std::min(end + 1, text_.size()));
        return line;
    }

    // Bytes may go on over several lines, each but the last with a "\" at its end.
    std::string NextLine() {
        std::string line(NextPhysicalLine());
        const bool inBytes = line.find("=hex") != line.npos;
        while (inBytes && line.ends_with('\\') && !text_.empty()) {
            line.pop_back();
            line += NextPhysicalLine();
        }
        return line;
    }

    // "[path]", or "[-path]", which removes the key.
    void ReadKey(std::string_view line) {
        key_.clear();
        if (!line.ends_with(']')) return;
        line = line.substr(1, line.size() - 2);
        if (TakeStart(line, "-")) return data_.RemoveKey(line);
        if (!IsKeyPath(line)) return;
        key_ = line;
        data_.Add(key_);
    }

    // "name"=data, or @=data for the default value; "name"=- removes it.
    void ReadValue(std::string_view line) {
        RegistryValue value;
        if (!TakeStart(line, "@")) {
            const auto name = TakeQuoted(line);
            if (!name) return;
            value.name = *name;
        }
        line = Trim(line, kBlanks);
        if (!TakeStart(line, "=")) return;
        line = Trim(line, kBlanks);
        if (line == "-") {
            data_.RemoveValue(key_, value.name);
        } else if (ReadData(line, value)) {
            data_.Set(key_, std::move(value));
        }
    }

    std::string_view text_;
    RegistryData& data_;
    std::string key_;
};

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '\\' || c == '"') quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

std::string Hex(unsigned number, int digits) {
    std::string text;
    for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4)
        text += "0123456789abcdef"[number >> shift & 0xFU];
    return text;
}

std::string HexBytes(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes)
        text += (text.empty() ? "" : ",") + Hex(static_cast<unsigned char>(byte), 2);
    return text;
}

std::string DataText(const RegistryValue& value) {
    const auto isPlain = [](char c) { return c >= ' ' && c <= '~'; };
    const bool plain = std::all_of(value.data.begin(), value.data.end(), isPlain);
    if (value.type == RegType::kString && plain) return Quoted(value.data);
    if (value.type == RegType::kDword && value.data.size() == 4) {
        std::string mostSignificantFirst(value.data.rbegin(), value.data.rend());
        std::string text = HexBytes(mostSignificantFirst);
        std::erase(text, ',');
        return "dword:" + text;
    }
    if (value.type == RegType::kBinary) return "hex:" + HexBytes(value.data);
    const auto number = static_cast<unsigned>(value.type);
    const std::string bytes = IsStringType(value.type) ? Utf16FromUtf8(value.data) : value.data;
    return "hex(" + Hex(number, number > 0xF ? 8 : 1) + "):" + HexBytes(bytes);
}

}  // namespace

void ReadRegText(std::string_view bytes, RegistryData& data) {
    const std::string text = TextOf(bytes);
    RegTextReader(text, data).Read();
}

std::string WriteRegText(const RegistryData& data) {
    std::string text = std::string(kHeader) + "\r\n";
    for (const auto& [lowered, key] : data.Keys()) {
        text += "\r\n[" + key.path + "]\r\n";
        for (const auto& [loweredName, value] : key.values) {
            text += value.name.empty() ? "@" : Quoted(value.name);
            text += '=' + DataText(value) + "\r\n";
        }
    }
    return text;
}

}  // namespace morpho
