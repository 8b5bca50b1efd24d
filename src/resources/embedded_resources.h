#pragma once

#include "platform/resources.h"

namespace morpho {

// The resources compiled into the program; resource_ids.h lists them.
class EmbeddedResources final : public Resources {
  public:
    std::span<const std::byte> Data(std::string_view type, int id) const override;
    std::string String(int id) const override;
};

}  // namespace morpho
