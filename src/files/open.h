// Everything that brings a file into the current tab: OpenPath with its limit of 64,000 bytes, and the commands over
// it. An open replaces the current document and asks nothing. Paths are UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "files/outside_changes.h"
#include "files/recent_files.h"
#include "platform/platform.h"
#include "shell/documents.h"
#include "shell/file_number.h"
#include "text/codepage.h"

namespace pelmar {

inline constexpr std::uint64_t kLargestDocument = 64'000;
// The filter of every system dialog that picks a document, and which of its rows is chosen at first (from 1).
inline constexpr std::string_view kDocumentFilter =
    "Všechno (*.*)|*.*|jen text (*.txt)|*.txt|dávky (*.bat)|*.bat|Html dokument (*.html)|*.html|"
    "htm dokument (*.htm)|*.htm|ini soubor (*.ini)|*.ini";
inline constexpr int kDocumentFilterIndex = 2;

// What a preview shows of a file that it can't show.
inline constexpr std::string_view kNoPreview = "Není k dispozici"_w;

class Opener {
 public:
  Opener(Documents& documents, RecentFiles& recent, OutsideChanges& outside, Platform& platform,
         FileNumber& file_number);

  // Opens a file into the current tab, or tells why it can't. A name without a full stop throws RuntimeError when the
  // text is already in, and leaves file number 1 open: required.
  void OpenPath(const std::string& path);

  // Entry 1 to 10 of the recent files; whatever fails ends the command in silence.
  void OpenRecentFile(int number);

  // The system's open dialog, then OpenPath; cancel and failures end the command in silence.
  void OpenStandard();

  // Reads the current file again after a question; failures end the command in silence.
  void ReloadFile();

  // What the preview of a file shows: its bytes, or a fixed text where it is too long or can't be read.
  std::string Preview(const std::string& path);

 private:
  Documents& documents_;
  RecentFiles& recent_;
  OutsideChanges& outside_;
  Platform& platform_;
  FileNumber& file_number_;
};

}  // namespace pelmar
