#include "editing/colour_band.h"

#include "editing/hourglass_pointer.h"
#include "forms/form.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/resources.h"
#include "platform/run_time_error.h"
#include "resources/resource_ids.h"
#include "shared/log.h"

namespace morpho {

void ColourBand::Open(Form& form, const std::string& tempPath) {
    FileSystem& files = program_.platform.files;
    WriteLog(program_, "Loading color band image...");
    colorBandFile_ = tempPath + "ColorBand.jpg";
    processedColorBandFile_ = tempPath + "pColorBand.jpg";
    {
        const HourglassPointer hourglass(form);
        files.WriteFile(colorBandFile_,
                        program_.platform.resources.Bytes(kColorBandResource, kColorBand));
    }
    WriteLog(program_, "Showing color band image...");
    imgBand_.SetPicture(files.ReadFile(colorBandFile_));
    WriteLog(program_, "Loading colorizer for the band...");
    bandColorizer_ = program_.platform.colorizers.Create();
    WriteLog(program_, "Setting colorizer properties...");
    bandColorizer_->SetSourceFile(colorBandFile_);
    bandColorizer_->SetDestinationFile(processedColorBandFile_);
    bandColorizer_->SetAuxParameter1(0.0);
    bandColorizer_->SetAuxParameter2(0.0);
}

void ColourBand::Close() {
    FileSystem& files = program_.platform.files;
    for (const std::string* file : {&colorBandFile_, &processedColorBandFile_}) {
        try {
            if (!file->empty() && files.Find(*file)) files.Delete(*file);
        } catch (const RunTimeError&) {
            // The next start writes them anew.
        }
    }
}

void ColourBand::UpdateColourBand(const ElementAdjustment& adjustment) {
    if (!bandColorizer_) return;
    try {
        bandColorizer_->SetHue(adjustment.Hue);
        bandColorizer_->SetSaturation(adjustment.Saturation);
        bandColorizer_->SetBrightness(adjustment.Brightness);
        bandColorizer_->Colorize();
        picBand_.SetPicture(program_.platform.files.ReadFile(processedColorBandFile_));
        picBand_.Refresh();
    } catch (const RunTimeError&) {
        // The band is only feedback; the strip keeps its last colours.
        return;
    }
}

}  // namespace morpho
