// The document in a text box: Windows-1250 bytes, one selection, an index of the lines, undo and redo. Positions are
// byte offsets from 0 and may lie between a CR and its LF. Only CR LF breaks a line. Each change of the text is
// notified once, when text and selection have their new values. An edit that leaves the text the same only moves the
// caret. Such an edit is no change and no step of undo.
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

// A change of the text: at `pos`, `inserted` bytes replaced `removed` bytes.
struct TextChange {
  std::size_t pos = 0;
  std::size_t removed = 0;
  std::size_t inserted = 0;
  bool whole = false;  // a new text from SetText, which also resets caret and undo
};

class TextBuffer {
 public:
  using ChangeListener = std::function<void(const TextChange&)>;
  using SelectionListener = std::function<void()>;

  TextBuffer();
  TextBuffer(const TextBuffer&) = delete;
  TextBuffer& operator=(const TextBuffer&) = delete;

  [[nodiscard]] Listening OnChange(ChangeListener listener) { return changed_.Add(std::move(listener)); }
  // For moves of the caret or the anchor without a change of the text.
  [[nodiscard]] Listening OnSelection(SelectionListener listener) { return moved_.Add(std::move(listener)); }

  [[nodiscard]] const std::string& Text() const { return text_; }
  [[nodiscard]] std::size_t Size() const { return text_.size(); }
  [[nodiscard]] bool Empty() const { return text_.empty(); }
  // The number of changes so far. If a listener changes the text, the listeners after it are notified in the wrong
  // order: first of the second change, then of the first. By this number they can detect the wrong order.
  [[nodiscard]] std::uint64_t Revision() const { return revision_; }

  // Replaces the whole text and puts the caret at 0. required: clears undo and redo.
  void SetText(std::string text);

  // The selection. The setters clip it to the text. SetSelStart makes the selection empty. SetSelLength keeps the start
  // of the selection and puts the caret at its end.
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

  // Replaces the selection and puts the caret after the new text, in one step of undo.
  void ReplaceSelection(std::string_view text);
  // Replaces any part of the text in the same way.
  void Replace(std::size_t pos, std::size_t length, std::string_view text);

  // Typing and deleting by hand. Characters typed one after the other are one step of undo, and so are characters
  // deleted one after the other. A new step begins after a typed line break, after Undo and Redo, after any other edit
  // and after any other move of the caret.
  void Type(std::string_view text);
  void EraseBefore(std::size_t count);  // erases only the selection if there is one
  void EraseAfter(std::size_t count);   // erases only the selection if there is one

  [[nodiscard]] bool CanUndo() const { return !undo_.empty(); }
  [[nodiscard]] bool CanRedo() const { return !redo_.empty(); }
  // Undo also restores the selection. Redo puts the caret after the repeated text. False if there is no step.
  bool Undo();
  bool Redo();

  // Lines, numbered from 0. A text that ends in CR LF has an empty last line.
  [[nodiscard]] std::size_t LineCount() const { return line_starts_.size(); }
  [[nodiscard]] std::size_t LineOf(std::size_t pos) const;  // a CR LF belongs to the line that it ends
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
  bool MoveStep(std::vector<Step>& from, std::vector<Step>& to);
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
