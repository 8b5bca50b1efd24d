#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/front_page.h"
#include "platform/run_time_error.h"

namespace morpho::test {

// What every host promises an editor. `Host` has Application& Subject(), with a copy of the sample
// web open; const TemporaryFolder& Folder(), where the copy is "web"; std::string Path(name), the
// Windows path of an entry there; and void Select(page, picture), which plays a person in a page of
// the web's own folder.
template <typename Host>
class ApplicationContract : public ::testing::Test {
  protected:
    Host host_;
    std::unique_ptr<Web> web_ = host_.Subject().ActiveWeb();
};

TYPED_TEST_SUITE_P(ApplicationContract);

TYPED_TEST_P(ApplicationContract, TellsTheThemesAndSettingsOfItsWeb) {
    Web& web = *this->web_;
    std::string themes;
    for (int i = 0; i < web.ThemeCount(); ++i)
        themes += web.ThemeAt(i).name + "=" + web.ThemeAt(i).label + " ";
    EXPECT_EQ(themes, "almanac=Old Almanac orrery=Orrery ");
    EXPECT_THROW(web.ThemeAt(2), RunTimeError);
    EXPECT_THROW(web.ThemeAt(-1), RunTimeError);
    EXPECT_EQ(web.ThemeProperties(kThemeNameProperty), "orrery");
    EXPECT_EQ(web.Property("vti_showhiddenpages"), std::nullopt);
    this->host_.Folder().Write("web/_vti_pvt/service.cnf", "vti_encoding:SR|utf8-nl\r\n");
    EXPECT_EQ(web.Title(), "web");
    this->host_.Folder().Write("web/_vti_pvt/service.cnf",
                               "vti_title:SR|A|Ü\r\nvti_showhiddenpages:IX|1\r\n");
    EXPECT_EQ(web.Property("vti_showhiddenpages"), "1");
    EXPECT_EQ(web.Title(), "A|Ü");
    EXPECT_EQ(this->host_.Subject().Languages()->LanguageId(LanguageUse::kUserInterface), 1033);
    EXPECT_EQ(this->host_.Subject().MakeAbs(web.Url() + "/index.htm", "images/a.gif"),
              web.Url() + "/images/a.gif");
}

TYPED_TEST_P(ApplicationContract, AddsFindsAndDeletesFoldersAndFiles) {
    Web& web = *this->web_;
    const auto folder = web.RootFolder()->AddFolder("Neu ü");
    EXPECT_THROW(web.RootFolder()->AddFolder("NEU ü"), RunTimeError);
    this->host_.Folder().Write("x/A b.GIF", "one");
    const std::string source = this->host_.Path("x/A b.GIF");
    folder->AddFile(source, false);
    this->host_.Folder().Write("x/A b.GIF", "two");
    EXPECT_THROW(folder->AddFile(source, false), RunTimeError);
    EXPECT_EQ(this->host_.Folder().Read("web/Neu ü/A b.GIF"), "one");
    folder->AddFile(source, true);
    EXPECT_EQ(this->host_.Folder().Read("web/Neu ü/A b.GIF"), "two");
    const auto found = web.LocateFolder("neu ü");
    ASSERT_EQ(found->FileCount(), 1);
    EXPECT_EQ(found->FileAt(0).name + "|" + found->FileAt(0).extension, "A b.GIF|GIF");
    EXPECT_EQ(found->FileAt(0).url, web.Url() + "/Neu ü/A b.GIF");
    EXPECT_THROW(found->FileAt(1), RunTimeError);
    EXPECT_THROW(found->FolderAt(0), RunTimeError);
    web.RootFolder()->FindFolder("neu ü")->Delete();
    EXPECT_EQ(web.LocateFolder("Neu ü"), nullptr);
    EXPECT_EQ(web.RootFolder()->FindFolder("Neu ü"), nullptr);
    EXPECT_THROW(folder->AddFile(source, true), RunTimeError);
}

TYPED_TEST_P(ApplicationContract, ReadsAStyleSheetInABlankPage) {
    const auto page = this->web_->ActiveWebWindow()->AddPageWindow();
    const auto document = page->Document();
    EXPECT_THROW(document->StyleSheetAt(0), RunTimeError);
    EXPECT_THROW(document->InsertAdjacentHtml("Somewhere", ""), RunTimeError);
    document->InsertAdjacentHtml("AfterBegin",
                                 "<style>A {x-banner: url( 'a;}b.gif' ); COLOR: red}\r\n"
                                 "body{background-image:url(ü.jpg)}</style>");
    const auto sheet = document->StyleSheetAt(0);
    ASSERT_EQ(sheet->RuleCount(), 2);
    EXPECT_EQ(sheet->Rule(0)->SelectorText(), "A");
    EXPECT_EQ(sheet->Rule(0)->Attribute("X-Banner"), "url( 'a;}b.gif' )");
    EXPECT_EQ(sheet->Rule(0)->Attribute("background-image"), std::nullopt);
    EXPECT_EQ(sheet->Rule(1)->Attribute("background-image"), "url(ü.jpg)");
    EXPECT_THROW(sheet->Rule(2), RunTimeError);
    page->Close(false);
    EXPECT_THROW(page->Document(), RunTimeError);
}

TYPED_TEST_P(ApplicationContract, ShowsThePageAndItsSelectedPicture) {
    EXPECT_EQ(this->host_.Subject().ActiveDocument(), nullptr);
    this->host_.Folder().Write("web/p.htm", "<img src=a.gif><p><img src='images/b.gif'>");
    this->host_.Select("p.htm", 1);
    const auto document = this->host_.Subject().ActiveDocument();
    EXPECT_EQ(document->Url(), this->web_->Url() + "/p.htm");
    EXPECT_EQ(document->SelectionHtml(), "<img src='images/b.gif'>");
    const auto undo = document->BeginUndoTransaction("search");
    document->InsertAdjacentHtml("AfterBegin", document->SelectionHtml());
    EXPECT_EQ(document->ImageCount(), 3);
    EXPECT_EQ(document->ImageAddress(0), this->web_->Url() + "/images/b.gif");
    undo->Abort();
    EXPECT_EQ(document->ImageCount(), 2);
    EXPECT_THROW(document->ImageAddress(2), RunTimeError);
}

TYPED_TEST_P(ApplicationContract, AppliesAThemeToTheWeb) {
    this->web_->ApplyTheme("almanac");
    EXPECT_EQ(this->web_->ThemeProperties(kThemeNameProperty), "almanac");
    EXPECT_THROW(this->web_->ApplyTheme("none"), RunTimeError);
}

REGISTER_TYPED_TEST_SUITE_P(ApplicationContract, TellsTheThemesAndSettingsOfItsWeb,
                            AddsFindsAndDeletesFoldersAndFiles, ReadsAStyleSheetInABlankPage,
                            ShowsThePageAndItsSelectedPicture, AppliesAThemeToTheWeb);

}  // namespace morpho::test
