// What is read from a profile file is written again byte for byte, but for the line that is set.

#include "formats/profile_text.h"
#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view before = Text(data, size);
    morpho::ProfileText text(before);
    Require(text.Bytes() == before, "A profile that was only read has changed.");
    text.SetValue("info", "title", "A title");
    Require(text.Value("INFO", "Title") == "A title", "A value that was set is not there.");
    const std::string after = text.Bytes();
    std::size_t head = 0, tail = 0;
    while (head < before.size() && head < after.size() && before[head] == after[head])
        ++head;
    while (tail < before.size() - head && tail < after.size() - head &&
           before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    // Between what is the same lies one old line at most.
    const std::string_view old = before.substr(head, before.size() - head - tail);
    Require(old.find('\n') == old.npos || old.find('\n') + 1 == old.size(),
            "More than one line of a profile has changed.");
    morpho::ProfileText again(after);
    again.SetValue("info", "title", "A title");
    Require(again.Bytes() == after, "Setting a value again has changed the profile.");
    return 0;
}
