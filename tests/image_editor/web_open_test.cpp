#include "image_editor/image_world.h"

namespace morpho::test {
namespace {

class WebOpen : public ImageWindow {
  protected:
    using Person = std::function<void(frmWebOpen&)>;

    // Shows the dialog, and returns "kind address" of its result.
    std::string Choose(bool opens, const Person& person) {
        frmWebOpen dialog(world.program, opens ? "Open" : "Save as");
        dialog.OpenMode = opens;
        dialog.WebFilter = kWebImageFilter;
        dialog.DiskFilter = kDiskImageFilter;
        dialog.DefaultExtension = opens ? "" : "gif";
        world.toolkit.WillPlay("frmWebOpen", [&](Form&) {
            person(dialog);
            if (dialog.IsVisible()) dialog.btnCancel.UserClick();
        });
        dialog.ShowModal();
        return std::to_string(static_cast<int>(dialog.ResultKind)) + " " + dialog.ResultAddress;
    }
    static Lines Rows(const frmWebOpen& dialog) {
        Lines rows;
        for (int row = 0; row < dialog.lvFiles.RowCount(); ++row)
            rows.push_back(dialog.lvFiles.Row(row).text + " " +
                           dialog.lvFiles.Row(row).details.front());
        return rows;
    }
    static void SelectFolder(frmWebOpen& dialog, const std::string& name) {
        for (TreeNode* node : dialog.tvFolders.Roots().front()->Children()) {
            if (node->Text() == name) dialog.tvFolders.UserClick(*node);
        }
    }
    static Person Type(const std::string& name) {
        return [=](frmWebOpen& dialog) {
            dialog.txtFileName.UserEdit(name);
            dialog.btnOK.UserClick();
        };
    }
};

TEST_F(WebOpen, ListsTheFilesOfAFolderByType) {
    world.files.PutFile("C:\\Web\\images\\NOTES.TXT", "");
    Choose(true, [](frmWebOpen& dialog) {
        EXPECT_EQ(dialog.cmbWebs.Text(), "Larkfell");
        EXPECT_THAT(Rows(dialog), ElementsAre("sky.gif GIF"));
        SelectFolder(dialog, "images");
        EXPECT_THAT(Rows(dialog), ElementsAre("b.gif GIF", "c.jpg JPG"));
        dialog.cmbFileTypes.UserSelect(1);
        EXPECT_THAT(Rows(dialog), ElementsAre("b.gif GIF"));
        dialog.cmbFileTypes.UserSelect(3);
        EXPECT_EQ(Rows(dialog).size(), 3u);
        dialog.optViewModeReport.UserClick();
        EXPECT_EQ(dialog.lvFiles.ShownView(), ListView::View::kReport);
    });
}

TEST_F(WebOpen, ReturnsWhatWasChosen) {
    EXPECT_EQ(Choose(true, Type(" SKY.gif ")), "1 file:///C:/Web/sky.gif");
    EXPECT_EQ(Choose(true,
                     [](frmWebOpen& dialog) {
                         SelectFolder(dialog, "images");
                         dialog.lvFiles.UserClick(1);
                         dialog.btnOK.UserClick();
                     }),
              "1 file:///C:/Web/images/c.jpg");
    EXPECT_EQ(Choose(true,
                     [](frmWebOpen& dialog) {
                         SelectFolder(dialog, "images");
                         dialog.lvFiles.UserClick(1);
                         Type("b.gif")(dialog);  // what is typed counts, not the row
                     }),
              "1 file:///C:/Web/images/b.gif");
    EXPECT_EQ(Choose(false, Type("photo")), "1 file:///C:/Web/photo.gif");
    EXPECT_EQ(Choose(true, Type("  ")), "0 ");
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(WebOpen, RefusesAndAsks) {
    world.files.PutFile("C:\\Web\\page.htm", "");
    EXPECT_EQ(Choose(true, Type("nowhere.gif")), "0 ");
    EXPECT_EQ(Choose(false, Type("a:b")), "0 ");
    WillAnswer({Answer::kNo});
    EXPECT_EQ(Choose(false, Type("sky")), "0 ");
    // A file that the type hides is not replaced unasked either.
    WillAnswer({Answer::kYes});
    EXPECT_EQ(Choose(false, Type("page.htm")), "1 file:///C:/Web/page.htm");
    EXPECT_THAT(Messages(),
                ElementsAre("Open: Unable to locate the specified file. Please specify a valid "
                            "file name.",
                            "Save: File name contains invalid characters.",
                            "Save: sky.gif already exists.\r\nDo you want to replace it ?",
                            "Save: page.htm already exists.\r\nDo you want to replace it ?"));
}

TEST_F(WebOpen, HandsOverToTheDisk) {
    const Person explorer = [](frmWebOpen& dialog) { dialog.btnExplorer.UserClick(); };
    world.toolkit.WillChoose(std::nullopt);
    EXPECT_EQ(Choose(true, explorer), "0 ");
    world.toolkit.WillChoose("C:\\Pictures\\a.gif");
    EXPECT_EQ(Choose(true, explorer), "2 C:\\Pictures\\a.gif");
    EXPECT_EQ(world.toolkit.FileDialogs().back().flags, 4100);
    world.toolkit.WillChoose("C:\\Pictures\\.gif");
    EXPECT_EQ(Choose(false, explorer), "0 ");
    EXPECT_EQ(world.toolkit.FileDialogs().back().flags, 6);
    // The extension that is added makes it the name of another file.
    world.toolkit.WillChoose("C:\\Pictures\\a");
    WillAnswer({Answer::kNo});
    EXPECT_EQ(Choose(false, explorer), "0 ");
    world.toolkit.WillChoose("C:\\Pictures\\new");
    EXPECT_EQ(Choose(false, explorer), "2 C:\\Pictures\\new.gif");
    EXPECT_THAT(Messages(), ElementsAre("Save: Invalid file name specified.",
                                        "Save: a.gif already exists.\r\nDo you want to replace "
                                        "it ?"));
}

TEST_F(WebOpen, CreatesFolders) {
    Choose(false, [&](frmWebOpen& dialog) {
        SelectFolder(dialog, "images");
        TreeNode* const images = dialog.tvFolders.SelectedNode();
        dialog.btnNewFolder.UserClick();
        EXPECT_EQ(dialog.tvFolders.SelectedNode()->Text(), "New_Folder");
        dialog.tvFolders.UserClick(*images);
        dialog.btnNewFolder.UserClick();
        EXPECT_TRUE(world.files.HasFolder("C:\\Web\\images\\New_Folder1"));
        EXPECT_EQ(dialog.tvFolders.SelectedNode()->Parent(), images);
    });
}

TEST_F(WebOpen, OffersEveryFileWithoutAFilter) {
    frmWebOpen dialog(world.program, "Open");
    dialog.WebFilter = "";
    dialog.Load();
    EXPECT_EQ(dialog.cmbFileTypes.Text(), "All files (*.*)");
    EXPECT_EQ(Rows(dialog).size(), 1u);
}

}  // namespace
}  // namespace morpho::test
