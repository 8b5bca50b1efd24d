#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace morpho {

// What is compiled into the program beside its code.
class Resources {
  public:
    virtual ~Resources() = default;

    // The bytes of the resource of this type and id; empty when there is none. They live as long as
    // the program.
    virtual std::span<const std::byte> Data(std::string_view type, int id) const = 0;
    // The same as a text of bytes.
    std::string Bytes(std::string_view type, int id) const {
        const auto data = Data(type, id);
        return {reinterpret_cast<const char*>(data.data()), data.size()};
    }
    // String `id` of the string table, UTF-8; empty when there is none.
    virtual std::string String(int id) const = 0;
};

}  // namespace morpho
