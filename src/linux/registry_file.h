#pragma once

#include <string>

#include "shared/memory_registry.h"

namespace morpho {

// The current user's settings, kept in a text file that regedit could import. Several programs may
// use one file: each change locks the file, reads it again, and replaces it as a whole. Where the
// file cannot be written, changes return an error code and are not made.
class RegistryFile : public MemoryRegistry {
  public:
    // `diskPath` need not exist, nor its folder; a link is followed. A file that cannot be read
    // has no values, and is never written.
    RegistryFile(std::string diskPath, RegistryData machine);

  protected:
    std::int32_t Change(const Work& work) override;

  private:
    RegistryData Load() const;
    void Save(const RegistryData& data) const;

    std::string path_;
};

}  // namespace morpho
