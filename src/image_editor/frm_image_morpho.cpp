#include "image_editor/frm_image_morpho.h"

#include <limits>

#include "forms/picture_size.h"
#include "frontpage/environment_discovery.h"
#include "image_editor/disk_choice.h"
#include "image_editor/frm_web_open.h"
#include "image_editor/image_product.h"
#include "image_editor/selected_image.h"
#include "platform/file_system.h"
#include "platform/front_page.h"
#include "platform/platform.h"
#include "shared/mod_shared_code.h"

namespace morpho {

namespace {

constexpr Size kDesignSize{9000, 6840};
constexpr std::string_view kUnsavedQuestion =
    "The image has been modified. Do you want to save the changes ?";
constexpr std::string_view kReplaceQuestion = "Are you sure you want to replace the current file ?";
constexpr std::string_view kTypesDiffer = "Source and destination file types do not match.";

// The extension of a file name, without "."; empty when it has none.
std::string ExtensionOf(const std::string& name) {
    const std::size_t stop = name.rfind('.');
    return stop == std::string::npos ? std::string() : name.substr(stop + 1);
}

}  // namespace

frmImageMorpho::frmImageMorpho(const Program& program)
    : EditorWindow(program,
                   {"frmImageMorpho", kImageProduct, kDesignSize, BorderStyle::kSizable,
                    kMinimumSize, StartPosition::kCenterScreen},
                   {kImageProduct, "IM", Editor::kImage}),
      image_(program),
      band_(program, imgBand, picBand) {
    frameQF.SetVisible(false);
    EnableImageButtons();
}

void frmImageMorpho::Form_Load() {
    ConnectToHost();
    WriteBanner();
    UpdateCaption();
    ShowAboutBoxOnce();
    const std::string tempPath = GetTempPath(ThePlatform());
    WriteLog("Temp path: " + tempPath);
    image_.SetTempPath(tempPath);
    band_.Open(*this, tempPath);
    UpdateColourBand();
    FindSelectedImage();
    RestorePlacement();
    WriteLog("IM loaded");
}

void frmImageMorpho::FindSelectedImage() {
    try {
        const ImageLocation image = atStart_ ? *atStart_ : morpho::FindSelectedImage(TheProgram());
        if (image.kind != ImageKind::kNone) OpenImage(image);
    } catch (const std::exception& error) {
        // The window starts without a picture.
        HandlerFailed("FindSelectedImage", AsRunTimeError(error));
    }
}

void frmImageMorpho::TellError(std::string_view handler, const RunTimeError& error) {
    if (handler == "Form_Load") TellMissingColorizer(error);
    ShowStatus(error.what());
}

void frmImageMorpho::ShowStatus(const std::string& text) {
    lblStatus.SetCaption(text);
    lblStatus.SetToolTip(text);  // the label may be too short
}

void frmImageMorpho::OpenImage(const ImageLocation& image) {
    const bool web = image.kind == ImageKind::kWeb;
    ShowStatus({});
    WriteLog((web ? "Opening web image " : "Opening disk image ") + image.address + "...");
    try {
        if (image_.Open(image)) {
            ShowWorkingCopy();
            frameQF.SetVisible(image_.IsJpeg());
            if (image_.IsJpeg()) txtQF.SetText(std::to_string(kInitialQuality));
            ResetSliders();
            changeCount_ = 0;  // the recolourings of the neutral sliders change nothing
        } else {
            TellFailure("Failed to open web image");
        }
    } catch (const std::exception&) {
        CloseImage();
        throw;
    }
    LayOut();
    UpdateCaption();
    EnableImageButtons();
}

// A picture that no control can show cannot be edited either.
void frmImageMorpho::ShowWorkingCopy() {
    picImage.SetPicture(image_.WorkingCopy());
    if (picImage.NaturalSize() != Size{}) return;
    throw RunTimeError(ErrorNumber::kInvalidPicture,
                       image_.FileName() + " is no picture that can be shown, or has more than " +
                           std::to_string(kMaxShownPixels >> 20) + " million pixels.");
}

void frmImageMorpho::CloseImage() {
    WriteLog("Closing image...");
    image_.Close();
    picImage.SetPicture({});
    frameQF.SetVisible(false);
    changeCount_ = 0;
    EnableImageButtons();
    UpdateCaption();
    LayOut();
}

void frmImageMorpho::EnableImageButtons() {
    for (CommandButton* button : {&btnSave, &btnSaveAs, &btnReset})
        button->SetEnabled(image_.IsOpen());
}

void frmImageMorpho::UpdateCaption() {
    const std::string product(kImageProduct);
    SetCaption(image_.IsOpen() ? product + " - " + image_.FileName() : product);
}

bool frmImageMorpho::IsWebOpen() const {
    return TheComponent().application->ActiveWeb() != nullptr;
}

void frmImageMorpho::Slider_Scroll() {
    sliders_.ShowValuesNow();
    UpdateColourBand();
}

void frmImageMorpho::Slider_Change() {
    sliders_.ShowValues();
    ApplySliders();
}

void frmImageMorpho::UpdateColourBand() {
    band_.UpdateColourBand(sliders_.Adjustment());
}

void frmImageMorpho::ApplySliders() {
    if (!image_.IsOpen()) return;
    ProcessImage();
    if (changeCount_ == std::numeric_limits<std::int32_t>::max())
        throw RunTimeError(ErrorNumber::kOverflow, "Overflow");
    ++changeCount_;
}

void frmImageMorpho::ProcessImage() {
    ShowStatus({});
    WriteLog("Processing file...");
    image_.Recolour(sliders_.Adjustment(), static_cast<std::int16_t>(vsQF.Value()));
    ShowWorkingCopy();
}

void frmImageMorpho::ResetSliders() {
    sliders_.MoveToNeutral();
    UpdateColourBand();
    // Each slider is handled as if it had been moved.
    for (int slider = 0; slider < 3; ++slider)
        Slider_Change();
}

void frmImageMorpho::btnReset_Click() {
    ResetSliders();
    if (!image_.IsOpen()) return;
    image_.Restore();
    ShowWorkingCopy();
}

frmImageMorpho::Offer frmImageMorpho::OfferToSave() {
    if (changeCount_ == 0) return Offer::kDone;
    const Answer answer = Ask(kUnsavedQuestion, kYesNoCancel);
    if (answer == Answer::kCancel) return Offer::kCancelled;
    return answer == Answer::kNo || SaveImage() ? Offer::kDone : Offer::kSaveFailed;
}

void frmImageMorpho::btnOpen_Click() {
    ShowStatus({});
    if (OfferToSave() != Offer::kDone) return;
    const std::optional<ImageLocation> chosen = ChooseImageToOpen();
    if (!chosen) return;
    CloseImage();
    OpenImage(*chosen);
}

std::optional<ImageLocation> frmImageMorpho::ChooseImageToOpen() {
    if (!IsWebOpen()) return ChooseOnDisk({.mode = FileDialog::Mode::kOpen});
    frmWebOpen dialog(TheProgram(), "Open");
    return ChooseInWeb(dialog);
}

std::optional<ImageLocation> frmImageMorpho::ChooseInWeb(frmWebOpen& dialog) {
    dialog.WebFilter = kWebImageFilter;
    dialog.DiskFilter = kDiskImageFilter;
    dialog.ShowModal();
    if (dialog.ResultKind == ImageKind::kNone) return {};
    return ImageLocation{dialog.ResultKind, dialog.ResultAddress};
}

std::optional<ImageLocation> frmImageMorpho::ChooseOnDisk(FileDialog request) {
    request.filter = kDiskImageFilter;
    const auto path = ChooseDiskFile(*this, TheToolkit(), std::move(request));
    if (!path) return {};
    return ImageLocation{ImageKind::kDisk, *path};
}

bool frmImageMorpho::SaveImage(const std::optional<ImageLocation>& place) {
    try {
        if (place)
            image_.SaveAs(*place);
        else
            image_.Save();
    } catch (const std::exception& error) {
        HandlerFailed("SaveImage", AsRunTimeError(error));
        return false;
    }
    changeCount_ = 0;
    // What was saved is the picture now; the sliders must not recolour it a second time.
    sliders_.MoveToNeutral();
    UpdateColourBand();
    UpdateCaption();
    return true;
}

void frmImageMorpho::btnSave_Click() {
    ShowStatus({});
    if (Ask(kReplaceQuestion, kYesNo) == Answer::kYes && SaveImage()) LeaveSaved();
}

void frmImageMorpho::btnSaveAs_Click() {
    ShowStatus({});
    const bool web = image_.Location().kind == ImageKind::kWeb;
    const std::optional<ImageLocation> place = web ? SaveImageAsWeb() : SaveImageAsDisk();
    if (!place) return;
    if (GetImageFileType(place->address) != GetImageFileType(image_.SourceCopyPath())) {
        TellFailure(kTypesDiffer);
        return;
    }
    if (SaveImage(place)) LeaveSaved();
}

std::optional<ImageLocation> frmImageMorpho::SaveImageAsWeb() {
    frmWebOpen dialog(TheProgram(), "Save as");
    dialog.OpenMode = false;
    dialog.ProposedName = image_.FileName();
    dialog.DefaultExtension = ExtensionOf(image_.FileName());
    return ChooseInWeb(dialog);
}

std::optional<ImageLocation> frmImageMorpho::SaveImageAsDisk() {
    return ChooseOnDisk({.mode = FileDialog::Mode::kSave,
                         .folder = FolderOfImage(image_.Location()),
                         .name = image_.FileName()});
}

void frmImageMorpho::LeaveSaved() {
    Application& host = *TheComponent().application;
    const auto web =
        image_.Location().kind == ImageKind::kWeb ? host.ActiveWeb() : std::unique_ptr<Web>();
    if (web) web->Refresh();
    Unload();
    host.RefreshViews();
}

void frmImageMorpho::Form_QueryUnload(bool& cancel, bool /*byUser*/) {
    const Offer offer = OfferToSave();
    cancel = offer == Offer::kCancelled;
    // After a failed save the copies stay, so that the work is not lost.
    if (offer != Offer::kDone) return;
    CloseImage();
    band_.Close();
    SavePlacement();
    WriteLog("Unloading IM");
}

}  // namespace morpho
