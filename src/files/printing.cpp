#include "files/printing.h"

#include <optional>

#include "platform/error_text.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "shell/common.h"
#include "shell/editor.h"

namespace pelmar {
namespace {

constexpr std::string_view kMargin = "ZZZZZZZZ";
constexpr std::string_view kBreaks = "\r\n";

// Removes and returns the part of `text` before the first character that is in `ends`. Without such a character, the
// part is the whole text.
std::string_view TakeUpTo(std::string_view& text, std::string_view ends) {
  const std::string_view taken = text.substr(0, text.find_first_of(ends));
  text.remove_prefix(taken.size());
  return taken;
}

// The length of the line break at the start of `text`: CR LF, or a lone CR or LF.
std::size_t BreakLength(std::string_view text) { return text.starts_with(kCrLf) ? 2 : 1; }

class WordWrap {
 public:
  using EndOf = std::function<double(double x, std::string_view text)>;

  WordWrap(double page_width, const EndOf& end_of) : limit_(page_width - end_of(0, kMargin)), end_of_(end_of) {}

  void AddWord(std::string_view word) {
    const std::string_view first = TakeUpTo(word, kBreaks);
    if (end_of_(x_, first) > limit_) EndLine();
    Put(first);
    while (!word.empty()) {
      word.remove_prefix(BreakLength(word));
      EndLine();
      Put(TakeUpTo(word, kBreaks));
    }
    x_ = end_of_(x_, " ");
  }

  [[nodiscard]] std::vector<PrintedPiece> TakePieces() { return std::move(pieces_); }

 private:
  void EndLine() {
    ++line_;
    x_ = 0;
  }

  void Put(std::string_view text) {
    if (text.empty()) return;
    pieces_.push_back({line_, x_, text});
    x_ = end_of_(x_, text);
  }

  double limit_;
  const EndOf& end_of_;
  std::vector<PrintedPiece> pieces_;
  std::size_t line_ = 0;
  double x_ = 0;
};

void PutOnPages(const std::vector<PrintedPiece>& pieces, Paper& paper) {
  const std::size_t lines = paper.LinesPerPage();
  std::size_t page = 0;
  for (const PrintedPiece& piece : pieces) {
    for (; page < piece.line / lines; ++page) paper.NewPage();
    paper.Put(piece.line % lines, piece.x, piece.text);
  }
}

// The selection or the whole text, or nothing if the person closed the question without an answer.
std::optional<std::string> TextToPrint(Editor& e) {
  if (!e.text.HasSelection()) return e.text.Text();
  switch (e.platform.Message(MessageType::kYesNoWarning, "Tisknout pouze výběr ?", "Tisk")) {
    case Answer::kYes:
      return std::string(e.text.SelText());
    case Answer::kNo:
      return e.text.Text();
    default:
      return std::nullopt;
  }
}

}  // namespace

std::vector<PrintedPiece> LayOutForPrint(std::string_view text, double page_width,
                                         const std::function<double(double x, std::string_view text)>& end_of) {
  WordWrap wrap(page_width, end_of);
  while (!text.empty()) {
    wrap.AddWord(TakeUpTo(text, " "));
    if (!text.empty()) text.remove_prefix(1);
  }
  return wrap.TakePieces();
}

std::string PrintName(std::string_view path) {
  const std::string_view name = NameOf(path);
  return name.empty() ? "Pelmar VEX" : std::string(name);
}

namespace {

PrintOutcome PutOnPaper(Editor& e, const EditorLook& look, const std::string& text) {
  const BusyPointer busy(e.platform);
  return e.platform.Print({look.font_name, look.font_size, look.bold, look.italic},
                          PrintName(e.documents.CurrentPath()), [&text](Paper& paper) {
                            const auto end_of = [&paper](double x, std::string_view piece) {
                              return paper.EndOf(x, piece);
                            };
                            PutOnPages(LayOutForPrint(text, paper.Width(), end_of), paper);
                          });
}

}  // namespace

void PrintDocument(Editor& e, const EditorLook& look) {
  const std::optional<std::string> text = TextToPrint(e);
  if (!text) return;
  const PrintOutcome outcome = PutOnPaper(e, look, *text);
  if (!outcome.printer.empty()) {
    if (outcome.error != 0) throw RuntimeError(outcome.error, "Tisk na tiskárně " + outcome.printer + " se nezdařil");
    return;
  }
  const bool printed = outcome.error == 0;
  e.platform.Message(MessageType::kOkInfo,
                     outcome.problem +
                         (printed ? " Text je vytištěn do souboru\r\n" : " Text nelze vytisknout ani do souboru\r\n") +
                         outcome.pdf + (printed ? "" : "\r\n" + ErrorText(outcome.error)),
                     "Tisk");
}

void AddPrintCommands(Editor& editor, MainLook& look) {
  for (const std::string_view name : {"mnuprint", "Print"})
    editor.commands.Add(name, [&editor, &look] { PrintDocument(editor, look.Look()); });
}

}  // namespace pelmar
