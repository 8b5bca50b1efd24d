#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/run_time_error.h"

namespace morpho::test {

// What every FileSystem promises. `Host` has FileSystem& Subject() and std::string Folder(): the
// Windows path of an existing, empty folder.
template <typename Host>
class FileSystemContract : public ::testing::Test {
  protected:
    using Names = std::vector<std::string>;

    std::string In(const std::string& name) { return host_.Folder() + "\\" + name; }
    void Write(const std::string& name, const std::string& bytes) {
        files_.WriteFile(In(name), bytes);
    }
    void Create(const std::string& folder) { files_.CreateFolder(In(folder)); }
    std::string Read(const std::string& name) { return files_.ReadFile(In(name)); }
    // The name that the disk has for the entry; empty when there is none.
    std::string Found(const std::string& name) {
        const auto entry = files_.Find(In(name));
        return entry ? entry->name : std::string();
    }
    Names List(const std::string& folder) {
        Names names;
        for (const FileEntry& entry : files_.List(In(folder)))
            names.push_back(entry.name);
        return names;
    }
    void ExpectError(ErrorNumber number, const std::function<void()>& operation) {
        try {
            operation();
            ADD_FAILURE() << "nothing was thrown";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(static_cast<int>(error.Number()), static_cast<int>(number)) << error.what();
            EXPECT_STRNE(error.what(), "");
        }
    }
    void ExpectPathNotFound(const std::function<void()>& operation) {
        ExpectError(ErrorNumber::kPathNotFound, operation);
    }
    void ExpectFileNotFound(const std::function<void()>& operation) {
        ExpectError(ErrorNumber::kFileNotFound, operation);
    }

    Host host_;
    FileSystem& files_ = host_.Subject();
};

TYPED_TEST_SUITE_P(FileSystemContract);

TYPED_TEST_P(FileSystemContract, FindsAndListsWhatIsThereWithoutRegardToLetterCase) {
    this->Create("F");
    EXPECT_TRUE(this->List("f").empty());
    this->Create("F\\A");
    for (const char* file : {"F\\b.gif", "F\\C.css", "F\\A\\inner.gif"})
        this->Write(file, "12345");
    EXPECT_EQ(this->List("f"), (std::vector<std::string>{"A", "b.gif", "C.css"}));
    EXPECT_TRUE(this->files_.List(this->In("f"))[0].IsFolder());
    this->ExpectPathNotFound([&] { this->List("g"); });

    for (const char* name : {"f\\c.CSS", "f\\\\c.css"})
        EXPECT_EQ(this->Found(name), "C.css");
    EXPECT_EQ(this->files_.Find(this->In("f\\c.css"))->size, 5U);
    EXPECT_FALSE(this->files_.Find(this->In("f\\c.css"))->IsFolder());
    EXPECT_TRUE(this->files_.Find(this->In("f\\"))->IsFolder());
    for (const char* name : {"F\\d.css", "nowhere\\C.css"})
        EXPECT_EQ(this->Found(name), "");
    this->Write("caf\xC3\xA9 \xE2\x82\xAC.gif", "x");
    EXPECT_EQ(this->Found("CAF\xC3\x89 \xE2\x82\xAC.GIF"), "caf\xC3\xA9 \xE2\x82\xAC.gif");
}

TYPED_TEST_P(FileSystemContract, WritingReplacesTheWholeFileAndAppendingAddsToItsEnd) {
    const std::string bytes("\0\r\n\xff\x80 b", 7);
    this->Write("Page.htm", "something longer than that");
    this->Write("PAGE.HTM", bytes);
    EXPECT_EQ(this->Read("page.htm"), bytes);
    EXPECT_EQ(this->List(""), std::vector<std::string>{"Page.htm"});
    for (const char* line : {"one\r\n", "two\r\n"})
        this->files_.AppendFile(this->In("TM.log"), line);
    EXPECT_EQ(this->Read("tm.log"), "one\r\ntwo\r\n");

    this->ExpectPathNotFound([&] { this->Write("g\\a", "x"); });
    this->ExpectPathNotFound([&] { this->files_.AppendFile(this->In("g\\a"), "x"); });
    this->ExpectPathNotFound([&] { this->Read("g\\a"); });
    this->ExpectFileNotFound([&] { this->Read("a"); });
}

TYPED_TEST_P(FileSystemContract, CopiesMovesAndDeletesFiles) {
    FileSystem& files = this->files_;
    this->Write("a", "A");
    this->Write("b", "BBB");
    this->Create("sub");
    files.Copy(this->In("a"), this->In("b"));
    EXPECT_EQ(this->Read("a") + this->Read("b"), "AA");
    this->Write("sub\\c", "CCC");
    files.Move(this->In("b"), this->In("sub\\c"));
    EXPECT_EQ(this->Read("sub\\c") + this->Found("b"), "A");
    files.Move(this->In("a"), this->In("A"));
    EXPECT_EQ(this->Found("a"), "A");  // a new spelling alone is a move, too

    this->ExpectFileNotFound([&] { files.Copy(this->In("b"), this->In("d")); });
    this->ExpectFileNotFound([&] { files.Move(this->In("b"), this->In("d")); });
    this->ExpectPathNotFound([&] { files.Copy(this->In("a"), this->In("g\\d")); });
    EXPECT_EQ(this->Found("d"), "");
    files.Delete(this->In("a"));
    EXPECT_EQ(this->Found("a"), "");
    this->ExpectFileNotFound([&] { files.Delete(this->In("a")); });
}

TYPED_TEST_P(FileSystemContract, CreatesAFolderWhereNothingStands) {
    this->Create("New Folder\\");
    this->Write("file", "");
    EXPECT_EQ(this->Found("new folder"), "New Folder");
    for (const char* name : {"NEW FOLDER", "file"})
        this->ExpectError(ErrorNumber::kFileExists, [&] { this->Create(name); });
    this->ExpectPathNotFound([&] { this->Create("g\\h"); });
}

TYPED_TEST_P(FileSystemContract, CopiesAndDeletesAFolderWithAllContents) {
    FileSystem& files = this->files_;
    for (const char* folder : {"From", "From\\Deep", "From\\Empty", "From2"})
        this->Create(folder);
    this->Write("From\\a.gif", "new");
    this->Write("From\\Deep\\b.gif", "deep");
    files.CopyFolder(this->In("from"), this->In("To"));
    EXPECT_EQ(this->List("To"), (std::vector<std::string>{"a.gif", "Deep", "Empty"}));
    EXPECT_EQ(this->Read("to\\deep\\b.gif"), "deep");

    this->Write("To\\a.gif", "old");
    this->Write("To\\kept.gif", "kept");
    files.CopyFolder(this->In("From"), this->In("To"));
    EXPECT_EQ(this->Read("To\\a.gif") + this->Read("To\\kept.gif"), "newkept");
    files.DeleteFolder(this->In("from"));
    EXPECT_EQ(this->List(""), (std::vector<std::string>{"From2", "To"}));
    this->ExpectPathNotFound([&] { files.CopyFolder(this->In("From"), this->In("To")); });
    this->ExpectPathNotFound([&] { files.DeleteFolder(this->In("From")); });
}

REGISTER_TYPED_TEST_SUITE_P(FileSystemContract, FindsAndListsWhatIsThereWithoutRegardToLetterCase,
                            WritingReplacesTheWholeFileAndAppendingAddsToItsEnd,
                            CopiesMovesAndDeletesFiles, CreatesAFolderWhereNothingStands,
                            CopiesAndDeletesAFolderWithAllContents);

}  // namespace morpho::test
