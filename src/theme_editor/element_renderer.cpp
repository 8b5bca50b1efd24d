#include "theme_editor/element_renderer.h"

#include "forms/toolkit.h"
#include "image_editor/frm_jpeg_qf.h"
#include "platform/colorizer.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/log.h"
#include "shared/mod_shared_code.h"

namespace morpho {

void ElementRenderer::SetFolders(const std::string& originals, const std::string& work) {
    originals_ = originals;
    work_ = work;
    failures_.clear();
}

bool ElementRenderer::RenderElement(int row) {
    try {
        failures_.erase(row);
        return Rebuild(row);
    } catch (const RunTimeError& error) {
        failures_[row] = error.what();
        return false;
    }
}

void ElementRenderer::RestoreFailed() {
    for (const auto& [row, reason] : failures_) {
        const std::string& file = elements_.File(row);
        const auto original = program_.platform.files.Find(originals_ + file);
        if (original && !original->IsFolder())
            program_.platform.files.Copy(originals_ + file, work_ + file);
    }
}

bool ElementRenderer::Rebuild(int row) {
    const std::string& file = elements_.File(row);
    const std::unique_ptr<Colorizer> colorizer = program_.platform.colorizers.Create();
    WriteLog(program_, "  " + elements_.Key(row) + " (" + file + ")...");
    colorizer->SetSourceFile(originals_ + file);
    colorizer->SetDestinationFile(work_ + file);
    colorizer->SetAuxParameter1(0.0);
    colorizer->SetAuxParameter2(0.0);
    if (history_.IsUndoEmpty()) {
        program_.platform.files.Copy(colorizer->SourceFile(), colorizer->DestinationFile());
        return false;
    }
    if (IsJpegFile(colorizer->SourceFile()) && askJpegQuality_ == kAsk) AskQuality(*colorizer);
    for (const HistoryStep& step : history_.UndoSteps()) {
        const ElementAdjustment& record = step.at(static_cast<std::size_t>(row));
        colorizer->SetHue(record.Hue);
        colorizer->SetSaturation(record.Saturation);
        colorizer->SetBrightness(record.Brightness);
        colorizer->Colorize();
        colorizer->SetSourceFile(work_ + file);
    }
    return true;
}

void ElementRenderer::AskQuality(Colorizer& colorizer) {
    frmJPEGQF prompt(program_);
    Toolkit& toolkit = program_.platform.toolkit;
    const CapturedWindow captured = toolkit.ReleaseCapture();
    prompt.ShowModal();
    toolkit.SetCapture(captured);
    const auto quality = static_cast<std::int16_t>(prompt.vsQF.Value());
    colorizer.SetQuality(quality);
    askJpegQuality_ = quality;
}

}  // namespace morpho
