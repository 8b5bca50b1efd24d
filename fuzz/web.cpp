// A web is a folder made of the input: opened, listed, its pages read, given another theme. Nothing
// beside the folder is read or changes, and errors are told as such. The input holds files, each as
// a line "name", a line with its length in bytes, and its bytes. A length of "link" makes a link to
// the folder beside the web.

#include <charconv>
#include <string>

#include "fuzz/fuzz.h"
#include "fuzz/memory_disk.h"
#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "linux/linux_disk.h"
#include "platform/run_time_error.h"
#include "web_host/disk_application.h"

namespace {

using namespace morpho;

constexpr int kMaxFiles = 100;  // writing them takes longer than all that is tested here

std::string_view TakeLine(std::string_view& rest) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(rest.size(), line.size() + 1));
    return line;
}

void WriteFiles(std::string_view input, const TemporaryFolder& folder) {
    for (int files = 0; files < kMaxFiles && !input.empty(); ++files) {
        std::string name(TakeLine(input));
        const std::string_view digits = TakeLine(input);
        std::size_t length = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), length);
        const std::string bytes(input.substr(0, length));
        input.remove_prefix(bytes.size());
        // What the file system refuses is no file of a web.
        if (name.empty() || name.size() > 200 || name.front() == '/' ||
            name.find("..") != name.npos || name.find('\0') != name.npos)
            continue;
        std::error_code refused;
        const auto path = folder.At("web/" + name), beside = folder.At("beside");
        std::filesystem::create_directories(path.parent_path(), refused);
        // An earlier link must not lead this program there.
        const auto parent = std::filesystem::canonical(path.parent_path(), refused);
        if (!std::filesystem::is_directory(parent) || parent.native().starts_with(beside.native()))
            continue;
        if (digits == "link") {
            std::filesystem::create_symlink(beside, path, refused);
        } else if (!std::filesystem::is_symlink(path)) {
            folder.Write("web/" + name, bytes);
        }
    }
}

void Use(DiskApplication& host, const std::string& web, const ThemeStores& stores) {
    try {
        host.Open(web, {}, stores);
    } catch (const RunTimeError&) {
        return;
    }
    const auto opened = host.ActiveWeb();
    host.SetActivePage([] { return ActivePage{{"index.htm"}, 0}; });
    const auto page = host.ActiveDocument();
    for (int index = 0; page && index < page->ImageCount(); ++index)
        page->ImageAddress(index);
    for (int index = 0; index < opened->ThemeCount(); ++index) {
        Require(opened->ThemeAt(index).label != "Beside", "A theme beside the web is listed.");
        try {
            opened->ApplyTheme(opened->ThemeAt(index).name);
        } catch (const RunTimeError&) {
        }
    }
    opened->RecalcHyperlinks();
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    UseMemoryDisk();
    const TemporaryFolder folder;
    folder.Write("beside/page.htm", "<meta name='Microsoft Theme' content='a 1011, default'>");
    folder.Write("beside/beside.inf", "[info]\ntitle=Beside\n");
    folder.Write("web/index.htm", "<meta name='Microsoft Theme' content='a 1011, default'>");
    WriteFiles(Text(data, size), folder);
    const Tree beside = folder.Below("beside");
    LinuxDisk disk;
    DiskFileSystem files;
    DiskApplication host(disk, files, ToWindowsPath(folder / "cache"));
    Use(host, ToWindowsPath(folder / "web"),
        {ToWindowsPath(folder / "user"), ToWindowsPath(folder / "all"),
         ToWindowsPath(folder / "saves")});
    Require(folder.Below("beside") == beside, "Something outside of the web has changed.");
    return 0;
}
