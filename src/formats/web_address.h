#pragma once

#include <string>
#include <string_view>

namespace morpho {

// Addresses of pages and pictures, UTF-8. Those of a web on disk are "file:///Z:/home/ann/web/x".

// Whether an address names its scheme, "http:" or "file:". A drive, "C:", looks the same.
bool IsAbsoluteAddress(std::string_view url);

// What `url` means in the page at `base`, as a browser takes it: with "." and ".." resolved and "\"
// taken like "/". Query and fragment stay. "/" leads to `root` for a page below that address, else
// to the root of the page's host or drive. An absolute address comes back unchanged.
std::string CombinedAddress(std::string_view base, std::string_view url,
                            std::string_view root = {});

// The address of a file spelled like EscapedAddress, whatever its own way of escaping; without
// query and fragment, which mean nothing to a disk.
std::string FileAddress(std::string_view url);

// An address made of names of the disk, with all that an address would misread escaped: "%", "#",
// "?" and control characters. Blanks and letters of any language stay.
std::string EscapedAddress(std::string_view spelled);

}  // namespace morpho
