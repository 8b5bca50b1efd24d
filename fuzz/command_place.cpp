#include "fuzz/command_place.h"

#include <cstdlib>

#include "fuzz/memory_disk.h"

namespace fs = std::filesystem;

namespace {

const char kSheet[] =
    ".mstheme { nav-banner-image: url(a.gif); separator-image: url(b.jpg) }\n"
    "body { background-image: url(a.gif); color: rgb(10,20,30) }\n";

void MakeTheme(const morpho::TemporaryFolder& folder, const std::string& name) {
    const std::string theme = "here/web/_themes/" + name + "/";
    folder.Write(theme + name + ".inf", "[info]\ntitle=" + name + "\nreadonly=0\n");
    folder.Write(theme + "theme.css", kSheet);
    folder.Write(theme + "graph0.css", kSheet);
    folder.Write(theme + "graph1.css", kSheet);
    folder.Write(theme + "color0.css", "a:link { color: #102030 }\n");
    fs::copy(MORPHO_FUZZ_SEEDS "/gif/plain.gif", folder.At(theme + "a.gif"));
    fs::copy(MORPHO_FUZZ_SEEDS "/jpeg/grey.jpg", folder.At(theme + "b.jpg"));
}

morpho::TemporaryFolder FolderInMemory() {
    UseMemoryDisk();
    return {};
}

}  // namespace

CommandPlace::CommandPlace() : folder_(FolderInMemory()) {
    ::setenv("HOME", (folder_ / "home").c_str(), 1);
    ::setenv("XDG_DATA_HOME", (folder_ / "home/data").c_str(), 1);
    ::setenv("XDG_CACHE_HOME", (folder_ / "home/cache").c_str(), 1);
    MakeFresh();
}

void CommandPlace::MakeFresh() {
    if (!before_.empty() && Now() == before_) return;
    for (const auto& entry : fs::directory_iterator(folder_.Path()))
        fs::remove_all(entry.path());
    folder_.Write("beside/beside.gif", "GIF89a");
    MakeTheme(folder_, "orrery");
    MakeTheme(folder_, "dusk");
    folder_.Write("here/web/index.htm",
                  "<html><head><meta name=\"Microsoft Theme\" content=\"orrery 1011, default\">"
                  "</head><body><img src=\"_themes/orrery/a.gif\"></body></html>");
    folder_.Write("here/web/sub/page.htm",
                  "<html><head><meta name=\"Microsoft Theme\" content=\"dusk 1011, default\">"
                  "</head><body><img src=\"../_themes/dusk/a.gif\"></body></html>");
    fs::copy(MORPHO_FUZZ_SEEDS "/jpeg/420.jpg", folder_.At("here/a.jpg"));
    fs::copy(MORPHO_FUZZ_SEEDS "/gif/plain.gif", folder_.At("here/b.gif"));
    before_ = Now();
}

morpho::Tree CommandPlace::Now() const {
    morpho::Tree now = folder_.Below("");
    std::erase_if(now, [](const auto& entry) { return entry.first.starts_with("home/"); });
    return now;
}
