#pragma once

#include <string>
#include <string_view>

#include "linux/descriptor.h"
#include "web_host/disk.h"

namespace morpho {

// Replaces a file of the disk as a whole, or creates it: the new contents are written to a
// temporary file in the same folder, which takes the file's name with Commit. Without Commit the
// file stays as it was. An existing file's mode is kept, and its owner and group as far as the user
// may give them; a link is replaced, not followed. Failures throw RunTimeError naming the file.
class WholeFile : public NewFile {
  public:
    WholeFile(std::string diskPath, Durability durability);
    // The same in a folder that is open; names are bytes, as on the disk. Mode and owner are those
    // of `model`, another file of the folder, where one is given.
    WholeFile(const Descriptor& folder, const std::string& folderPath, std::string name,
              Durability durability, std::string model = {});
    ~WholeFile() override;
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void Write(std::string_view bytes) override;
    // Writes the rest of the open file; `source` is its path, for the error.
    void CopyFrom(const Descriptor& file, const std::string& source);
    void Commit() override;

  private:
    void Open();
    void OpenTemporary();
    void KeepOwnerAndMode();

    std::string path_;  // for messages
    std::string name_;
    std::string model_;          // whose mode and owner the file gets
    std::string temporaryName_;  // empty once there is no such file
    Durability durability_;
    Descriptor folder_;
    Descriptor file_;
};

// Whether a regular file, no link, stands at this path and holds the same bytes as the open
// `source`. Reads `source` from its beginning and rewinds it. `sourcePath` is for the error.
bool HoldsSameBytes(const std::string& diskPath, const Descriptor& source,
                    const std::string& sourcePath);

// At most `count` bytes of the open file from `offset` on, fewer only where it ends; `diskPath` is
// for the error.
std::string ReadPiece(const Descriptor& file, std::uint64_t offset, std::size_t count,
                      const std::string& diskPath);

// Everything in the open regular file, for reading small ones; `diskPath` is for the error.
std::string ReadWhole(const Descriptor& file, const std::string& diskPath);

// Writes all the bytes; false when that fails, with the reason in errno.
bool WriteAll(int number, std::string_view bytes);

}  // namespace morpho
