// All that the program asks of the system, behind one interface. The program's answer is Qt's (platform/qt); tests
// answer from a script. Messages and titles are UTF-8, texts of documents and the clipboard are Windows-1250. A path is
// the bytes that the system gave, UTF-8 as a rule; in a message it shows as well where it isn't.
//
// How failures are told: a call that touches a file gives an errno, 0 for none, alone or as the `error` of what else it
// gives; one whose failure has no reason that matters gives a bool or an optional. No call throws. RuntimeError is
// thrown above, where a command can't go on (shell/file_number.h has the common cases), and caught only by commands
// that end in silence or have a message of their own; what nobody catches ends the program, with its documents kept.
#pragma once

#include <cstdint>
#include <functional>
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

enum class Answer {
  kOk,
  kYes,
  kNo,
  kNone,  // a question closed without an answer; to most of them as good as No
};

struct LocalTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
};

struct FileBytes {
  int error = 0;  // 0, or the errno of the call that failed
  std::string bytes;
};

struct WriteOutcome {
  int error = 0;  // 0 or an errno
  // The file that holds the old content, where a failed write damaged that and couldn't put it back.
  std::string kept = {};
};

// Tells two contents that one path led to apart without reading them.
struct FileStamp {
  std::uint64_t device = 0, node = 0, size = 0;
  std::int64_t changed = 0;  // nanoseconds since 1970
  bool operator==(const FileStamp&) const = default;
};

struct KeyStates {
  bool caps = false;
  bool num = false;
  bool insert = false;
};

// What a text is printed in. The name is Windows-1250, the size in points.
struct PrintFont {
  std::string name;
  double size = 8;
  bool bold = false;
  bool italic = false;
};

// The paper of a print job, for as long as the job is open. Distances are dots of the printer from the left edge of
// what it can print on; lines count from 0 on each page.
class Paper {
 public:
  Paper() = default;
  Paper(const Paper&) = delete;
  Paper& operator=(const Paper&) = delete;
  virtual ~Paper() = default;

  [[nodiscard]] virtual double Width() const = 0;
  [[nodiscard]] virtual std::size_t LinesPerPage() const = 0;  // at least 1
  // Where a text ends that begins at x. A tab leads to the next tab stop.
  [[nodiscard]] virtual double EndOf(double x, std::string_view text) const = 0;
  virtual void Put(std::size_t line, double x, std::string_view text) = 0;
  virtual void NewPage() = 0;
};

struct PrintOutcome {
  int error = 0;             // 0 or an errno
  std::string printer = {};  // its name; "" where there is none to print on
  // The rest is for that case. UTF-8.
  std::string problem = {};  // why there is none
  std::string pdf = {};      // the path of the file that stands for the paper
};

// What becomes of the bytes of a file on their way into another. A result is valid until the next call.
class FileRewriter {
 public:
  FileRewriter() = default;
  FileRewriter(const FileRewriter&) = delete;
  FileRewriter& operator=(const FileRewriter&) = delete;
  virtual ~FileRewriter() = default;

  virtual std::string_view Rewrite(std::string_view piece) = 0;
  // What comes behind the last piece.
  virtual std::string_view Finish() = 0;
  // After Finish: how many of all the bytes that were given back are to stay, from the first on.
  [[nodiscard]] virtual std::uint64_t Kept() const = 0;
};

// What happens to a longer old file behind the new content.
enum class OldTail { kDrop, kKeep };

