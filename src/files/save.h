// Saves the text, or a part of it, to a file, and inserts the first field of a file into the text. A saved file holds
// exactly the bytes of the saved text; no line end is added. A path is the bytes that the system gave. Texts are
// Windows-1250.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "files/recent_files.h"
#include "platform/platform.h"
#include "shell/documents.h"
#include "shell/file_number.h"

namespace pelmar {

class Saver {
 public:
  Saver(Documents& documents, RecentFiles& recent, Platform& platform, FileNumber& file_number);

  // Saves the document and makes the path its file. Asks before a file is overwritten. The text may change during the
  // question; the text after the answer is saved. Reports a failure, but doesn't undo the steps before the failure.
  void SaveToPath(const std::string& path);

  // Writes a text to a file that doesn't become the file of the document. Asks before a file is overwritten, and
  // reports a failure.
  void SaveTextCopy(const std::string& path, std::string_view text);

  // Shows the system's save dialog, then calls SaveTextCopy with the selection. Does nothing if nothing is selected.
  void SaveSelectionAs();

  // Shows the system's save dialog, then calls SaveToPath.
  void SaveStandard();

  // Asks, and after Yes saves to the current path as SaveToPath does.
  void SaveFast();

  // Shows the system's open dialog and replaces the selection by the file's first field. Changes nothing if the file is
  // empty or can't be read, or if file number 1 is open.
  void InsertFromFile();

 private:
  // Asks before a text in two encodings is written over a UTF-8 file. False if the answer isn't Yes.
  bool MayMixEncodings(const std::string& path);
  // SaveToPath without the question of MayMixEncodings.
  void SaveDocument(const std::string& path);
  bool MayWrite(const std::string& path);
  WriteOutcome WriteBytes(const std::string& path, std::string_view bytes);
  // Writes the file, calls `written` and adds the file to the recent ones. Reports a failure of these steps.
  void Write(const std::string& path, std::string_view text, const std::function<void()>& written);
  void ReportError(const std::string& path, const WriteOutcome& outcome);

  Documents& documents_;
  RecentFiles& recent_;
  Platform& platform_;
  FileNumber& file_number_;
};

// The question before an existing file is overwritten, UTF-8.
std::string OverwriteQuestion(const std::string& path);

// Joins the three fields of the dialog Ulož to a path. The "." before the extension is always written.
std::string TargetPath(std::string_view folder, std::string_view name, std::string_view extension);

// The first field of comma-separated bytes: up to the first comma or line end, without blanks and TABs around it. Of a
// field in double quotes, the bytes between the quotes, or all bytes after the first quote if there is no second quote.
std::string_view FirstField(std::string_view bytes);

}  // namespace pelmar
