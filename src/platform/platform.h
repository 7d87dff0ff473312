// The services of the system: message boxes, clipboard, files, printing and others. platform/qt implements Platform
// with Qt, and the tests have a scripted implementation. Messages and titles are UTF-8, documents and the clipboard are
// Windows-1250. A path is the bytes that the system gave. Errors of files are errnos in the results, not exceptions.
// Call these functions from the interface thread, on which the windows run. Other threads may call only
// WritePrivateFile, at any time.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

// Message boxes by their buttons and icon.
enum class MessageType {
  kOk = 0,              // OK
  kYesNoQuestion = 36,  // Yes (default) and No, question
  kYesNoWarning = 52,   // Yes (default) and No, warning
  kOkInfo = 64,         // OK, information
  kYesNoStop = 276,     // Yes and No (default), stop
};

enum class Answer {
  kOk,
  kYes,
  kNo,
  kNone,  // the question was closed without an answer; most callers treat this as No
};

struct LocalTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
};

// The limit for ReadFile to read a file of any size.
inline constexpr std::uint64_t kAnySize = UINT64_MAX;

struct FileBytes {
  int error = 0;  // 0 or an errno
  std::string bytes;
};

struct WriteOutcome {
  int error = 0;  // 0 or an errno
  // If a failed write damaged the file and the old content couldn't be restored: the path of a copy of the old content.
  // Else "".
  std::string kept = {};
};

// Size and time usually change when a file is written or replaced. Device and inode are not compared, because on FAT
// and on some network disks they change by themselves.
struct FileStamp {
  std::uint64_t size = 0;
  std::int64_t changed = 0;  // the time of the last write, in nanoseconds since 1970
  bool operator==(const FileStamp&) const = default;
};

struct KeyStates {
  bool caps = false;
  bool num = false;
  bool insert = false;
};

// The font of a printed text. The name is Windows-1250, the size in points.
struct PrintFont {
  std::string name;
  double size = 8;
  bool bold = false;
  bool italic = false;
};

// The paper of an open print job. Distances are printer dots from the left edge of the printable area. Lines count from
// 0 on each page.
class Paper {
 public:
  Paper() = default;
  Paper(const Paper&) = delete;
  Paper& operator=(const Paper&) = delete;
  virtual ~Paper() = default;

  [[nodiscard]] virtual double Width() const = 0;
  [[nodiscard]] virtual std::size_t LinesPerPage() const = 0;  // at least 1
  // The right end of a text that begins at x. A tab leads to the next tab stop.
  [[nodiscard]] virtual double EndOf(double x, std::string_view text) const = 0;
  virtual void Put(std::size_t line, double x, std::string_view text) = 0;
  virtual void NewPage() = 0;
};

struct PrintOutcome {
  int error = 0;             // 0 or an errno
  std::string printer = {};  // the printer's name, "" if no printer could be used
  // `problem` and `pdf` are UTF-8, and set only if no printer could be used.
  std::string problem = {};  // the reason
  std::string pdf = {};      // the path of the PDF file, which was written if `error` is 0
};

// The pointer during a long command: an hourglass, or an arrow with an hourglass.
enum class BusyLook { kHourglass, kArrow };

class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  // Message boxes. A call returns when the person has answered or closed the box.
  virtual Answer Message(MessageType type, std::string_view text, std::string_view title) = 0;
  bool Confirmed(std::string_view question, std::string_view title) {
    return Message(MessageType::kYesNoWarning, question, title) == Answer::kYes;
  }
  // Shows a message box with the icon of the program.
  virtual void ShowAbout(std::string_view title, std::string_view text) = 0;
  // Asks for a line of text. Nothing if the person cancels. All texts are UTF-8.
  virtual std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                              std::string_view initial) = 0;
  // The system's file dialogs. The filter is "caption|pattern|caption|pattern...". `filter_index` counts the captions
  // from 1, and 0 means the first caption too. Nothing if the person cancels.
  virtual std::optional<std::string> OpenDialog(std::string_view filter, int filter_index) = 0;
  virtual std::optional<std::string> SaveDialog(std::string_view filter, int filter_index) = 0;

  // The plain text of the clipboard, if there is any. Line breaks of other programs become CR LF. The reference stays
  // valid. The next call after a change of the clipboard replaces the text.
  virtual const std::optional<std::string>& ClipboardContent() = 0;
  std::string ClipboardText() { return ClipboardContent().value_or(std::string()); }
  virtual void SetClipboardText(std::string_view text) = 0;
  virtual void ClearClipboard() = 0;

  // Files. ReadFile reads at most `limit` bytes. Without a limit, a file over 1 GiB gives EFBIG. A write replaces the
  // old file by a complete new file. If the folder or the old file doesn't allow this, a write copies the old content
  // to another file and then overwrites the old file (see disk_file.h).
  virtual bool CanRead(const std::string& path) = 0;  // true only for a regular file
  virtual FileBytes ReadFile(const std::string& path, std::optional<std::uint64_t> limit) = 0;
  virtual WriteOutcome WriteDocument(const std::string& path, std::string_view bytes) = 0;
  // Like WriteDocument, for the program's own files. Only the owner can read a new file. Returns 0 or an errno. May be
  // called from any thread.
  virtual int WritePrivateFile(const std::string& path, std::string_view bytes) = 0;
  // Creates a file that only its owner can read. EEXIST if the name is taken, even by a link that leads nowhere.
  virtual int WriteNewFile(const std::string& path, std::string_view bytes) = 0;  // 0 or an errno
  // Nothing on an error, for instance if there is no such file.
  virtual std::optional<FileStamp> Stamp(const std::string& path) = 0;
  // Whether both paths lead to the same file.
  virtual bool IsSameFile(const std::string& left, const std::string& right) = 0;

  // Folders, with a separator at the end.
  virtual std::string InstallFolder() = 0;
  virtual std::string TempFolder() = 0;
  virtual std::string ShareFolder() = 0;  // where the package keeps its files

  // Prints what `draw` puts on the paper. Uses the default printer, or the only printer if there is no default. If no
  // printer can be used, writes a new PDF file in the documents folder. `name` (UTF-8) names the job and the file.
  virtual PrintOutcome Print(const PrintFont& font, const std::string& name,
                             const std::function<void(Paper&)>& draw) = 0;

  virtual void AddToRecentDocuments(const std::string& path) = 0;
  // Opens a file in another program. Failures are not reported.
  virtual void OpenWithDefaultProgram(const std::string& path) = 0;
  // Starts this program once more, without arguments. Failures are not reported.
  virtual void StartAnotherCopy() = 0;

  virtual LocalTime Now() = 0;
  // Whether Caps Lock, Num Lock and Insert are on.
  virtual KeyStates Keys() = 0;
  // A number r, 0 <= r < 1, from the generator that ReseedRandom seeds.
  virtual double Random() = 0;
  virtual void ReseedRandom() = 0;  // from the clock
  // The indexes of the texts in Czech alphabetical order, ignoring case. Equal texts keep their order.
  virtual std::vector<std::size_t> SortedOrder(const std::vector<std::string_view>& texts) = 0;
  virtual void SetBusyPointer(bool busy, BusyLook look) = 0;
};

// Shows the busy pointer as long as the object exists.
class BusyPointer {
 public:
  explicit BusyPointer(Platform& platform, BusyLook look = BusyLook::kHourglass) : platform_(platform), look_(look) {
    platform_.SetBusyPointer(true, look_);
  }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer() { platform_.SetBusyPointer(false, look_); }

 private:
  Platform& platform_;
  BusyLook look_;
};

}  // namespace pelmar
