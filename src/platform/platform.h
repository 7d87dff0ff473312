// All that the program asks of the system, behind one interface. The program's answer is Qt's (platform/qt); tests
// answer from a script. Paths, messages and titles are UTF-8; texts of documents and the clipboard are Windows-1250.
// No function throws unless it says so; failures come back as values.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

// The message boxes of the program, by their buttons and picture.
enum class MessageType {
  kOk = 0,              // OK
  kYesNoQuestion = 36,  // Yes (default) and No, question
  kYesNoWarning = 52,   // Yes (default) and No, warning
  kOkInfo = 64,         // OK, information
  kYesNoStop = 276,     // Yes and No (default), stop
};

enum class Answer { kOk, kYes, kNo };

struct LocalTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
};

struct FileBytes {
  int error = 0;  // 0, or the errno of the call that failed
  std::string bytes;
};

struct KeyStates {
  bool caps = false;
  bool num = false;
  bool insert = false;
};

class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  // Questions to the person; they return when answered. Closing a box by its window counts as No.
  virtual Answer Message(MessageType type, std::string_view text, std::string_view title) = 0;
  // The system's box about a program.
  virtual void ShowAbout(std::string_view title, std::string_view text) = 0;
  // The text that was put in, nothing on cancel. Text and answer are UTF-8.
  virtual std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                              std::string_view initial) = 0;
  // The system's file dialogs. The filter is "caption|pattern|caption|pattern...", its index counts from 1.
  // Nothing on cancel.
  virtual std::optional<std::string> OpenDialog(std::string_view filter, int filter_index) = 0;
  virtual std::optional<std::string> SaveDialog(std::string_view filter, int filter_index) = 0;

  // Plain text of the clipboard; "" where it holds none. A text that another program put there gets CR LF line breaks.
  virtual std::string ClipboardText() = 0;
  virtual bool ClipboardHasText() = 0;
  virtual void SetClipboardText(std::string_view text) = 0;
  virtual void ClearClipboard() = 0;

  // Files. Reading reads all, at most `limit` bytes where one is given (a longer file then gives limit bytes).
  // Writing puts the new content beside and renames it over, so that the old file stays whole until the new one is.
  virtual bool CanRead(const std::string& path) = 0;  // opens for reading; false for a folder
  virtual FileBytes ReadFile(const std::string& path, std::optional<std::uint64_t> limit) = 0;
  virtual int WriteFile(const std::string& path, std::string_view bytes) = 0;  // 0 or errno
  // A file that only its owner can read. EEXIST where anything has that name already, links that lead nowhere included.
  virtual int WriteNewFile(const std::string& path, std::string_view bytes) = 0;  // 0 or errno
  virtual bool RemoveFile(const std::string& path) = 0;

  // Folders, with a separator at the end.
  virtual std::string InstallFolder() = 0;
  virtual std::string TempFolder() = 0;
  virtual std::string ShareFolder() = 0;  // what the package brings along

  virtual void AddToRecentDocuments(const std::string& path) = 0;
  virtual bool OpenWithDefaultProgram(const std::string& path) = 0;
  // One more copy of this program, independent of this one, with no arguments.
  virtual bool StartAnotherCopy() = 0;

  virtual LocalTime Now() = 0;
  virtual KeyStates Keys() = 0;
  // 0 <= r < 1, from the ordinary source.
  virtual double Random() = 0;
  virtual void ReseedRandom() = 0;  // from the clock
  // < 0, 0, > 0 in the order of the Czech language, ignoring case.
  virtual int CompareText(std::string_view left, std::string_view right) = 0;
  // The indexes of the texts in that order, rising; equal ones keep theirs.
  virtual std::vector<std::size_t> SortedOrder(const std::vector<std::string_view>& texts) = 0;
  virtual void SetBusyPointer(bool busy) = 0;
};

}  // namespace pelmar
