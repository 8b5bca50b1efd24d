#pragma once

#include "platform/colorizer.h"

namespace morpho {

// Makes the registered recolouring component, a COM object.
class ComColorizerFactory : public ColorizerFactory {
  public:
    std::unique_ptr<Colorizer> Create() override;
};

}  // namespace morpho
