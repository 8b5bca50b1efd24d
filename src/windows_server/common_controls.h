#pragma once

#include "windows_system/win32.h"

namespace morpho {

// The release 6 of the common controls, which this module's manifest asks for. The host's process
// may use another one: windows get it that are made while it is active.
class CommonControls {
  public:
    CommonControls();
    ~CommonControls();
    CommonControls(const CommonControls&) = delete;
    CommonControls& operator=(const CommonControls&) = delete;

    // Active on this thread while it lives.
    class Active {
      public:
        explicit Active(const CommonControls& controls);
        ~Active();
        Active(const Active&) = delete;
        Active& operator=(const Active&) = delete;

      private:
        ULONG_PTR cookie_ = 0;
        bool isActive_;
    };

  private:
    HANDLE context_;
};

}  // namespace morpho
