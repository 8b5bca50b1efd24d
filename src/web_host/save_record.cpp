#include "web_host/save_record.h"

#include <map>

#include "formats/web_text.h"
#include "text/parsed_number.h"

namespace morpho {

namespace {

constexpr std::string_view kFirstLine = "Morpho save 1\n";
constexpr std::string_view kLastLine = "end\n";

// A line of words, with all escaped that would end a word or a line.
std::string Line(std::initializer_list<std::string_view> words) {
    std::string line;
    for (const std::string_view word : words)
        line += (line.empty() ? "" : " ") + EncodedPercents(word);
    return line + '\n';
}

std::vector<std::string> WordsOf(std::string_view line) {
    std::vector<std::string> words;
    for (;;) {
        const std::size_t end = line.find(' ');
        words.push_back(DecodedPercents(line.substr(0, end)));
        if (end == line.npos) return words;
        line.remove_prefix(end + 1);
    }
}

// Takes over the value of a line with one value.
bool ReadValue(const std::string& key, const std::string& value, SaveRecord& record) {
    const std::map<std::string_view, std::string*> texts = {
        {"machine", &record.machine},    {"webtheme", &record.webTheme},
        {"theme", &record.theme},        {"new", &record.newThemeFolder},
        {"apply", &record.appliedTheme}, {"ownpages", &record.pages.ownTheme}};
    const std::map<std::string_view, std::uint64_t*> numbers = {{"program", &record.program},
                                                                {"device", &record.webId.device},
                                                                {"folder", &record.webId.number}};
    const std::map<std::string_view, bool*> flags = {{"changesuser", &record.changesUserTheme},
                                                     {"userhad", &record.userHadTheme},
                                                     {"webpages", &record.pages.ofWeb},
                                                     {"committed", &record.isCommitted},
                                                     {"ended", &record.hasEnded}};
    if (const auto text = texts.find(key); text != texts.end()) {
        *text->second = value;
        return true;
    }
    if (const auto found = numbers.find(key); found != numbers.end()) {
        const auto number = ParsedNumber<std::uint64_t>(value);
        *found->second = number.value_or(0);
        return number.has_value();
    }
    const auto flag = flags.find(key);
    if (flag == flags.end() || (value != "yes" && value != "no")) return false;
    *flag->second = value == "yes";
    return true;
}

bool ReadLine(std::string_view line, SaveRecord& record) {
    const std::vector<std::string> words = WordsOf(line);
    if (words.size() == 2) return ReadValue(words[0], words[1], record);
    if (words.size() != 7 || words[0] != "file") return false;
    record.files.push_back({words[1], words[2], words[3], words[4], words[5], words[6]});
    return true;
}

std::string_view YesOrNo(bool flag) {
    return flag ? "yes" : "no";
}

}  // namespace

std::string FormatSaveRecord(const SaveRecord& record) {
    std::string text(kFirstLine);
    text += Line({"machine", record.machine});
    text += Line({"program", std::to_string(record.program)});
    text += Line({"device", std::to_string(record.webId.device)});
    text += Line({"folder", std::to_string(record.webId.number)});
    text += Line({"webtheme", record.webTheme});
    text += Line({"theme", record.theme});
    text += Line({"changesuser", YesOrNo(record.changesUserTheme)});
    text += Line({"userhad", YesOrNo(record.userHadTheme)});
    text += Line({"new", record.newThemeFolder});
    for (const SaveRecord::ThemeFile& file : record.files)
        text += Line({"file", file.theme, file.name, file.temporaryName, file.earlierName,
                      file.digestBefore, file.digestAfter});
    text += Line({"committed", YesOrNo(record.isCommitted)});
    text += Line({"apply", record.appliedTheme});
    text += Line({"webpages", YesOrNo(record.pages.ofWeb)});
    text += Line({"ownpages", record.pages.ownTheme});
    text += Line({"ended", YesOrNo(record.hasEnded)});
    return text.append(kLastLine);
}

std::optional<SaveRecord> ReadSaveRecord(std::string_view text) {
    if (!text.starts_with(kFirstLine) || !text.ends_with(kLastLine)) return {};
    text.remove_prefix(kFirstLine.size());
    text.remove_suffix(kLastLine.size());
    SaveRecord record;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        if (end == text.npos || !ReadLine(text.substr(0, end), record)) return {};
        text.remove_prefix(end + 1);
    }
    return record;
}

}  // namespace morpho
