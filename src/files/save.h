// All ways of writing the text or a part of it to a file, and the one way of reading a file into the middle of the
// text. A file is the text byte for byte, with no line end added. Paths are UTF-8, texts Windows-1250.
#pragma once

#include <string>
#include <string_view>

#include "files/outside_changes.h"
#include "files/recent_files.h"
#include "platform/platform.h"
#include "shell/documents.h"
#include "shell/file_number.h"

namespace pelmar {

class Saver {
 public:
  Saver(Documents& documents, RecentFiles& recent, OutsideChanges& outside, Platform& platform,
        FileNumber& file_number);

  // Saves the document and makes the path its file. Asks before it overwrites, and takes the text as it is when that is
  // answered; what fails is told, and steps already done stay done.
  void SaveToPath(const std::string& path);

  // Writes a file; the document stays as it was.
  void SaveTextCopy(const std::string& path, std::string_view text);

  // Asks for a name and writes the selected text; nothing with an empty selection.
  void SaveSelectionAs();

  // The system's save dialog, then SaveToPath.
  void SaveStandard();

  // Saves to the current path after a question of its own.
  void SaveFast();

  // The system's open dialog, then the file's first field over the selection.
  void InsertFromFile();

 private:
  // Asks, once for each file, before a text of two encodings is written over a file that is in UTF-8.
  bool MayMixEncodings(const std::string& path);
  bool MayWrite(const std::string& path);
  WriteOutcome Write(const std::string& path, std::string_view text);
  void TellError(const std::string& path, const WriteOutcome& outcome);

  Documents& documents_;
  RecentFiles& recent_;
  OutsideChanges& outside_;
  Platform& platform_;
  FileNumber& file_number_;
  std::string agreed_to_mix_;  // the path of the file that MayMixEncodings was answered Yes for
};

// What a person is asked before a file that is there is written over, UTF-8.
std::string OverwriteQuestion(const std::string& path);

// The path that Ulož builds from its three fields; the dot is always there.
std::string TargetPath(std::string_view folder, std::string_view name, std::string_view extension);

// One field as the delimited read takes it: up to the first comma or line end, without blanks around it; a field that
// begins with a double quote is taken up to the closing one, commas and line ends included.
std::string_view FirstField(std::string_view bytes);

}  // namespace pelmar
