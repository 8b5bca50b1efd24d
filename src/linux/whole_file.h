#pragma once

#include <string>
#include <string_view>

#include "linux/descriptor.h"

namespace morpho {

// Whether what is written must outlive a power failure.
enum class Durability { kFlushed, kUnflushed };

// Replaces a file of the disk as a whole, or creates it: the new contents are written beside it and
// take its place with Commit. Without Commit the file stays as it was. An existing file's mode is
// kept, and its owner and group as far as the user may give them; a link is replaced, not followed.
// Failures throw RunTimeError naming the file.
class WholeFile {
  public:
    WholeFile(std::string diskPath, Durability durability);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void Write(std::string_view bytes);
    // Writes all that is left to read there; `source` is its path, for the error.
    void CopyFrom(const Descriptor& file, const std::string& source);
    void Commit();

  private:
    void KeepOwnerAndMode();
    void OpenBeside();

    std::string path_;
    std::string besidePath_;
    Durability durability_;
    Descriptor file_;
};

// Whether a file of this name is what a WholeFile is writing, or what one left whose program died.
bool IsBesideName(std::string_view name);
// The latter only.
bool IsAbandonedBesideName(std::string_view name);

// Whether a regular file, not a link to one, stands at this path and holds what there is to read in
// the open `source`, which is at its beginning and is so again. `sourcePath` is for the error.
bool HoldsSameBytes(const std::string& diskPath, const Descriptor& source,
                    const std::string& sourcePath);

// Everything in the open regular file, for reading small ones; `diskPath` is for the error.
std::string ReadWhole(const Descriptor& file, const std::string& diskPath);

// Writes all the bytes; false when that fails, with the reason in errno.
bool WriteAll(int number, std::string_view bytes);

}  // namespace morpho
