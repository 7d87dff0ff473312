// Opens files into the current tab. The opened file replaces the current document. Only ReloadFile warns that unsaved
// changes will be lost. A path is the bytes that the system gave.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "files/recent_files.h"
#include "platform/platform.h"
#include "shell/documents.h"
#include "shell/file_number.h"
#include "text/codepage.h"

namespace pelmar {

inline constexpr std::uint64_t kLargestDocument = 64'000;  // bytes
// A read of this many bytes shows whether a file is longer than kLargestDocument.
inline constexpr std::uint64_t kReadLimit = kLargestDocument + 1;
// The filter of the system's dialogs that pick a document, and the number of the filter's initial row (from 1).
inline constexpr std::string_view kDocumentFilter =
    "Všechno (*.*)|*.*|jen text (*.txt)|*.txt|dávky (*.bat)|*.bat|Html dokument (*.html)|*.html|"
    "htm dokument (*.htm)|*.htm|ini soubor (*.ini)|*.ini";
inline constexpr int kDocumentFilterIndex = 2;

inline constexpr std::string_view kNoPreview = "Není k dispozici"_w;

class Opener {
 public:
  Opener(Documents& documents, RecentFiles& recent, Platform& platform, FileNumber& file_number);

  // Opens a file. Shows a message if the file can't be opened or is too long, or if file number 1 is open. Throws
  // RuntimeError if reading fails. required: a name without an extension throws after the text has been loaded, and
  // leaves file number 1 open.
  void OpenPath(const std::string& path);

  // Opens entry 1 to 10 of the recent files. Ignores a RuntimeError of OpenPath.
  void OpenRecentFile(int number);

  // Shows the system's open dialog and opens the selected file. Ignores a RuntimeError of OpenPath.
  void OpenStandard();

  // Asks, and after Yes opens the current file again. Ignores a RuntimeError of OpenPath.
  void ReloadFile();

  // The bytes of a file, or kNoPreview if the file is too long or can't be read, or if file number 1 is open.
  std::string Preview(const std::string& path);

 private:
  void OpenQuietly(const std::string& path);

  Documents& documents_;
  RecentFiles& recent_;
  Platform& platform_;
  FileNumber& file_number_;
};

}  // namespace pelmar
