#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>

namespace morpho {

// What stands below a folder, by relative path: a file's bytes, "-> " and the target of a link. A
// folder's path ends with "/".
using Tree = std::map<std::string, std::string>;

// A folder of the disk for one test, removed with everything in it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() /
                    ("morpho-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    // The path of an entry; its name is UTF-8.
    std::filesystem::path At(const std::string& name) const {
        return path_ / std::u8string(name.begin(), name.end());
    }
    std::string operator/(const std::string& name) const { return At(name).string(); }

    // Writes a file with the folders above it; returns its path.
    std::string Write(const std::string& name, const std::string& bytes) const {
        std::filesystem::create_directories(At(name).parent_path());
        std::ofstream(At(name), std::ios::binary) << bytes;
        return *this / name;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(At(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    bool Has(const std::string& name) const {
        return std::filesystem::exists(std::filesystem::symlink_status(At(name)));
    }
    // Empty also where there is no such folder.
    Tree Below(const std::string& folder) const {
        Tree tree;
        std::error_code none;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(At(folder), none)) {
            const std::string name = entry.path().lexically_relative(At(folder)).generic_string();
            if (entry.is_symlink()) {
                tree[name] = "-> " + std::filesystem::read_symlink(entry.path()).string();
            } else if (entry.is_directory()) {
                tree[name + "/"];
            } else {
                tree[name] = Read(entry.path().string());
            }
        }
        return tree;
    }
    // The folder's own files, without those of folders inside.
    Tree FilesIn(const std::string& folder) const {
        Tree files = Below(folder);
        std::erase_if(files,
                      [](const auto& file) { return file.first.find('/') != file.first.npos; });
        return files;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace morpho
