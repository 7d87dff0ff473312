// A temporary folder, which the destructor removes. Core tests use this file too, so it includes no Qt.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace pelmar {

class TempFolder {
 public:
  TempFolder() {
    path_ = (std::filesystem::temp_directory_path() / "pelmar-test-XXXXXX").string();
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder");
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] std::string File(std::string_view name) const { return path_ + "/" + std::string(name); }

  // Writes a file and creates missing folders. Returns the path.
  std::string Put(std::string_view name, std::string_view bytes) const {
    std::string path = File(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }

 private:
  std::string path_;
};

// The bytes of a file, or "<missing>" if the file can't be opened.
inline std::string Content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return "<missing>";
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace pelmar
