#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fcntl.h>

#include "formats/reg_text.h"
#include "linux/registry_file.h"
#include "support/registry_contract.h"
#include "support/temporary_folder.h"
#include "text/utf8.h"

namespace morpho::test {
namespace {

class FileHost {
  public:
    Registry& Subject() { return registry_; }

  private:
    TemporaryFolder folder_;
    RegistryFile registry_{folder_ / "new/registry.reg", {}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(File, RegistryContract, FileHost);

constexpr std::string_view kKey = "Software\\Test";
constexpr std::string_view kFullKey = "HKEY_CURRENT_USER\\Software\\Test";
const std::string kHead =
    "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\Test]\r\n";

std::int32_t Set(Registry& registry, RegHandle root, std::string_view path, std::string_view name,
                 std::string_view value) {
    RegHandle key = 0;
    if (const std::int32_t code = registry.CreateKey(root, path, key)) return code;
    return registry.SetValue(key, name, RegType::kString, std::as_bytes(std::span(value)));
}

std::string Get(Registry& registry, std::string_view name, RegHandle root = kCurrentUser,
                std::string_view path = kKey) {
    RegHandle key = 0;
    RegType type{};
    std::vector<std::byte> data;
    if (registry.OpenKey(root, path, key) || registry.QueryValue(key, name, type, data))
        return "(none)";
    return {reinterpret_cast<const char*>(data.data()), data.size()};
}

RegistryData Read(const std::string& text) {
    RegistryData read;
    ReadRegText(text, read);
    return read;
}

void ExpectRead(const std::string& line, const std::string& name, const std::string& data,
                RegType type = RegType::kString) {
    const RegistryData read = Read(kHead + line + "\r\n");
    const RegistryValue* value = read.FindValue(kFullKey, name);
    ASSERT_TRUE(value) << line;
    EXPECT_EQ(value->data, data) << line;
    EXPECT_EQ(value->type, type) << line;
}

// Written so, and read back as it was.
void ExpectWritten(RegType type, const std::string& data, const std::string& written) {
    RegistryData kept;
    kept.Set(kFullKey, {"n", type, data});
    EXPECT_TRUE(WriteRegText(kept).ends_with("\r\n\"n\"=" + written + "\r\n")) << written;
    ExpectRead("\"n\"=" + written, "n", data, type);
}

TEST(RegText, ReadsWhatRegeditExports) {
    ExpectRead("@=\"default\"", "", "default");
    ExpectRead("\"a\\\\b\"=\"c:\\\\\\\"d\\\"\"", "a\\b", "c:\\\"d\"");
    ExpectRead("\"n\"=dword:0000000A", "N", std::string("\x0a\0\0\0", 4), RegType::kDword);
    ExpectRead("\"n\"=hex(2):25,00,\\\r\n  61,00,00,00", "n", std::string("%a\0", 3),
               RegType::kExpandString);
    ExpectRead("; \"n\"=\"x\"\r\n\"n\" = \"y\"", "n", "y");
    ExpectRead("\"n\"=\"x\"\r\n\"N\"=\"y\"", "n", "y");
}

TEST(RegText, PassesOverWhatItDoesNotUnderstand) {
    for (const std::string broken :
         {"\"n=x", "n=\"x\"", "\"n\"=\"x", "\"n\"=\"x\"y", "\"n\"=dword:xyz", "\"n\"=hex:1g",
          "\"n\"=hex(:00", "\"n\"", "\"n\"=", "=", "\"n\"=\"x\"\r\n\"n\"=-",
          "[HKEY_CURRENT_USER\\Other]\r\n\"n\"=\"x\"", "[unclosed\r\n\"n\"=\"x\""}) {
        const RegistryData read =
            Read(kHead + broken + "\r\n[HKEY_CURRENT_USER\\Software\\Test]\r\n\"last\"=\"1\"");
        EXPECT_FALSE(read.FindValue(kFullKey, "n")) << broken;
        EXPECT_TRUE(read.FindValue(kFullKey, "last")) << broken;
    }
}

TEST(RegText, WritesWhatRegeditImports) {
    ExpectWritten(RegType::kString, "C:\\\"x\"", "\"C:\\\\\\\"x\\\"\"");
    ExpectWritten(RegType::kString, "a\r\né", "hex(1):61,00,0d,00,0a,00,e9,00");
    ExpectWritten(RegType::kExpandString, "%a", "hex(2):25,00,61,00");
    ExpectWritten(RegType::kDword, std::string("\x0a\0\0\1", 4), "dword:0100000a");
    ExpectWritten(RegType::kDword, "ab", "hex(4):61,62");
    ExpectWritten(RegType{0x12}, "ab", "hex(00000012):61,62");
    ExpectWritten(RegType::kBinary, "\xff", "hex:ff");
    ExpectWritten(RegType::kMultiString, std::string("a\0", 2), "hex(7):61,00,00,00");
}

TEST(RegText, ReadsUtf16AndRemovedKeys) {
    const RegistryData read =
        Read("\xFF\xFE" + Utf16FromUtf8("[HKEY_CURRENT_USER\\Software\\Old\\Below]\r\n" + kHead +
                                        "\"é\"=\"ü\"\r\n[-HKEY_CURRENT_USER\\software\\old]\r\n"));
    EXPECT_EQ(read.FindValue(kFullKey, "É")->data, "ü");
    EXPECT_FALSE(read.Find("HKEY_CURRENT_USER\\Software\\Old\\Below"));
}

class RegistryFileTest : public testing::Test {
  protected:
    const TemporaryFolder folder_;
    const std::string path_ = folder_ / "registry.reg";
    RegistryFile registry_{path_, {}};
};

TEST_F(RegistryFileTest, SeveralProgramsLoseNoneOfEachOthersValues) {
    constexpr int kPrograms = 4;
    constexpr int kValues = 20;
    for (int program = 0; program < kPrograms; ++program) {
        if (::fork() != 0) continue;
        for (int i = 0; i < kValues; ++i)
            Set(registry_, kCurrentUser, kKey, std::to_string(program * kValues + i), "x");
        ::_exit(0);
    }
    for (int program = 0; program < kPrograms; ++program)
        ::wait(nullptr);
    RegistryFile next(path_, {});
    for (int i = 0; i < kPrograms * kValues; ++i)
        EXPECT_EQ(Get(next, std::to_string(i)), "x") << i;
}

TEST_F(RegistryFileTest, WhatDescribesTheMachineAnswersButIsNeverWritten) {
    folder_.Write("registry.reg",
                  kHead + "\"Cache\"=\"elsewhere\"\r\n[HKEY_LOCAL_MACHINE\\x]\r\n\"y\"=\"z\"");
    RegistryData machine;
    machine.Set(kFullKey, {"Cache", RegType::kString, "Z:\\cache"});
    machine.Set("HKEY_CLASSES_ROOT\\FrontPage", {"", RegType::kString, "class"});
    RegistryFile registry(path_, machine);

    EXPECT_EQ(Get(registry, "Cache"), "Z:\\cache");
    EXPECT_EQ(Get(registry, "", kClassesRoot, "frontpage"), "class");
    EXPECT_EQ(Get(registry, "y", kLocalMachine, "x"), "(none)");
    EXPECT_EQ(Set(registry, kCurrentUser, kKey, "Cache", "x"), kRegAccessDenied);
    EXPECT_EQ(Set(registry, kLocalMachine, "Software", "a", "b"), kRegAccessDenied);
    EXPECT_EQ(Set(registry, kCurrentUser, "Software\\Mine", "a", "b"), kRegSuccess);
    EXPECT_EQ(folder_.Read("registry.reg").find("Z:"), std::string::npos);
    EXPECT_EQ(folder_.Read("registry.reg").find("LOCAL_MACHINE"), std::string::npos);
}

TEST_F(RegistryFileTest, AFileThatCannotBeWrittenIsAnErrorCode) {
    folder_.Write("file", "x");
    RegistryFile below(folder_ / "file/registry.reg", {});
    EXPECT_NE(Set(below, kCurrentUser, kKey, "a", "b"), kRegSuccess);
    EXPECT_EQ(Get(below, "a"), "(none)");

    const int lock = ::open((path_ + ".lock").c_str(), O_RDWR | O_CREAT, 0600);
    ::flock(lock, LOCK_EX);
    EXPECT_EQ(Set(registry_, kCurrentUser, kKey, "a", "b"), kRegWriteFault);
    ::close(lock);
    EXPECT_EQ(Set(registry_, kCurrentUser, kKey, "a", "b"), kRegSuccess);
    EXPECT_EQ(Set(registry_, kCurrentUser, kKey, "line\nbreak", "b"), kRegInvalidParameter);
}

}  // namespace
}  // namespace morpho::test
