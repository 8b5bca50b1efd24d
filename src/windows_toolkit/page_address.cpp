#include "windows_toolkit/page_address.h"

namespace morpho {

std::string PageAddress(std::string_view path) {
    // A share (\\server\share) brings the slashes along.
    std::string address = path.starts_with("\\\\") ? "file:" : "file:///";
    for (const char character : path) {
        switch (character) {
            case '\\':
                address += '/';
                break;
            case '%':
                address += "%25";
                break;
            case '#':
                address += "%23";
                break;
            default:
                address += character;
        }
    }
    return address;
}

}  // namespace morpho
