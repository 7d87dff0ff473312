#include "text/text_buffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/marked_text.h"
#include "support/random_source.h"

namespace pelmar {
namespace {

// A slow second implementation of the buffer: each undo step stores the whole text before and after the step.
class PlainBuffer {
 public:
  enum class Run { kNone, kTyping, kErasing };
  int moves = 0;  // changes of the selection without a change of the text

  [[nodiscard]] const std::string& Text() const { return now_.text; }
  [[nodiscard]] std::size_t Caret() const { return now_.caret; }
  [[nodiscard]] std::size_t SelStart() const { return std::min(now_.anchor, now_.caret); }
  [[nodiscard]] std::size_t SelLength() const { return std::max(now_.anchor, now_.caret) - SelStart(); }
  [[nodiscard]] bool CanUndo() const { return done_ > 0; }
  [[nodiscard]] bool CanRedo() const { return done_ < steps_.size(); }

  void SetText(std::string text) {
    steps_.clear();
    done_ = 0;
    run_ = Run::kNone;
    if (text == now_.text) return Select(0, 0);
    now_ = {std::move(text), 0, 0};
  }
  void Select(std::size_t anchor, std::size_t caret) {
    const State wanted{now_.text, std::min(anchor, now_.text.size()), std::min(caret, now_.text.size())};
    if (wanted == now_) return;
    now_ = wanted;
    run_ = Run::kNone;
    ++moves;
  }
  void SetSelStart(std::size_t start) { Select(start, start); }
  void SetSelLength(std::size_t length) { Select(SelStart(), SelStart() + length); }
  void Replace(std::size_t pos, std::size_t length, const std::string& with, Run run = Run::kNone) {
    pos = std::min(pos, now_.text.size());
    length = std::min(length, now_.text.size() - pos);
    if (now_.text.substr(pos, length) == with) return Select(pos + length, pos + length);
    steps_.resize(done_);
    if (run == Run::kNone || run != run_) steps_.emplace_back(now_, State{});
    done_ = steps_.size();
    now_.text.replace(pos, length, with);
    now_.anchor = now_.caret = pos + with.size();
    steps_.back().second = now_;
    run_ = with.ends_with('\n') ? Run::kNone : run;
  }
  void ReplaceSelection(const std::string& with) { Replace(SelStart(), SelLength(), with); }
  void Type(const std::string& with) { Replace(SelStart(), SelLength(), with, Run::kTyping); }
  void EraseBefore(std::size_t count) { Erase(now_.caret - std::min(count, now_.caret), now_.caret); }
  void EraseAfter(std::size_t count) { Erase(now_.caret, std::min(now_.caret + count, now_.text.size())); }
  bool Undo() { return CanUndo() && Restore(steps_[--done_].first); }
  bool Redo() { return CanRedo() && Restore(steps_[done_++].second); }

 private:
  struct State {
    std::string text;
    std::size_t anchor = 0, caret = 0;
    bool operator==(const State&) const = default;
  };
  void Erase(std::size_t from, std::size_t to) {
    const bool selected = SelLength() > 0;
    Replace(selected ? SelStart() : from, selected ? SelLength() : to - from, "", Run::kErasing);
  }
  bool Restore(const State& state) {
    now_ = state;
    run_ = Run::kNone;
    return true;
  }

  State now_;
  std::vector<std::pair<State, State>> steps_;  // the states before and after each step
  std::size_t done_ = 0;                        // steps that Undo can take back
  Run run_ = Run::kNone;
};

// Makes a random edit. Equal seeds make the same edit in both kinds of buffer.
template <class Buffer>
bool EditRandomly(Buffer& buffer, RandomSource random) {
  const std::size_t action = random.Below(13), at = random.Below(14), count = random.Below(4);
  const std::string piece = random.Text(3, "\r\n\nx");
  if (action == 0) buffer.Select(at, at + count);
  if (action == 1) buffer.Select(at + count, at);  // dragged backwards
  if (action == 2) buffer.SetSelStart(at);
  if (action == 3) buffer.SetSelLength(count * 5);
  if (action == 4) buffer.EraseBefore(count);
  if (action == 5) buffer.EraseAfter(count);
  if (action == 6) buffer.Replace(at, count, piece);
  if (action == 7) buffer.ReplaceSelection(piece);
  if (action == 8) return buffer.Undo();
  if (action == 9) return buffer.Redo();
  if (action == 10 && at == 0) buffer.SetText(count == 0 ? buffer.Text() : piece + piece);
  if (action > 10) buffer.Type(piece);
  return true;
}

template <class Buffer>
std::string StateOf(const Buffer& buffer) {
  return buffer.Text() + '|' + std::to_string(buffer.SelStart()) + '+' + std::to_string(buffer.SelLength()) + '<' +
         std::to_string(buffer.Caret()) + (buffer.CanUndo() ? " undo" : "") + (buffer.CanRedo() ? " redo" : "");
}

void ExpectLines(const TextBuffer& buffer) {
  std::string joined(buffer.Line(0));
  for (std::size_t line = 1; line < buffer.LineCount(); ++line) joined.append("\r\n").append(buffer.Line(line));
  ASSERT_EQ(joined, buffer.Text());
  std::size_t line = 0;
  for (std::size_t pos = 0; pos <= buffer.Size(); ++pos) {
    line += pos >= 2 && buffer.Text().substr(pos - 2, 2) == "\r\n";
    ASSERT_EQ(buffer.LineOf(pos), line) << pos;
  }
  ASSERT_EQ(buffer.LineCount(), line + 1);
}

TEST(TextBuffer, EqualsASlowBufferAfterRandomEdits) {
  RandomSource random(7);
  for (unsigned round = 0; round < 400; ++round) {
    TextBuffer buffer;
    PlainBuffer plain;
    std::string mirror;  // follows the notified changes
    std::uint64_t changes = 0;
    int moves = 0;
    const Listening moved = buffer.OnSelection([&] { ++moves; });
    const Listening changed = buffer.OnChange([&](const TextChange& change) {
      ++changes;
      EXPECT_TRUE(!change.whole || (change.pos == 0 && change.removed == mirror.size()));
      mirror.replace(change.pos, change.removed, buffer.Text().substr(change.pos, change.inserted));
    });
    for (unsigned edit = 0; edit < 60; ++edit) {
      const unsigned seed = 100 * round + edit;
      ASSERT_EQ(EditRandomly(buffer, RandomSource(seed)), EditRandomly(plain, RandomSource(seed)));
      ASSERT_EQ(StateOf(buffer), StateOf(plain)) << "round " << round << " edit " << edit;
      ASSERT_EQ(buffer.Text(), mirror);
      ASSERT_EQ(buffer.Revision(), changes);
      ASSERT_EQ(moves, plain.moves);
      ASSERT_NO_FATAL_FAILURE(ExpectLines(buffer));
    }
    while (plain.Undo()) buffer.Undo();
    ASSERT_EQ(StateOf(buffer), StateOf(plain));
    while (plain.Redo()) buffer.Redo();
    ASSERT_EQ(StateOf(buffer), StateOf(plain));
  }
}

TEST(TextBuffer, ReplacesTextByAViewOfItself) {
  TextBuffer buffer;
  PutMarked(buffer, "[aXYZc|");
  buffer.ReplaceSelection(buffer.SelText().substr(1, 3));
  EXPECT_EQ(Marked(buffer), "XYZ|");
}

}  // namespace
}  // namespace pelmar
