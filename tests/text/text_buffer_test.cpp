#include "text/text_buffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/random_source.h"
#include "text/insert.h"

namespace pelmar {
namespace {

// The buffer once more, the slow way: undo keeps whole texts, lines are counted anew.
class PlainBuffer {
 public:
  struct State {
    std::string text;
    std::size_t anchor = 0, caret = 0;
    bool operator==(const State&) const = default;
  };
  enum class Run { kNone, kTyping, kErasing };

  State now;
  int moves = 0;  // of the selection alone

  void SetText(const std::string& text) {
    undo_.clear();
    redo_.clear();
    run_ = Run::kNone;
    if (text == now.text) return Select(0, 0);
    now = {text, 0, 0};
  }
  void Select(std::size_t anchor, std::size_t caret) {
    anchor = std::min(anchor, now.text.size());
    caret = std::min(caret, now.text.size());
    if (anchor == now.anchor && caret == now.caret) return;
    now.anchor = anchor;
    now.caret = caret;
    run_ = Run::kNone;
    ++moves;
  }
  void Replace(std::size_t pos, std::size_t length, const std::string& with, Run run) {
    if (now.text.substr(pos, length) == with) return Select(pos + length, pos + length);
    redo_.clear();
    if (run == Run::kNone || run != run_) undo_.push_back({now, {}});
    now.text.replace(pos, length, with);
    now.anchor = now.caret = pos + with.size();
    undo_.back().after = now;
    run_ = with.ends_with('\n') ? Run::kNone : run;
  }
  void Put(const std::string& text, Run run) { Replace(Start(), Length(), text, run); }
  void Erase(std::size_t before, std::size_t after) {
    if (Length() > 0) return Put("", Run::kErasing);
    before = std::min(before, now.caret);
    Replace(now.caret - before, before + std::min(after, now.text.size() - now.caret), "", Run::kErasing);
  }
  bool Undo() { return TakeBack(undo_, redo_, &Step::before); }
  bool Redo() { return TakeBack(redo_, undo_, &Step::after); }
  [[nodiscard]] std::size_t Start() const { return std::min(now.anchor, now.caret); }
  [[nodiscard]] std::size_t Length() const { return std::max(now.anchor, now.caret) - Start(); }
  [[nodiscard]] std::vector<std::string> Lines() const {
    std::vector<std::string> lines(1);
    for (std::size_t i = 0; i < now.text.size(); ++i) {
      const bool ends = now.text.substr(i, 2) == "\r\n";
      if (ends) lines.emplace_back();
      if (ends) ++i;
      if (!ends) lines.back() += now.text[i];
    }
    return lines;
  }

 private:
  struct Step {
    State before, after;
  };
  bool TakeBack(std::vector<Step>& from, std::vector<Step>& to, State Step::*state) {
    if (from.empty()) return false;
    now = from.back().*state;
    to.push_back(from.back());
    from.pop_back();
    run_ = Run::kNone;
    return true;
  }

  std::vector<Step> undo_, redo_;
  Run run_ = Run::kNone;
};

// A buffer and its slow twin; each thing is done to both. `mirror` follows the changes that are told.
struct Twins {
  TextBuffer buffer;
  PlainBuffer plain;
  std::string mirror;
  std::uint64_t changes = 0;
  int moves = 0;
  Listening heard[2];

  Twins() {
    heard[0] = buffer.OnChange([this](const TextChange& change) {
      ++changes;
      EXPECT_TRUE(!change.whole || (change.pos == 0 && change.removed == mirror.size()));
      mirror.replace(change.pos, change.removed, buffer.Text().substr(change.pos, change.inserted));
    });
    heard[1] = buffer.OnSelection([this] { ++moves; });
  }

  void DoSomething(RandomSource& random) {
    const std::string piece = random.Text(3, "\r\n\nx");
    const std::size_t a = random.Below(14), b = random.Below(4);
    switch (random.Below(12)) {
      case 0:
        buffer.Select(a, a + b);
        return plain.Select(a, a + b);
      case 1:
        buffer.SetSelStart(a);
        return plain.Select(a, a);
      case 2:
        buffer.SetSelLength(b * 5);
        return plain.Select(plain.Start(), plain.Start() + b * 5);
      case 3:
        buffer.Select(a + b, a);  // dragged backwards
        return plain.Select(a + b, a);
      case 4:
        buffer.EraseBefore(b);
        return plain.Erase(b, 0);
      case 5:
        buffer.EraseAfter(b);
        return plain.Erase(0, b);
      case 6:
        ASSERT_EQ(buffer.Undo(), plain.Undo());
        return;
      case 7:
        ASSERT_EQ(buffer.Redo(), plain.Redo());
        return;
      case 8:
        buffer.Replace(a, b, piece);
        return plain.Replace(std::min(a, plain.now.text.size()), b, piece, PlainBuffer::Run::kNone);
      case 9:
        buffer.ReplaceSelection(piece);
        return plain.Put(piece, PlainBuffer::Run::kNone);
      default:
        buffer.Type(piece);
        return plain.Put(piece, PlainBuffer::Run::kTyping);
    }
  }

