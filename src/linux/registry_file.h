#pragma once

#include <string>

#include "shared/memory_registry.h"

namespace morpho {

// The current user's settings, kept in a text file that regedit could import. Several programs may
// use one file: each change is made, under a lock, on what the file holds by then, and replaces the
// file as a whole. Where the file cannot be written, changes return an error code and are not made.
class RegistryFile : public MemoryRegistry {
  public:
    // `diskPath` need not exist, nor its folder; where it is a link, what it leads to counts. A
    // file that cannot be read has no values, and is not written either.
    RegistryFile(std::string diskPath, RegistryData machine);

  protected:
    std::int32_t Change(const Work& work) override;

  private:
    RegistryData Load() const;
    void Save(const RegistryData& data) const;

    std::string path_;
};

}  // namespace morpho
