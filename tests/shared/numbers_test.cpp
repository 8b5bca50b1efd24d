#include "shared/numbers.h"

#include <gtest/gtest.h>

#include "platform/run_time_error.h"

namespace morpho::test {
namespace {

TEST(Numbers, ConvertOneWholeTextOrSayWhyNot) {
    for (const auto& [text, number] : {std::pair{" 7 ", 7},
                                       {"+2.5", 2},
                                       {"-3.5", -4},
                                       {"1.2E2", 120},
                                       {".5", 0},
                                       {"32767.4", 32767},
                                       {"1e-999", 0}})
        EXPECT_EQ(CInt(text), number) << text;
    EXPECT_EQ(CLng("-2147483648"), INT32_MIN);
    const auto expectError = [](auto convert, const char* text, ErrorNumber expected) {
        try {
            ADD_FAILURE() << text << " is " << convert(text);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), expected) << text;
        }
    };
    for (const char* text : {"", " ", "x", "1x", "1 2", "inf", "0x1", "--1", "+-1", "1e"})
        expectError(CInt, text, ErrorNumber::kTypeMismatch);
    for (const char* text : {"32767.5", "-32769", "1e999"})
        expectError(CInt, text, ErrorNumber::kOverflow);
    expectError(CLng, "2147483648", ErrorNumber::kOverflow);
}

}  // namespace
}  // namespace morpho::test
