// The document behind a text box: Windows-1250 bytes, one selection, the line index, undo and redo.
// Positions are byte offsets from 0 and exact also between a CR and its LF; only the pair CR LF breaks a line.
// Listeners hear each change of content once, after text and selection are in their new state, and hear nothing
// when the text is set to the value that it already has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text/listeners.h"

namespace pelmar {

// One change of content: `removed` bytes at `pos` gave way to `inserted` bytes.
struct TextChange {
  std::size_t pos = 0;
  std::size_t removed = 0;
  std::size_t inserted = 0;
  bool whole = false;  // SetText put another text in; caret and undo began afresh
};

class TextBuffer {
 public:
  using ChangeListener = std::function<void(const TextChange&)>;
  using SelectionListener = std::function<void()>;

  TextBuffer();
  TextBuffer(const TextBuffer&) = delete;
  TextBuffer& operator=(const TextBuffer&) = delete;

  // Called after each change of content, in the order of the calls, for as long as the handle lives.
  [[nodiscard]] Listening OnChange(ChangeListener listener) { return changed_.Add(std::move(listener)); }
  // Called after every move of caret or anchor that no change of content caused.
  [[nodiscard]] Listening OnSelection(SelectionListener listener) { return moved_.Add(std::move(listener)); }

  [[nodiscard]] const std::string& Text() const { return text_; }
  [[nodiscard]] std::size_t Size() const { return text_.size(); }
  [[nodiscard]] bool Empty() const { return text_.empty(); }
  // How many changes of content there were. A listener that changes the text itself makes others hear of its change
  // before the one that caused it; those who follow step by step see that here.
  [[nodiscard]] std::uint64_t Revision() const { return revision_; }

  // Replaces the whole text, puts the caret at 0 and forgets undo, also when the text is the same; only then no
  // change is told.
  void SetText(std::string text);

  // The selection. Values are clipped to the text; setting the start collapses the selection, setting the length
  // keeps the start and puts the caret at the end.
  [[nodiscard]] std::size_t SelStart() const { return anchor_ < caret_ ? anchor_ : caret_; }
  [[nodiscard]] std::size_t SelLength() const { return anchor_ < caret_ ? caret_ - anchor_ : anchor_ - caret_; }
  [[nodiscard]] std::size_t SelEnd() const { return SelStart() + SelLength(); }
  [[nodiscard]] bool HasSelection() const { return anchor_ != caret_; }
  [[nodiscard]] std::string_view SelText() const { return std::string_view(text_).substr(SelStart(), SelLength()); }
  void SetSelStart(std::size_t start);
  void SetSelLength(std::size_t length);

  // The moving end and the fixed end of the selection.
  [[nodiscard]] std::size_t Caret() const { return caret_; }
  [[nodiscard]] std::size_t Anchor() const { return anchor_; }
  void Select(std::size_t anchor, std::size_t caret);

  // Puts text over the selection and leaves the caret behind it. One step of undo. Putting nothing over nothing, or
  // a text over itself, tells no change.
  void ReplaceSelection(std::string_view text);
  // The same for a range that need not be selected.
  void Replace(std::size_t pos, std::size_t length, std::string_view text);

  // Editing by hand: runs of typing, and runs of deleting, are one step of undo each, until the caret moves elsewhere
  // or a line ends.
  void Type(std::string_view text);
  void EraseBefore(std::size_t count);  // with a selection: the selection
  void EraseAfter(std::size_t count);   // with a selection: the selection

  [[nodiscard]] bool CanUndo() const { return !undo_.empty(); }
  [[nodiscard]] bool CanRedo() const { return !redo_.empty(); }
  // Take back or repeat one step. Undo brings the selection of before the step back, redo leaves the caret behind the
  // repeated text. False where there is none.
  bool Undo();
  bool Redo();

  // Lines, numbered from 0. A text that ends in CR LF has an empty last line.
  [[nodiscard]] std::size_t LineCount() const { return line_starts_.size(); }
  [[nodiscard]] std::size_t LineOf(std::size_t pos) const;  // a position between CR and LF is on the line that ends
  [[nodiscard]] std::size_t LineStart(std::size_t line) const { return line_starts_[line]; }
  [[nodiscard]] std::size_t LineEnd(std::size_t line) const;  // before the CR LF
  [[nodiscard]] std::string_view Line(std::size_t line) const;

 private:
  enum class Run : std::uint8_t { kNone, kTyping, kErasing };
  struct Step {
    std::size_t pos = 0;
    std::string removed;
    std::string inserted;
    std::size_t anchor_before = 0;
    std::size_t caret_before = 0;
  };

  void Edit(std::size_t pos, std::size_t length, std::string_view text, Run run);
  void Apply(std::size_t pos, std::size_t length, std::string_view text);
  void Remember(std::size_t pos, std::size_t length, std::string_view text, Run run);
  void TrimHistory();
  bool TakeBack(std::vector<Step>& from, std::vector<Step>& to);
  void IndexLines();

  std::string text_;
  std::size_t anchor_ = 0;
  std::size_t caret_ = 0;
  std::vector<std::size_t> line_starts_;
  std::vector<Step> undo_;
  std::vector<Step> redo_;
  std::size_t history_bytes_ = 0;
  Run run_ = Run::kNone;
  std::uint64_t revision_ = 0;
  Listeners<const TextChange&> changed_;
  Listeners<> moved_;
};

}  // namespace pelmar
