#include "text/ignoring_case.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "text/utf8.h"

namespace morpho {

namespace {

// The characters first, first + step and so on to last. Adding `added` to one folds it.
struct FoldingRun {
    char32_t first;
    char32_t last;
    std::uint32_t step;
    std::int32_t added;
};

constexpr FoldingRun kFoldingRuns[] = {
#include "text/case_folding.inc"
};

char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

char32_t FoldedCharacter(char32_t character) {
    const auto run =
        std::lower_bound(std::begin(kFoldingRuns), std::end(kFoldingRuns), character,
                         [](const FoldingRun& r, char32_t wanted) { return r.last < wanted; });
    const bool isInRun = run != std::end(kFoldingRuns) && character >= run->first &&
                         (character - run->first) % run->step == 0;
    return isInRun ? character + static_cast<char32_t>(run->added) : character;
}

// Reads the character at `position`, moves behind it and returns it folded. A byte that is not
// UTF-8 becomes a number above all characters, so that it equals only the same byte.
char32_t NextFolded(std::string_view text, std::size_t& position) {
    constexpr char32_t kNoCharacter = 0x110000;
    const char byte = text[position];
    if (IsAscii(byte)) return ++position, static_cast<char32_t>(AsciiLower(byte));
    const auto character = NextCharacter(text, position);
    return character ? FoldedCharacter(*character)
                     : kNoCharacter + static_cast<unsigned char>(byte);
}

}  // namespace

std::string Folded(std::string_view name) {
    std::string folded;
    folded.reserve(name.size());
    for (std::size_t position = 0; position < name.size();) {
        const char byte = name[position];
        if (IsAscii(byte)) {
            folded += AsciiLower(byte);
            ++position;
        } else if (const auto character = NextCharacter(name, position)) {
            AppendCharacter(folded, FoldedCharacter(*character));
        } else {
            folded += byte;
        }
    }
    return folded;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    std::size_t inA = 0;
    std::size_t inB = 0;
    while (inA < a.size() && inB < b.size()) {
        if (NextFolded(a, inA) != NextFolded(b, inB)) return false;
    }
    return inA == a.size() && inB == b.size();
}

std::string AsciiLowered(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), AsciiLower);
    return lower;
}

bool EqualIgnoringAsciiCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return AsciiLower(x) == AsciiLower(y); });
}

bool StartsWithIgnoringAsciiCase(std::string_view text, std::string_view start) {
    return EqualIgnoringAsciiCase(text.substr(0, start.size()), start);
}

std::string ReplacedIgnoringAsciiCase(std::string_view text, std::string_view from,
                                      std::string_view to) {
    const std::string lowerText = AsciiLowered(text);
    const std::string lowerFrom = AsciiLowered(from);
    std::string result;
    std::size_t done = 0;
    if (!from.empty()) {
        for (auto hit = lowerText.find(lowerFrom); hit != std::string::npos;
             hit = lowerText.find(lowerFrom, done)) {
            result.append(text, done, hit - done).append(to);
            done = hit + from.size();
        }
    }
    return result.append(text.substr(done));
}

}  // namespace morpho
