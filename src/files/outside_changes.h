// Remembers the stamp of each document's file when this program opened or saved it, and whether the file was in UTF-8.
// So the status bar can report that another program, or another tab, wrote or removed the file. Nothing is reloaded.
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

  // Records that the current document equals this file. `stamp` was taken before the file was read, or after it was
  // written. `utf8` is true if the text came from a UTF-8 file.
  void Note(const std::string& path, const std::optional<FileStamp>& stamp, bool utf8);

  // Compares the file on disk with its remembered state. kNone if this program neither opened nor saved the file.
  [[nodiscard]] OutsideChange OfCurrent() const;
  // True if the current document came from a UTF-8 file.
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

// The notice for the status bar, UTF-8; "" for kNone.
std::string_view OutsideNotice(OutsideChange change);

}  // namespace pelmar
