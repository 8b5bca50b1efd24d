#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace morpho {

// The data compiled into the program: pictures, the preview template, the string table.
class Resources {
  public:
    virtual ~Resources() = default;

    // The bytes of the resource of this type and id; empty when there is none. They live as long as
    // the program.
    virtual std::span<const std::byte> Data(std::string_view type, int id) const = 0;
    // The same bytes as a string.
    std::string Bytes(std::string_view type, int id) const {
        const auto data = Data(type, id);
        return {reinterpret_cast<const char*>(data.data()), data.size()};
    }
    // String `id` of the string table, UTF-8; empty when there is none.
    virtual std::string String(int id) const = 0;
};

}  // namespace morpho
