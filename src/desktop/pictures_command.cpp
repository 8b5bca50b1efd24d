#include "desktop/pictures_command.h"

#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <set>

#include "desktop/batch_image.h"
#include "desktop/desktop_platform.h"
#include "desktop/path_text.h"
#include "desktop/theme_report.h"
#include "resources/embedded_resources.h"
#include "shared/memory_clipboard.h"
#include "shared/mod_shared_code.h"

namespace morpho {

namespace {

namespace fs = std::filesystem;

// Counts the pictures on standard error, if a person looks at it.
class Progress {
  public:
    Progress(std::size_t total, bool isWatched) : total_(total), shows_(total > 1 && isWatched) {}
    ~Progress() {
        if (shows_) std::cerr << "\r\x1B[K" << std::flush;  // erases the line
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void Next() {
        ++done_;
        if (shows_) std::cerr << "\rPicture " << done_ << " of " << total_ << std::flush;
    }

  private:
    std::size_t total_;
    std::size_t done_ = 0;
    bool shows_;
};

// The surroundings of all windows of one batch; no web is open.
struct Surroundings {
    explicit Surroundings(DesktopSystem& system)
        : desktop(DesktopUse::kBatch, system, system.Folders(), toolkit, resources, clipboard) {
        component.application = desktop.SharedFrontPage();
    }

    HeadlessToolkit toolkit;
    EmbeddedResources resources;
    MemoryClipboard clipboard;
    DesktopPlatform desktop;
    Component component;
    Program program{desktop.Parts(), component};
};

// The format that the file's first bytes say, as a value of GetImageFileType.
int FormatOf(const fs::path& picture) {
    char start[4] = {};
    std::ifstream(picture, std::ios::binary).read(start, sizeof start);
    const std::string_view bytes(start, sizeof start);
    if (bytes.starts_with("GIF8")) return kGifFile;
    return bytes.starts_with("\xFF\xD8\xFF") ? kJpegFile : kNoImageFile;
}

// A batch must not make files whose name tells another format than they have.
void RequireFormatOfName(const fs::path& picture) {
    const int format = FormatOf(picture);
    if (format == kNoImageFile) throw Refusal("It is neither a GIF nor a JPEG picture.");
    if (format != GetImageFileType(TextOf(picture.filename())))
        throw Refusal(std::string("It is a ") + (format == kGifFile ? "GIF" : "JPEG") +
                      " picture, which its name does not say.");
}

class PicturesBatch {
  public:
    PicturesBatch(const PicturesRequest& request, DesktopSystem& system)
        : request_(request), system_(system), here_(system) {}

    // Where the picture is written to. Throws CommandError when there is nothing to recolour, or
    // when it would replace a file that it must not.
    fs::path Recolour(const fs::path& picture) {
        std::error_code error;
        const fs::path source = system_.RealPath(picture, error);
        if (error) throw Refusal("There is no such file.");
        if (!fs::is_regular_file(source)) throw Refusal("It is no file with a picture.");
        RequireFormatOfName(source);
        const fs::path output = request_.inPlace ? source : OutputOf(picture);
        if (!outputs_.insert(output).second)
            throw Refusal(TextOf(output) + " was written for another picture.");
        BatchImage image(here_.program, here_.toolkit, system_.PathInside(source));
        image.Recolour(request_.change);
        if (request_.inPlace)
            image.Save();
        else
            image.SaveAs(system_.PathInside(output));
        return output;
    }

  private:
    fs::path OutputOf(const fs::path& picture) const {
        const fs::path named = request_.outputFolder.empty()
                                   ? request_.output
                                   : request_.outputFolder / picture.filename();
        if (!named.has_filename()) throw Refusal(TextOf(named) + " names no file.");
        const fs::path output = system_.AbsolutePath(named);
        std::error_code ignored;
        if (fs::is_directory(output, ignored)) throw Refusal(TextOf(output) + " is a folder.");
        if (!request_.force && fs::exists(fs::symlink_status(output, ignored)))
            throw Refusal(TextOf(output) + " exists. --force replaces it.");
        return output;
    }

    const PicturesRequest& request_;
    const DesktopSystem& system_;
    Surroundings here_;
    std::set<fs::path> outputs_;
};

void CreateOutputFolder(const fs::path& folder) {
    std::error_code error;
    if (folder.empty() || fs::is_directory(folder, error)) return;
    if (!fs::create_directories(folder, error))
        throw Refusal("The folder " + TextOf(folder) + " cannot be created.");
}

}  // namespace

void RecolorPictures(const PicturesRequest& request, DesktopSystem& system, std::ostream& output,
                     std::string& warnings) {
    CreateOutputFolder(request.outputFolder);
    PicturesBatch batch(request, system);
    auto report = nlohmann::ordered_json::array();
    std::vector<std::string> failures;
    {
        Progress progress(request.pictures.size(), system.IsErrorOutputWatched());
        for (const fs::path& picture : request.pictures) {
            progress.Next();
            try {
                const fs::path written = batch.Recolour(picture);
                report.push_back({{"picture", TextOf(picture)}, {"output", TextOf(written)}});
            } catch (const std::exception& error) {
                failures.push_back(TextOf(picture) + ": " + error.what());
                report.push_back({{"picture", TextOf(picture)}, {"error", error.what()}});
            }
        }
    }
    if (request.json) output << JsonText({{"pictures", report}}) << "\n";
    if (failures.empty()) return;
    if (request.pictures.size() == 1) throw Refusal(failures.front());
    for (const std::string& failure : failures)
        warnings += failure + "\n";
    throw Refusal(std::to_string(failures.size()) + " of " +
                  std::to_string(request.pictures.size()) + " pictures were not recoloured.");
}

}  // namespace morpho
