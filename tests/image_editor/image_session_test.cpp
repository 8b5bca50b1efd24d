#include "image_editor/image_world.h"

namespace morpho::test {
namespace {

constexpr const char* kUnsaved =
    "Image Morpho: The image has been modified. Do you want to save the changes ?";
constexpr const char* kReplace =
    "Image Morpho: Are you sure you want to replace the current file ?";

TEST_F(ImageWindow, OpensTheSelectedPicture) {
    struct Case {
        const char* version;
        bool web;
        const char* page;
        const char* selection;
        const char* address;  // of the picture that is opened; empty: none
    };
    const Case cases[] = {
        {"6.0", true, "file:///C:/Web/index.htm", "<img src=images/b.gif>",
         "file:///C:/Web/images/b.gif"},
        {"5.0", true, "file:///C:/Web/index.htm", "<img src=sky%2Egif>", "file:///C:/Web/sky.gif"},
        {"6.0", false, "file:///C:/Pictures/p.htm", "<img src=%61.gif>", "C:\\Pictures\\a.gif"},
        {"4.0", false, "FILE:///C:/Pictures/p.htm", "<img src=a%20b.gif>",
         "C:\\Pictures\\a%20b.gif"},
        {"6.0", false, "http://example.org/p.htm", "<img src=a.gif>", ""},
        {"6.0", true, "file:///C:/Web/index.htm", "only text", ""},
        {"6.0", true, "file:///C:/Web/index.htm", "", ""}};
    world.files.PutFile("C:\\Pictures\\a%20b.gif", gif);
    for (const Case& each : cases) {
        SCOPED_TRACE(std::string(each.version) + " " + each.selection);
        world.application.version = each.version;
        world.application.web.reset();
        if (each.web) world.application.web.emplace();
        world.application.page = {each.page, {"other.gif"}, each.selection};
        // The fake explorer is of release 6.0; a web picture of 5.0 cannot be fetched.
        const bool fetched = !each.web || std::string(each.version) == "6.0";
        world.shell.debugLines.clear();
        Open();
        const std::string address(each.address);
        EXPECT_EQ(window->Image().Location().address, fetched ? address : "");
        if (!address.empty()) {
            EXPECT_THAT(world.LogLines(), Contains("Selected image URL: " + address));
        }
        EXPECT_EQ(window->btnSave.Enabled(), fetched && !address.empty());
        EXPECT_EQ(window->ChangeCount(), 0);
        EXPECT_THAT(world.application.page->pictures, ElementsAre("other.gif"));
        window->Unload();
    }
    EXPECT_THAT(Messages(), ElementsAre("Image Morpho: Failed to open web image"));
    EXPECT_THAT(world.LogLines(), Contains("No selection"));
    EXPECT_THAT(Temporary(), IsEmpty());
}

TEST_F(ImageWindow, EveryRecolouringStartsFromTheSource) {
    OpenDisk();
    window->slHue.UserScroll(10);
    EXPECT_EQ(window->ChangeCount(), 0);
    EXPECT_EQ(window->lblHueValue.Caption(), "10");
    for (const int hue : {40, -180, 180})
        window->slHue.UserSettle(hue);
    EXPECT_EQ(window->picImage.Picture(), Recoloured(gif, 180));
    EXPECT_EQ(window->ChangeCount(), 3);
    world.colorizers.failAtPass = 2;  // the first is the band's
    window->slHue.UserSettle(60);
    EXPECT_EQ(window->picImage.Picture(), Recoloured(gif, 180));
    EXPECT_NE(window->Failure(), "");
    window->btnReset.UserClick();
    EXPECT_EQ(window->picImage.Picture(), gif);
    EXPECT_EQ(window->slHue.Value(), 0);
    EXPECT_GE(window->ChangeCount(), 1);
    EXPECT_EQ(world.files.Bytes("C:\\Pictures\\a.gif"), gif);
    WillAnswer({Answer::kNo});
    window->Unload();

    Open();
    window->slHue.UserSettle(40);
    EXPECT_EQ(window->ChangeCount(), 0);
}

TEST_F(ImageWindow, AJpegIsRecolouredWithTheChosenQuality) {
    Open(ImageLocation{ImageKind::kWeb, "file:///C:/Web/images/c.jpg"});
    EXPECT_TRUE(window->frameQF.Visible());
    window->txtQF.UserEdit("90");
    world.colorizers.calls.clear();
    window->slHue.UserSettle(40);
    EXPECT_THAT(world.colorizers.calls, Contains("Quality 90"));
    window->OpenImage({ImageKind::kDisk, "C:\\Pictures\\a.gif"});
    EXPECT_FALSE(window->frameQF.Visible());
}

// What the person does with a modified picture, and what must come of it.
struct Ending {
    const char* name;
    bool web;
    std::vector<Answer> answers;
    std::function<void(frmImageMorpho&)> act;
    bool saveFails;
    bool isSaved;
    bool isOpen;  // the window stays
    std::vector<const char*> messages;
};

TEST_F(ImageWindow, EveryWayToEndIt) {
    const auto save = [](frmImageMorpho& form) { form.btnSave.UserClick(); };
    const auto close = [](frmImageMorpho& form) { form.btnCancel.UserClick(); };
    const auto open = [](frmImageMorpho& form) { form.btnOpen.UserClick(); };
    const Ending endings[] = {
        {"save", false, {Answer::kYes}, save, false, true, false, {kReplace}},
        {"save, no", false, {Answer::kNo}, save, false, false, true, {kReplace}},
        {"save to web", true, {Answer::kYes}, save, false, true, false, {kReplace}},
        {"save fails", false, {Answer::kYes}, save, true, false, true, {kReplace}},
        {"save to web fails", true, {Answer::kYes}, save, true, false, true, {kReplace}},
        {"close, yes", true, {Answer::kYes}, close, false, true, false, {kUnsaved}},
        {"close, no", false, {Answer::kNo}, close, false, false, false, {kUnsaved}},
        {"close, cancel", false, {Answer::kCancel}, close, false, false, true, {kUnsaved}},
        {"close, fails", false, {Answer::kYes}, close, true, false, false, {kUnsaved}},
        {"open, cancel", false, {Answer::kCancel}, open, false, false, true, {kUnsaved}},
        {"open, fails", false, {Answer::kYes}, open, true, false, true, {kUnsaved}}};
    for (const Ending& ending : endings) {
        SCOPED_TRACE(ending.name);
        const std::string file = ending.web ? "C:\\Web\\images\\b.gif" : "C:\\Pictures\\a.gif";
        world.files.PutFile(file, gif);
        const std::size_t messagesBefore = Messages().size();
        ending.web ? OpenWeb() : OpenDisk();
        window->slHue.UserSettle(40);
        world.application.webCalls.clear();
        if (ending.saveFails) world.files.FailOn(file);
        WillAnswer(ending.answers);
        ending.act(*window);
        world.files.FailNoMore();
        EXPECT_EQ(world.files.Bytes(file), ending.isSaved ? Recoloured(gif, 40) : gif);
        EXPECT_EQ(window->IsLoaded(), ending.isOpen);
        Lines told = Messages();
        told.erase(told.begin(), told.begin() + static_cast<std::ptrdiff_t>(messagesBefore));
        EXPECT_EQ(told, Lines(ending.messages.begin(), ending.messages.end()));
        const bool savedByButton = ending.isSaved && ending.messages.front() == kReplace;
        EXPECT_EQ(world.application.webCalls, !savedByButton ? Lines{}
                                              : ending.web   ? Lines({"Refresh", "RefreshViews"})
                                                             : Lines({"RefreshViews"}));
        if (ending.isOpen) {
            // The source copy is untouched: the next change starts from the original.
            window->slHue.UserSettle(50);
            EXPECT_EQ(window->picImage.Picture(), Recoloured(gif, 50));
            WillAnswer({Answer::kNo});
            window->Unload();
        }
        // Only a save that failed at the close leaves the recoloured copy behind.
        const bool copiesStay = ending.saveFails && !ending.isOpen;
        EXPECT_THAT(Temporary(), copiesStay ? testing::Matcher<Lines>(Not(IsEmpty())) : IsEmpty());
        if (copiesStay) {
            for (const std::string& copy : Temporary())
                world.files.Delete("C:\\Temp\\" + copy);
        }
    }
}

// A picture is opened, recoloured and saved, while one operation on files, or all from it on, fail.
TEST_F(ImageWindow, WhateverFailsAPictureIsWholeAndCanBeSavedTheNextTime) {
    const auto session = [this](bool ofWeb) {
        ofWeb ? OpenWeb() : OpenDisk();
        window->slHue.UserSettle(40);
        if (window->btnSave.IsOperable()) window->btnSave.UserClick();
        if (window->IsLoaded()) window->Unload();
    };
    const auto isAnsweredYes = [this](int times) {
        for (int i = 0; i < times; ++i)
            world.toolkit.WillAnswer(Answer::kYes);
    };
    const std::string recoloured = Recoloured(gif, 40);
    const std::string unchanged = Recoloured(gif, 0);  // what the window opens with
    for (const bool ofWeb : {false, true}) {
        const std::string file = ofWeb ? "C:\\Web\\images\\b.gif" : "C:\\Pictures\\a.gif";
        for (const bool staysBroken : {false, true}) {
            bool hasFailed = true;
            for (int nth = 1; hasFailed; ++nth) {
                SCOPED_TRACE(file + " fails at " + std::to_string(nth));
                world.files.PutFile(file, gif);
                isAnsweredYes(4);
                world.files.FailAt(nth, staysBroken);
                session(ofWeb);
                hasFailed = world.files.HasFailed();
                world.files.FailNoMore();
                const std::string left = world.files.Bytes(file);
                EXPECT_TRUE(left == gif || left == unchanged || left == recoloured) << left;
                EXPECT_EQ(world.files.Bytes("C:\\Web\\sky.gif"), gif);
                isAnsweredYes(4);
                session(ofWeb);
                EXPECT_EQ(world.files.Bytes(file), Recoloured(left, 40));
            }
        }
    }
}

TEST_F(ImageWindow, SavesBeforeItOpensAnother) {
    OpenDisk();
    window->slHue.UserSettle(40);
    world.toolkit.WillPlay(
        "frmWebOpen", [](Form& form) { dynamic_cast<frmWebOpen&>(form).btnCancel.UserClick(); });
    WillAnswer({Answer::kYes});
    window->btnOpen.UserClick();
    const std::string saved = Recoloured(gif, 40);
    EXPECT_EQ(world.files.Bytes("C:\\Pictures\\a.gif"), saved);
    // No other was chosen: what was saved is the source now, and the sliders are neutral.
    EXPECT_EQ(window->ChangeCount(), 0);
    EXPECT_EQ(window->slHue.Value(), 0);
    window->slHue.UserSettle(50);
    EXPECT_EQ(window->picImage.Picture(), Recoloured(saved, 50));

    world.toolkit.WillPlay("frmWebOpen", [](Form& form) {
        auto& dialog = dynamic_cast<frmWebOpen&>(form);
        dialog.txtFileName.UserEdit("sky.gif");
        dialog.btnOK.UserClick();
    });
    WillAnswer({Answer::kNo});
    window->btnOpen.UserClick();
    EXPECT_EQ(window->Caption(), "Image Morpho - sky.gif");
    EXPECT_EQ(window->ChangeCount(), 0);
    EXPECT_EQ(world.files.Bytes("C:\\Pictures\\a.gif"), saved);
}

TEST_F(ImageWindow, SaveAsKeepsTheFormatAndTheOriginal) {
    world.application.web.reset();
    OpenDisk();
    window->slHue.UserSettle(40);
    world.toolkit.WillChoose(std::nullopt);
    window->btnSaveAs.UserClick();
    world.toolkit.WillChoose("C:\\Pictures\\new.jpg");
    window->btnSaveAs.UserClick();
    EXPECT_THAT(Messages(),
                ElementsAre("Image Morpho: Source and destination file types do not match."));
    world.files.FailOn("C:\\Pictures\\new.gif");
    world.toolkit.WillChoose("C:\\Pictures\\new.gif");
    window->btnSaveAs.UserClick();
    EXPECT_EQ(window->Image().Location().address, "C:\\Pictures\\a.gif");
    world.files.FailNoMore();
    world.files.PutFile("C:\\Pictures\\new.gif", "earlier");
    world.toolkit.WillChoose("C:\\Pictures\\new.gif");
    window->btnSaveAs.UserClick();
    EXPECT_FALSE(window->IsLoaded());
    EXPECT_EQ(world.files.Bytes("C:\\Pictures\\new.gif"), Recoloured(gif, 40));
    EXPECT_EQ(world.files.Bytes("C:\\Pictures\\a.gif"), gif);
    EXPECT_EQ(world.toolkit.FileDialogs().back().flags, kOverwritePrompt | kHideReadOnly);
}

TEST_F(ImageWindow, SavesIntoTheWebUnderAnotherName) {
    OpenWeb();
    window->slHue.UserSettle(40);
    world.toolkit.WillPlay("frmWebOpen", [](Form& form) {
        auto& dialog = dynamic_cast<frmWebOpen&>(form);
        EXPECT_EQ(dialog.Caption(), "Save as");
        EXPECT_EQ(dialog.txtFileName.Text(), "b.gif");
        dialog.txtFileName.UserEdit("Tempb");
        dialog.btnOK.UserClick();
    });
    window->btnSaveAs.UserClick();
    EXPECT_EQ(world.files.Bytes("C:\\Web\\Tempb.gif"), Recoloured(gif, 40));
    EXPECT_EQ(world.files.Bytes("C:\\Web\\images\\b.gif"), gif);
    EXPECT_THAT(world.application.webCalls, ElementsAre("Refresh", "RefreshViews"));
}

TEST_F(ImageWindow, APictureInTheTemporaryFolderIsNotTouched) {
    for (const char* name : {"a.gif", "ColorBand.gif", "Image Morpho\\Tempa.gif"}) {
        const std::string path = std::string("C:\\Temp\\") + name;
        world.files.PutFile(path, gif);
        Open(ImageLocation{ImageKind::kDisk, path});
        window->slHue.UserSettle(40);
        WillAnswer({Answer::kNo});
        window->Unload();
        EXPECT_EQ(world.files.Bytes(path), gif) << name;
    }
}

TEST_F(ImageWindow, WhatIsNoPictureLeavesItEmpty) {
    world.files.PutFile("C:\\Pictures\\huge.gif", Gif(20000, 20000));
    world.files.PutFile("C:\\Pictures\\broken.gif", "no picture");
    OpenDisk();
    for (const char* name : {"huge.gif", "broken.gif", "missing.gif"}) {
        window->OpenImage({ImageKind::kDisk, "C:\\Pictures\\a.gif"});
        world.toolkit.WillPlay("frmWebOpen", [&](Form& form) {
            auto& dialog = dynamic_cast<frmWebOpen&>(form);
            world.toolkit.WillChoose(std::string("C:\\Pictures\\") + name);
            dialog.btnExplorer.UserClick();
        });
        window->btnOpen.UserClick();
        EXPECT_FALSE(window->Image().IsOpen()) << name;
        EXPECT_FALSE(window->btnSave.Enabled()) << name;
        EXPECT_NE(window->Failure(), "") << name;
        EXPECT_EQ(window->Caption(), "Image Morpho") << name;
    }
}

TEST_F(ImageWindow, PansWhatIsLargerThanItsPlace) {
    world.files.PutFile("C:\\Pictures\\wide.gif", Gif(2000, 30));
    Open(ImageLocation{ImageKind::kDisk, "C:\\Pictures\\wide.gif"});
    EXPECT_TRUE(window->hs.Visible());
    EXPECT_FALSE(window->vs.Visible());
    const int beyond = window->hs.Limits().maximum;
    EXPECT_EQ(beyond, 2000 * kTwipsPerPixel - window->picHideIt.Place().width);
    window->hs.UserSet(beyond);
    EXPECT_EQ(window->picImage.Place().left, -beyond);
    window->OpenImage({ImageKind::kDisk, "C:\\Pictures\\a.gif"});
    EXPECT_FALSE(window->hs.Visible());
    EXPECT_EQ(window->picImage.Place().left, 0);
}

TEST_F(ImageWindow, KeepsThePlacement) {
    Open();
    window->UserResize({0, 0, 5000, 5000}, {4880, 4600}, WindowState::kNormal);
    EXPECT_EQ(window->Bounds(), (Rectangle{0, 0, 8865, 7320}));
    // Maximised, the window may be lower than the minimum.
    window->UserResize({0, 0, 9000, 6900}, {9000, 6500}, WindowState::kMaximized);
    EXPECT_EQ(window->State(), WindowState::kMaximized);
    window->UserResize({0, 0, 8000, 6900}, {8000, 6500}, WindowState::kMaximized);
    EXPECT_EQ(window->State(), WindowState::kNormal);
    EXPECT_EQ(Messages().size(), 1u);
    window->SetBounds({150, 300, 12000, 9000});
    window->Unload();
    EXPECT_EQ(Open().Bounds(), (Rectangle{150, 300, 12000, 9000}));
}

TEST_F(ImageWindow, SaysThatTheColorizerIsMissing) {
    world.colorizers.creatable = false;
    Open();
    EXPECT_THAT(Messages(), ElementsAre("Image Morpho: A required component of Morpho, Colorizer, "
                                        "cannot be initialised.\r\nMorpho product will not work."));
    window->Unload();
}

}  // namespace
}  // namespace morpho::test
