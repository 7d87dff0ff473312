// The `IMG` tag, from the fields of its dialog.
#pragma once

#include <optional>
#include <string>

namespace pelmar {

enum class ImageAlign { kTop, kMiddle, kBottom, kLeft, kRight };

// Texts are Windows-1250. Numbers are texts, as the labels of the dialog show them, for example " 10" or " 10%".
struct ImageSpec {
  std::string path;
  bool relative = false;
  std::optional<std::string> alt;
  std::optional<ImageAlign> align;
  struct Size {
    std::string width, height;
  };
  std::optional<Size> size;
  struct Space {
    std::string vertical, horizontal;
  };
  std::optional<Space> space;
  std::optional<std::string> border;
  std::optional<std::string> low_source;
  std::optional<std::string> map;
};

std::string ImageTag(const ImageSpec& image);

}  // namespace pelmar
