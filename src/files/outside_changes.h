// What is known of the documents' files: whether another program, or another tab, wrote or removed one since it was
// opened or saved here, and whether it was in UTF-8. Nothing is reloaded: the person is told in the status bar.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/documents.h"

namespace pelmar {

enum class OutsideChange { kNone, kWritten, kGone };

class OutsideChanges {
 public:
  OutsideChanges(const Documents& documents, Platform& platform) : documents_(documents), platform_(platform) {}

  // The current document is what this file holds. `stamp` was taken before the file was read, or after it was written;
  // `utf8` says that the text came from a file in UTF-8.
  void Note(const std::string& path, const std::optional<FileStamp>& stamp, bool utf8);

  // Asks the disk about the current document's file; kNone where that was neither opened nor saved here.
  [[nodiscard]] OutsideChange OfCurrent() const;
  // True where the current document came from a file in UTF-8.
  [[nodiscard]] bool CurrentWasUtf8() const;

 private:
  struct Known {
    std::string path;
    std::optional<FileStamp> stamp;
    bool utf8 = false;
  };
  [[nodiscard]] const Known* OfCurrentPath() const;

  const Documents& documents_;
  Platform& platform_;
  std::array<Known, kTabCount> known_;
};

// What a person is told of it, UTF-8; "" for kNone.
std::string_view OutsideNotice(OutsideChange change);

}  // namespace pelmar
