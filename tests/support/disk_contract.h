#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "web_host/disk.h"

namespace morpho::test {

// What every Disk promises. `Host` has Disk& Subject() and std::string Path(): the Windows path of
// an existing, empty folder.
template <typename Host>
class DiskContract : public ::testing::Test {
  protected:
    void Write(const std::string& name, const std::string& bytes) {
        const auto file = folder_->Replace(name, Durability::kUnflushed);
        file->Write(bytes);
        file->Commit();
    }
    std::string Read(const Folder& folder, const std::string& name) {
        const auto file = folder.OpenFile(name);
        return file->Read(0, file->Size() + 1);
    }
    std::string Read(const std::string& name) { return Read(*folder_, name); }
    std::string Names() {
        std::string names;
        for (const FolderEntry& entry : folder_->Entries())
            names += (entry.kind == EntryKind::kFolder ? "[" + entry.name + "]" : entry.name) + " ";
        return names;
    }

    Host host_;
    Disk& disk_ = host_.Subject();
    std::unique_ptr<Folder> folder_ = disk_.Open(host_.Path());
};

TYPED_TEST_SUITE_P(DiskContract);

TYPED_TEST_P(DiskContract, FindsEntriesAndLeadsNowhereElse) {
    this->Write("Wave.gif", "wave");
    this->folder_->Create("Themes");
    EXPECT_EQ(this->Names(), "[Themes] Wave.gif ");
    EXPECT_EQ(this->folder_->Find("WAVE.gif")->name, "Wave.gif");
    EXPECT_EQ(this->folder_->Find("themes")->kind, EntryKind::kFolder);
    EXPECT_FALSE(this->folder_->Find("none"));
    for (const char* name : {"", ".", "..", "../x", "Themes/x"}) {
        EXPECT_THROW(this->folder_->Open(name), RunTimeError) << name;
        EXPECT_THROW(this->folder_->Replace(name, Durability::kUnflushed), RunTimeError) << name;
    }
    EXPECT_THROW(this->folder_->Open("Wave.gif"), RunTimeError);
    EXPECT_THROW(this->folder_->OpenFile("Themes"), RunTimeError);
    EXPECT_THROW(this->folder_->Create("Themes"), RunTimeError);
    EXPECT_THROW(this->disk_.Open(this->host_.Path() + "\\none"), RunTimeError);
    EXPECT_EQ(this->folder_->OpenFile("Wave.gif")->Read(2, 99), "ve");
}

TYPED_TEST_P(DiskContract, AFileIsReplacedByCommitOnly) {
    this->Write("a", "old");
    const auto before = this->folder_->OpenFile("a");
    auto file = this->folder_->Replace("a", Durability::kFlushed);
    file->Write("n");
    file->Write("ew");
    EXPECT_EQ(this->Read("a"), "old");
    file.reset();
    EXPECT_EQ(this->Names(), "a ");
    this->folder_->Link("a", *this->folder_, "copy");
    EXPECT_THROW(this->folder_->Link("a", *this->folder_, "copy"), RunTimeError);
    this->Write("a", "new");
    EXPECT_EQ(this->Read("a") + this->Read("copy") + before->Read(0, 9), "newoldold");
    const auto added = this->folder_->AddLike("b", "a");
    added->Write("like");
    added->Commit();
    this->folder_->Flush({"a", "b", "gone"});
    EXPECT_EQ(this->Read("b"), "like");
}

TYPED_TEST_P(DiskContract, RenamesOverFilesButOverNoFolder) {
    this->Write("a", "1");
    this->Write("b", "2");
    this->folder_->Rename("a", "b");
    EXPECT_EQ(this->Read("b"), "1");
    this->folder_->Create("new");
    this->folder_->Create("old");
    EXPECT_THROW(this->folder_->Rename("new", "old"), RunTimeError);
    EXPECT_THROW(this->folder_->Rename("b", "old"), RunTimeError);
    this->folder_->Rename("new", "fresh");
    this->folder_->Remove("b");
    EXPECT_THROW(this->folder_->Remove("b"), RunTimeError);
    EXPECT_EQ(this->Names(), "[fresh] [old] ");
}

TYPED_TEST_P(DiskContract, AnOpenFolderStaysTheSameWhateverItsNameBecomes) {
    const auto inner = this->folder_->Create("inner");
    const FolderId id = inner->Id();
    this->folder_->Rename("inner", "moved");
    const auto file = inner->Replace("a", Durability::kUnflushed);
    file->Write("here");
    file->Commit();
    const auto moved = this->folder_->Open("moved");
    EXPECT_EQ(this->Read(*moved, "a") + this->Read(*inner->OpenAgain(), "a"), "herehere");
    EXPECT_EQ(moved->Id(), id);
    EXPECT_FALSE(moved->Id() == this->folder_->Id());
    this->folder_->RemoveFolder("moved");
    EXPECT_EQ(this->Names(), "");
    this->disk_.OpenOrCreate(this->host_.Path() + "\\x\\y")->Create("z");
    EXPECT_TRUE(this->folder_->Open("x")->Open("y")->Find("z"));
}

TYPED_TEST_P(DiskContract, ALockExcludesOthersAndGoesWithItsFile) {
    std::string holder;
    auto lock = this->folder_->TryLock("lock", holder);
    ASSERT_TRUE(lock);
    EXPECT_FALSE(this->folder_->OpenAgain()->TryLock("lock", holder));
    EXPECT_NE(holder, "");
    lock.reset();
    EXPECT_EQ(this->Names(), "");
    EXPECT_TRUE(this->folder_->TryLock("lock", holder));
    this->folder_->Create("folder");
    EXPECT_THROW(this->folder_->TryLock("folder", holder), RunTimeError);
}

TYPED_TEST_P(DiskContract, KnowsThisProgramAndTheMachine) {
    EXPECT_TRUE(this->disk_.IsRunning(this->disk_.Program()));
    EXPECT_FALSE(this->disk_.IsRunning(0));
    EXPECT_NE(this->disk_.Machine(), "");
}

REGISTER_TYPED_TEST_SUITE_P(DiskContract, FindsEntriesAndLeadsNowhereElse,
                            AFileIsReplacedByCommitOnly, RenamesOverFilesButOverNoFolder,
                            AnOpenFolderStaysTheSameWhateverItsNameBecomes,
                            ALockExcludesOthersAndGoesWithItsFile, KnowsThisProgramAndTheMachine);

}  // namespace morpho::test
