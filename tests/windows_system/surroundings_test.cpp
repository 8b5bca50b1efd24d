#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "platform/run_time_error.h"
#include "support/temporary_folder.h"
#include "windows_system/file_handle.h"
#include "windows_system/full_path.h"
#include "windows_system/wide.h"
#include "windows_system/windows_code_page.h"
#include "windows_system/windows_disk.h"
#include "windows_system/windows_environment.h"
#include "windows_system/windows_file_system.h"

namespace morpho {
namespace {

TEST(FullPath, IsAbsoluteAndClean) {
    const struct {
        const char* path;
        const wchar_t* full;
    } rows[] = {
        {"C:\\a\\\\b\\", L"\\\\?\\C:\\a\\b"},
        {"c:/a/./b/../c", L"\\\\?\\c:\\a\\c"},
        {"C:", L"\\\\?\\C:\\"},
        {"C:\\..\\..\\a", L"\\\\?\\C:\\a"},
        {"\\\\server\\share", L"\\\\?\\UNC\\server\\share"},
        {"\\\\server\\share\\..\\a\\", L"\\\\?\\UNC\\server\\share\\a"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(FullPath(row.path), row.full) << row.path;
    for (const char* path :
         {"", "a\\b", "\\a", "C:a", "1:\\a", "\\\\.\\C:\\a", "\\\\?\\C:\\a", "\\\\server"})
        EXPECT_THROW(FullPath(path), RunTimeError) << path;
    EXPECT_EQ(ShownPath(FullPath("\\\\server\\share\\a")), "\\\\server\\share\\a");
}

TEST(WindowsCodePage, KeepsEveryByteAndTellsWhatItLacks) {
    if (::GetACP() != 1252) GTEST_SKIP() << "This computer has another code page.";
    const WindowsCodePage codePage;
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(codePage.ToBytes(codePage.ToText(bytes)), bytes);
    EXPECT_EQ(codePage.ToText("caf\xE9 \x80"), "caf\u00e9 \u20ac");
    EXPECT_EQ(codePage.ToBytes("\u0161\u03c0\u221e", [](char32_t) { return "(pi)"; }),
              "\x9A(pi)(pi)");
}

TEST(WindowsEnvironment, AnswersFromTheProcess) {
    ::SetEnvironmentVariableW(L"MORPHO_TEST", L"caf\u00e9");
    const WindowsEnvironment environment({}, "C:\\own");
    EXPECT_EQ(environment.Variable("morpho_test") + environment.Variable("none"), "caf\u00e9");
    EXPECT_EQ(environment.Variable("Tmp"), "C:\\own");
    EXPECT_NE(WindowsEnvironment({}).Variable("TMP"), "");
    EXPECT_GE(environment.Os().major, 5U);
    EXPECT_NE(environment.SystemMessage(2), "");
    EXPECT_TRUE(environment.ModuleFolder().ends_with("\\bin")) << environment.ModuleFolder();
}

class OpenElsewhereTest : public testing::Test {
  protected:
    // Opens the file as a browser does that lets nobody replace it.
    FileHandle Open() {
        return FileHandle(::CreateFileW(Wide(path_).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr));
    }

    TemporaryFolder folder_;
    std::string path_ = folder_.Write("a.gif", "old");
    WindowsFileSystem files_;
};

TEST_F(OpenElsewhereTest, AFileThatIsClosedInAMomentIsReplaced) {
    FileHandle browser = Open();
    std::jthread closing([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        browser.Close();
    });
    files_.WriteFile(path_, "new");
    EXPECT_EQ(files_.ReadFile(path_), "new");
}

TEST_F(OpenElsewhereTest, AFileThatStaysOpenStaysAsItWas) {
    const FileHandle browser = Open();
    EXPECT_THROW(files_.WriteFile(path_, "new"), RunTimeError);
    EXPECT_THROW(files_.Delete(path_), RunTimeError);
    EXPECT_EQ(files_.List(folder_.Path().string()).size(), 1U);
    EXPECT_EQ(files_.ReadFile(path_), "old");
}

TEST(WindowsDisk, NoOtherProgramMovesAFolderThatIsOpen) {
    const TemporaryFolder folder;
    folder.Write("web/inner/a", "x");
    const auto web = WindowsDisk().Open(folder / "web");
    const auto inner = web->Open("inner");
    for (const char* path : {"web", "web\\inner"})
        EXPECT_FALSE(::MoveFileW(folder.At(path).c_str(), folder.At("elsewhere").c_str())) << path;
    web->Rename("inner", "moved");
    EXPECT_FALSE(::MoveFileW(folder.At("web\\moved").c_str(), folder.At("x").c_str()));
    web->RemoveFolder("moved");
    EXPECT_THROW(inner->Entries(), RunTimeError);
}

}  // namespace
}  // namespace morpho