class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  // Questions to the person; they return when answered.
  virtual Answer Message(MessageType type, std::string_view text, std::string_view title) = 0;
  // Asks with a warning. True only for Yes.
  bool Confirmed(std::string_view question, std::string_view title) {
    return Message(MessageType::kYesNoWarning, question, title) == Answer::kYes;
  }
  // The system's box about a program.
  virtual void ShowAbout(std::string_view title, std::string_view text) = 0;
  // The text that was put in, nothing on cancel. Text and answer are UTF-8.
  virtual std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                              std::string_view initial) = 0;
  // The system's file dialogs. The filter is "caption|pattern|caption|pattern...", its index counts from 1.
  // Nothing on cancel.
  virtual std::optional<std::string> OpenDialog(std::string_view filter, int filter_index) = 0;
  virtual std::optional<std::string> SaveDialog(std::string_view filter, int filter_index) = 0;

  // Plain text of the clipboard, nothing where it holds none; valid until the clipboard changes. A text that another
  // program put there gets CR LF line breaks.
  virtual const std::optional<std::string>& ClipboardContent() = 0;
  std::string ClipboardText() { return ClipboardContent().value_or(std::string()); }
  // Another number after each change.
  virtual std::uint64_t ClipboardRevision() = 0;
  virtual void SetClipboardText(std::string_view text) = 0;
  virtual void ClearClipboard() = 0;

  // Files. Reading reads all, at most `limit` bytes where one is given (a longer file then gives limit bytes).
  // Writing puts the new content beside and renames it over, so that the old file stays whole until the new one is, or,
  // where that would cost the file a link or an attribute, keeps the old content until the new one is written.
  virtual bool CanRead(const std::string& path) = 0;  // opens for reading; false for a folder
  virtual FileBytes ReadFile(const std::string& path, std::optional<std::uint64_t> limit) = 0;
  virtual WriteOutcome WriteDocument(const std::string& path, std::string_view bytes) = 0;
  // The same for what is put on the disk unasked: where the file is new, only its owner can read it. 0 or errno.
  virtual int WritePrivateFile(const std::string& path, std::string_view bytes) = 0;
  // A file that only its owner can read. EEXIST where anything has that name already, links that lead nowhere included.
  virtual int WriteNewFile(const std::string& path, std::string_view bytes) = 0;  // 0 or errno
  // Hands a file to `take` piece by piece, until that returns false. 0 or errno.
  virtual int ReadByPieces(const std::string& path, const std::function<bool(std::string_view piece)>& take) = 0;
  // Reads one file and writes another, piece by piece, so that its size doesn't matter. The target is the new content
  // once that is complete, and what it was until then.
  virtual WriteOutcome RewriteFile(const std::string& source, const std::string& target, OldTail tail,
                                   FileRewriter& rewriter) = 0;
  // Nothing where the path leads to no file.
  virtual std::optional<FileStamp> Stamp(const std::string& path) = 0;
  // True where both paths lead to the same file.
  virtual bool IsSameFile(const std::string& left, const std::string& right) = 0;

  // Folders, with a separator at the end.
  virtual std::string InstallFolder() = 0;
  virtual std::string TempFolder() = 0;
  virtual std::string ShareFolder() = 0;  // what the package brings along

  // Prints what `draw` puts on the paper on the system's default printer, or on the only one. Where there is none, the
  // paper is a new PDF file in the person's documents folder. `name` (UTF-8) names the job and the file.
  virtual PrintOutcome Print(const PrintFont& font, const std::string& name,
                             const std::function<void(Paper&)>& draw) = 0;

  virtual void AddToRecentDocuments(const std::string& path) = 0;
  // Whether a program came up is not known to the caller, and nobody is told.
  virtual void OpenWithDefaultProgram(const std::string& path) = 0;
  // One more copy of this program, independent of this one, with no arguments; silent where it does not start.
  virtual void StartAnotherCopy() = 0;

  virtual LocalTime Now() = 0;
  virtual KeyStates Keys() = 0;
  // 0 <= r < 1, from the ordinary source.
  virtual double Random() = 0;
  virtual void ReseedRandom() = 0;  // from the clock
  // The indexes of the texts in the order of the Czech language, ignoring case; equal ones keep their order.
  virtual std::vector<std::size_t> SortedOrder(const std::vector<std::string_view>& texts) = 0;
  virtual void SetBusyPointer(bool busy) = 0;
};

}  // namespace pelmar
