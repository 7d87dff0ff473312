// Which documents' files were written or taken away since they were opened or saved here, by another program or out of
// another tab. Nothing is reloaded by itself: the person is told in the status bar.
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

  // The current document is what this file holds. `stamp` is the file's from before it was read, or behind the write.
  void Note(const std::string& path, const std::optional<FileStamp>& stamp);

  // Asks the disk about the current document's file; kNone where that was neither opened nor saved here.
  [[nodiscard]] OutsideChange OfCurrent() const;

 private:
  struct Known {
    std::string path;
    FileStamp stamp;
  };

  const Documents& documents_;
  Platform& platform_;
  std::array<std::optional<Known>, kTabCount> known_;
};

// What a person is told of it, UTF-8; "" for kNone.
std::string_view OutsideNotice(OutsideChange change);

}  // namespace pelmar