  void ExpectEqual() const {
    ASSERT_EQ((PlainBuffer::State{buffer.Text(), buffer.Anchor(), buffer.Caret()}), plain.now);
    ASSERT_EQ(buffer.SelText(), plain.now.text.substr(plain.Start(), plain.Length()));
    ASSERT_EQ(buffer.Text(), mirror);
    ASSERT_EQ(buffer.Revision(), changes);
    ASSERT_EQ(moves, plain.moves);
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t line = 0; line < buffer.LineCount(); ++line) {
      lines.emplace_back(buffer.Line(line));
      ASSERT_EQ(buffer.LineStart(line), start);
      const std::size_t next = start + lines.back().size() + 2;
      for (; start < std::min(next, buffer.Size() + 1); ++start) ASSERT_EQ(buffer.LineOf(start), line);
    }
    ASSERT_EQ(lines, plain.Lines());
  }
};

TEST(TextBuffer, RandomEditsEqualASlowBuffer) {
  RandomSource random(7);
  for (int round = 0; round < 400; ++round) {
    Twins twins;
    const std::string original = random.Text(9, "\r\n\nx");
    twins.buffer.SetText(original);
    twins.plain.SetText(original);
    for (int edit = 0; edit < 60; ++edit) {
      twins.DoSomething(random);
      ASSERT_NO_FATAL_FAILURE(twins.ExpectEqual()) << "round " << round << " edit " << edit;
    }
    while (twins.buffer.Undo()) twins.plain.Undo();
    ASSERT_NO_FATAL_FAILURE(twins.ExpectEqual());
    ASSERT_EQ(twins.buffer.Text(), original);
    const std::string other = round % 2 ? original : "";  // also the text that is there already
    twins.buffer.SetText(other);
    twins.plain.SetText(other);
    ASSERT_NO_FATAL_FAILURE(twins.ExpectEqual());
    ASSERT_FALSE(twins.buffer.CanUndo() || twins.buffer.CanRedo());
  }
}

TEST(TextBuffer, TakesAViewOfItselfAndForgetsTheOldestOfALongHistory) {
  TextBuffer b;
  b.SetText("aXYZc");
  b.Select(0, 5);
  b.ReplaceSelection(b.SelText().substr(1, 3));
  EXPECT_EQ(b.Text(), "XYZ");
  for (const char letter : {'a', 'b', 'c'}) b.Replace(0, b.Size(), std::string(15 << 20, letter));
  EXPECT_TRUE(b.Undo() && b.Undo());  // 15, 30 and 30 MB are more than it holds: the first is gone
  EXPECT_EQ(b.Text()[0], 'a');
  EXPECT_FALSE(b.Undo());
}

struct Box : TextBuffer {
  Box(std::string text, std::size_t anchor, std::size_t caret) {
    SetText(std::move(text));
    Select(anchor, caret);
  }
  void Expect(std::string_view text, std::size_t caret) const {
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(SelStart(), caret);
    EXPECT_FALSE(HasSelection());
  }
};

TEST(Insert, WrapsTheSelectionOrPutsTheSampleIn) {
  Box selected("xabcy", 4, 1);
  WrapSelection(selected, "<B>", "</B>", "sample");
  selected.Expect("x<B>abc</B>y", 11);
  Box none("xy", 1, 1);
  WrapSelection(none, "<B>", "</B>", "sample");
  none.Expect("xsampley", 7);
}

TEST(Insert, KeepsTheSelectedTextWhicheverWayItWasDragged) {
  for (const auto& [anchor, caret] : {std::pair<std::size_t, std::size_t>{0, 3}, {3, 0}}) {
    Box box("abc", anchor, caret);
    InsertAtCaret(box, "<BR>");
    box.Expect("<BR>abc", 4);
  }
}

TEST(Insert, AReplacedDocumentBeginsAtItsStartAndComesBack) {
  Box box("abc", 1, 2);
  ReplaceDocument(box, "other");
  box.Expect("other", 0);
  box.Select(1, 3);
  ReplaceDocument(box, "other");  // no change
  box.Expect("other", 0);
  EXPECT_EQ(box.Revision(), 2u);
  box.Undo();
  EXPECT_EQ(box.SelText(), "b");
}

}  // namespace
}  // namespace pelmar
