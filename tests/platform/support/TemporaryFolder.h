// A folder on the real disk that lives as long as a test.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tarvik {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name =
        (std::filesystem::canonical(std::filesystem::temp_directory_path()) / "tarvik-XXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  std::filesystem::path Make(const std::string& folder) const {
    std::filesystem::create_directories(path_ / folder);
    return path_ / folder;
  }

  /// Writes a file and makes the folders above it.
  std::filesystem::path Put(const std::string& name, const std::string& content) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file;
  }

  static std::string Content(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tarvik
