#include "desktop/batch_image.h"

namespace morpho {

BatchImage::BatchImage(const Program& program, HeadlessToolkit& toolkit, const std::string& picture)
    : toolkit_(toolkit), window_(program), messagesBefore_(toolkit.Messages().size()) {
    window_.OpenAtStart({ImageKind::kDisk, picture});
    window_.Load();
    if (!window_.Image().IsOpen()) Refuse("It cannot be opened.");
}

BatchImage::~BatchImage() {
    toolkit_.ForgetAnswers();
    // What is not saved by now is not to be saved.
    toolkit_.WillAnswer(Answer::kNo);
    if (window_.IsLoaded()) window_.Unload();
    toolkit_.ForgetAnswers();
}

// Every settled slider recolours the picture, so only the last one is settled.
void BatchImage::Recolour(const PictureChange& change) {
    if (change.quality) window_.vsQF.UserSet(*change.quality);
    window_.slBrightness.SetValueQuietly(change.brightness);
    window_.slSaturation.SetValueQuietly(change.saturation);
    window_.slHue.UserSettle(change.hue);
    if (!window_.Failure().empty()) Refuse({});
}

void BatchImage::Save() {
    toolkit_.WillAnswer(Answer::kYes);
    window_.btnSave.UserClick();
    RequireSaved();
}

void BatchImage::SaveAs(const std::string& file) {
    toolkit_.WillChoose(file);
    window_.btnSaveAs.UserClick();
    RequireSaved();
}

void BatchImage::RequireSaved() const {
    if (window_.IsLoaded()) Refuse("It cannot be saved.");
}

void BatchImage::Refuse(const std::string& otherwise) const {
    const bool isTold = toolkit_.Messages().size() > messagesBefore_;
    const std::string& failure = window_.Failure();
    const std::string told = isTold ? toolkit_.Messages().back().text : std::string();
    throw Refusal(!failure.empty() ? failure : !told.empty() ? told : otherwise);
}

}  // namespace morpho
