#include "image_editor/image_world.h"

#include <algorithm>

namespace morpho::test {

std::string Gif(int width, int height) {
    const auto little = [](int value) {
        return std::string{static_cast<char>(value & 0xFF), static_cast<char>(value >> 8)};
    };
    return "GIF89a" + little(width) + little(height);
}

std::string Recoloured(const std::string& picture, int hue) {
    return picture + "|h" + std::to_string(hue) + " s1 b1";
}

ImageWindow::ImageWindow() {
    constexpr const char* kSettings = "Software\\VB and VBA Program Settings\\Image Morpho\\Window";
    world.registry.Put(kCurrentUser, kSettings, "Logging", "2");
    world.registry.Put(kCurrentUser, kSettings, "Splash", "0");
    for (const char* path : {"C:\\Pictures\\a.gif", "C:\\Web\\sky.gif", "C:\\Web\\images\\b.gif"})
        world.files.PutFile(path, gif);
    // The size stands in the frame header.
    world.files.PutFile("C:\\Web\\images\\c.jpg",
                        std::string("\xFF\xD8\xFF\xC0\0\x0B\x08\0\x1E\0\x28\x01\x01\x11\0", 15));
    world.automation.whenCalled = [this](std::string_view method) {
        if (method != "vtiGetDocToFile") return;
        const std::string& call = world.automation.calls.back();
        const std::size_t comma = call.find(", ");
        std::string file = call.substr(0, comma);
        file.erase(0, file.find("Web/") + 4);
        std::replace(file.begin(), file.end(), '/', '\\');
        world.files.Copy("C:\\Web\\" + file, call.substr(comma + 2));
    };
}

frmImageMorpho& ImageWindow::Open(std::optional<ImageLocation> image) {
    window.emplace(world.program);
    if (image) window->OpenAtStart(*image);
    window->Load();
    return *window;
}

Lines ImageWindow::Messages() const {
    Lines lines;
    for (const HeadlessToolkit::Message& message : world.toolkit.Messages())
        lines.push_back(message.title + ": " + message.text);
    return lines;
}

}  // namespace morpho::test
