#pragma once

#include <gtest/gtest.h>

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
    std::string In(const std::string& name) { return host_.Folder() + "\\" + name; }

    std::vector<std::string> Names(const std::string& folder) {
        std::vector<std::string> names;
        for (const FileEntry& entry : files_.List(folder))
            names.push_back(entry.name);
        return names;
    }

    template <typename Operation>
    void ExpectError(ErrorNumber number, Operation operation) {
        try {
            operation();
            ADD_FAILURE() << "nothing was thrown, error " << static_cast<int>(number)
                          << " was expected";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(static_cast<int>(error.Number()), static_cast<int>(number)) << error.what();
            EXPECT_STRNE(error.what(), "");
        }
    }

    Host host_;
    FileSystem& files_ = host_.Subject();
};

TYPED_TEST_SUITE_P(FileSystemContract);

TYPED_TEST_P(FileSystemContract, FindsWhatIsThereWithoutRegardToLetterCase) {
    FileSystem& files = this->files_;
    files.CreateFolder(this->In("Blends"));
    files.WriteFile(this->In("Blends\\Graph1.css"), "12345");

    const auto file = files.Find(this->In("BLENDS\\graph1.CSS"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->name, "Graph1.css");
    EXPECT_EQ(file->size, 5U);
    EXPECT_FALSE(file->IsFolder());
    EXPECT_TRUE(files.Find(this->In("blends"))->IsFolder());
    EXPECT_TRUE(files.Find(this->In("blends\\")));
    EXPECT_TRUE(files.Find(this->In("blends\\\\graph1.css")));
    EXPECT_FALSE(files.Find(this->In("Blends\\graph2.css")));
    EXPECT_FALSE(files.Find(this->In("nowhere\\graph1.css")));
    EXPECT_EQ(files.ReadFile(this->In("blends\\GRAPH1.css")), "12345");
}

TYPED_TEST_P(FileSystemContract, ListsAFolderSortedByNameWithoutRegardToCase) {
    FileSystem& files = this->files_;
    files.CreateFolder(this->In("f"));
    EXPECT_TRUE(files.List(this->In("f")).empty());
    files.WriteFile(this->In("f\\b.gif"), "");
    files.WriteFile(this->In("f\\C.gif"), "x");
    files.CreateFolder(this->In("f\\A"));
    files.WriteFile(this->In("f\\A\\inner.gif"), "");

    EXPECT_EQ(this->Names(this->In("F")), (std::vector<std::string>{"A", "b.gif", "C.gif"}));
    EXPECT_TRUE(files.List(this->In("f"))[0].IsFolder());
    this->ExpectError(ErrorNumber::kPathNotFound, [&] { files.List(this->In("g")); });
}

TYPED_TEST_P(FileSystemContract, WritingReplacesTheWholeFileAndKeepsItsSpelling) {
    FileSystem& files = this->files_;
    const std::string bytes("\0\r\n\xff\x80 b", 7);
    files.WriteFile(this->In("Page.htm"), "something longer than that");
    files.WriteFile(this->In("PAGE.HTM"), bytes);

    EXPECT_EQ(files.ReadFile(this->In("page.htm")), bytes);
    EXPECT_EQ(this->Names(this->host_.Folder()), std::vector<std::string>{"Page.htm"});
    this->ExpectError(ErrorNumber::kPathNotFound, [&] { files.WriteFile(this->In("g\\a"), "x"); });
    this->ExpectError(ErrorNumber::kPathNotFound, [&] { files.ReadFile(this->In("g\\a")); });
    this->ExpectError(ErrorNumber::kFileNotFound, [&] { files.ReadFile(this->In("a")); });
}

TYPED_TEST_P(FileSystemContract, AppendingCreatesTheFileAndThenAddsToItsEnd) {
    FileSystem& files = this->files_;
    files.AppendFile(this->In("TM.log"), "one\r\n");
    files.AppendFile(this->In("tm.log"), "two\r\n");

    EXPECT_EQ(files.ReadFile(this->In("TM.log")), "one\r\ntwo\r\n");
    this->ExpectError(ErrorNumber::kPathNotFound, [&] { files.AppendFile(this->In("g\\a"), "x"); });
}

TYPED_TEST_P(FileSystemContract, CopiesAndMovesOverWhatIsThere) {
    FileSystem& files = this->files_;
    files.WriteFile(this->In("a"), "A");
    files.WriteFile(this->In("b"), "BBB");
    files.CreateFolder(this->In("sub"));

    files.CopyFile(this->In("a"), this->In("b"));
    EXPECT_EQ(files.ReadFile(this->In("a")) + files.ReadFile(this->In("b")), "AA");
    files.WriteFile(this->In("sub\\c"), "CCC");
    files.MoveFile(this->In("b"), this->In("sub\\c"));
    EXPECT_EQ(files.ReadFile(this->In("sub\\c")), "A");
    EXPECT_FALSE(files.Find(this->In("b")));
    files.MoveFile(this->In("a"), this->In("A"));
    EXPECT_EQ(files.Find(this->In("a"))->name, "A");  // a new spelling alone is a move, too

    this->ExpectError(ErrorNumber::kFileNotFound,
                      [&] { files.CopyFile(this->In("b"), this->In("d")); });
    this->ExpectError(ErrorNumber::kFileNotFound,
                      [&] { files.MoveFile(this->In("b"), this->In("d")); });
    this->ExpectError(ErrorNumber::kPathNotFound,
                      [&] { files.CopyFile(this->In("a"), this->In("g\\d")); });
    EXPECT_FALSE(files.Find(this->In("d")));
}

TYPED_TEST_P(FileSystemContract, DeletesFiles) {
    FileSystem& files = this->files_;
    files.WriteFile(this->In("A.gif"), "A");
    files.DeleteFile(this->In("a.GIF"));

    EXPECT_FALSE(files.Find(this->In("A.gif")));
    this->ExpectError(ErrorNumber::kFileNotFound, [&] { files.DeleteFile(this->In("A.gif")); });
}

TYPED_TEST_P(FileSystemContract, CreatesAFolderWhereNothingStands) {
    FileSystem& files = this->files_;
    files.CreateFolder(this->In("New Folder\\"));
    files.WriteFile(this->In("file"), "");

    EXPECT_EQ(files.Find(this->In("new folder"))->name, "New Folder");
    this->ExpectError(ErrorNumber::kFileExists,
                      [&] { files.CreateFolder(this->In("NEW FOLDER")); });
    this->ExpectError(ErrorNumber::kFileExists, [&] { files.CreateFolder(this->In("file")); });
    this->ExpectError(ErrorNumber::kPathNotFound, [&] { files.CreateFolder(this->In("g\\h")); });
}

TYPED_TEST_P(FileSystemContract, CopiesAFolderWithAllContentsIntoAnother) {
    FileSystem& files = this->files_;
    for (const char* folder : {"From", "From\\Deep", "From\\Empty"})
        files.CreateFolder(this->In(folder));
    files.WriteFile(this->In("From\\a.gif"), "new");
    files.WriteFile(this->In("From\\Deep\\b.gif"), "deep");

    files.CopyFolder(this->In("from"), this->In("To"));
    EXPECT_EQ(this->Names(this->In("To")), (std::vector<std::string>{"a.gif", "Deep", "Empty"}));
    EXPECT_EQ(files.ReadFile(this->In("to\\deep\\b.gif")), "deep");

    files.WriteFile(this->In("To\\a.gif"), "old");
    files.WriteFile(this->In("To\\kept.gif"), "kept");
    files.CopyFolder(this->In("From"), this->In("To"));
    EXPECT_EQ(files.ReadFile(this->In("To\\a.gif")), "new");
    EXPECT_EQ(files.ReadFile(this->In("To\\kept.gif")), "kept");
    EXPECT_EQ(this->Names(this->In("From")), (std::vector<std::string>{"a.gif", "Deep", "Empty"}));
    this->ExpectError(ErrorNumber::kPathNotFound,
                      [&] { files.CopyFolder(this->In("nowhere"), this->In("To")); });
}

TYPED_TEST_P(FileSystemContract, DeletesAFolderWithAllContentsAndNothingElse) {
    FileSystem& files = this->files_;
    for (const char* folder : {"Work", "Work\\Deep", "Work2"})
        files.CreateFolder(this->In(folder));
    files.WriteFile(this->In("Work\\Deep\\b.gif"), "deep");

    files.DeleteFolder(this->In("work"));
    EXPECT_EQ(this->Names(this->host_.Folder()), std::vector<std::string>{"Work2"});
    this->ExpectError(ErrorNumber::kPathNotFound, [&] { files.DeleteFolder(this->In("Work")); });
}

TYPED_TEST_P(FileSystemContract, TakesNamesBeyondAscii) {
    FileSystem& files = this->files_;
    files.WriteFile(this->In("caf\xC3\xA9 \xE2\x82\xAC.gif"), "x");

    EXPECT_TRUE(files.Find(this->In("CAF\xC3\x89 \xE2\x82\xAC.GIF")));
    EXPECT_EQ(this->Names(this->host_.Folder()),
              std::vector<std::string>{"caf\xC3\xA9 \xE2\x82\xAC.gif"});
}

REGISTER_TYPED_TEST_SUITE_P(FileSystemContract, FindsWhatIsThereWithoutRegardToLetterCase,
                            ListsAFolderSortedByNameWithoutRegardToCase,
                            WritingReplacesTheWholeFileAndKeepsItsSpelling,
                            AppendingCreatesTheFileAndThenAddsToItsEnd,
                            CopiesAndMovesOverWhatIsThere, DeletesFiles,
                            CreatesAFolderWhereNothingStands,
                            CopiesAFolderWithAllContentsIntoAnother,
                            DeletesAFolderWithAllContentsAndNothingElse, TakesNamesBeyondAscii);

}  // namespace morpho::test
