#include "text/text_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "support/marked_text.h"
#include "support/random_source.h"
#include "text/caret_mover.h"
#include "text/codepage.h"
#include "text/text_stops.h"

namespace pelmar {
namespace {

// Each character is ten pixels wide. `odd` adds a different fraction of a pixel to each, as at a fractional scale.
LayoutRules Rules(std::size_t width_pixels, std::size_t odd = 0) {
  LayoutRules rules;
  for (std::size_t code = 0; code < 256; ++code)
    rules.advances.of[code] = static_cast<std::int32_t>(10 * kUnitsPerPixel + code * odd % 411);
  rules.advances.tab_stop = 8 * rules.advances.of[' '];
  rules.width = static_cast<std::int64_t>(width_pixels) * kUnitsPerPixel;
  return rules;
}

std::int64_t Width(const LayoutRules& rules, std::string_view text) {
  std::int64_t x = 0;
  for (const char ch : text)
    x = ch == '\t' ? (x / rules.advances.tab_stop + 1) * rules.advances.tab_stop
                   : x + rules.advances.of[static_cast<std::size_t>(CodeOf(ch))];
  return x;
}

// A slow second implementation of the layout: the rows of a text, each with the CR LF that ends it.
std::vector<std::string> SlowRows(std::string_view text, const LayoutRules& rules) {
  std::vector<std::string> rows;
  do {
    const std::size_t line = std::min(text.find("\r\n"), text.size());
    std::size_t length = 0;
    while (length < line && Width(rules, text.substr(0, length + 1)) <= rules.width) ++length;
    if (length < line) {  // wraps after a blank, which may hang over the edge, or after at least one character
      const std::size_t blank = text.substr(0, length + 1).find_last_of(" \t");
      length = blank == std::string::npos ? std::max<std::size_t>(length, 1) : blank + 1;
    }
    if (length == line) length = std::min(line + 2, text.size());
    rows.emplace_back(text.substr(0, length));
    text.remove_prefix(length);
  } while (!text.empty() || rows.back().ends_with("\r\n"));
  return rows;
}

// Expects these rows in the layout, and each position where the widths of the characters put it.
void ExpectPlaces(const TextLayout& layout, const LayoutRules& rules, const std::vector<std::string>& rows) {
  ASSERT_EQ(layout.RowCount(), rows.size());
  for (std::size_t i = 0, start = 0; i < rows.size(); start += rows[i++].size()) {
    const std::string line = rows[i].substr(0, rows[i].find("\r\n"));
    const bool wraps = i + 1 < rows.size() && line == rows[i];
    const auto x_of = [&](std::size_t count) {
      return std::min(Width(rules, std::string_view(line).substr(0, count)), rules.width);
    };
    const std::int64_t room = (rules.width - x_of(line.size())) / (rules.align == TextAlign::kCentre ? 2 : 1);
    const std::int64_t left = rules.align == TextAlign::kLeft ? 0 : room / kUnitsPerPixel * kUnitsPerPixel;
    ASSERT_EQ(layout.RowLeft(i), left) << i;
    ASSERT_EQ(layout.RowStart(i), start);
    ASSERT_EQ(layout.RowEnd(i), start + line.size());
    ASSERT_EQ(layout.EndsLine(i), !wraps);
    for (std::size_t at = 0; at <= line.size(); ++at) {
      ASSERT_EQ(layout.RowOf(start + at, at > 0), i) << at;
      ASSERT_EQ(layout.RowOf(start + at), wraps && at == line.size() ? i + 1 : i) << at;
      ASSERT_EQ(layout.XOf(i, start + at), x_of(at)) << at;
      const std::int64_t width = x_of(at + 1) - x_of(at);
      if (width == 0) continue;  // the row's end, or a blank that hangs over the edge
      ASSERT_EQ(layout.CharAt(i, x_of(at)), start + at);
      ASSERT_EQ(layout.CharAt(i, x_of(at + 1) - 1), start + at);
      ASSERT_EQ(PlaceInRow(layout, i, left + x_of(at) + (width - 1) / 2).pos, start + at);
      const TextPlace after = PlaceInRow(layout, i, left + x_of(at) + (width + 1) / 2);
      ASSERT_EQ(after.pos, start + at + 1);
      ASSERT_EQ(after.at_row_end, wraps && at + 1 == line.size());
    }
  }
}

TEST(TextLayout, EqualsASlowLayoutAfterRandomEdits) {
  RandomSource random(20);
  const auto piece = [&](std::size_t longest) { return random.Text(longest, "ab  \t\r\n\r\n\x01-\xA0"); };
  for (int round = 0; round < 120; ++round) {
    LayoutRules rules = Rules(random.Below(120), 7);
    TextBuffer buffer;
    buffer.SetText(piece(200));
    TextLayout layout(buffer);
    layout.Lay(rules);
    std::vector<std::string> painted;  // the rows as the notifications update them
    const Listening listening = buffer.OnChange([&](const TextChange& change) {
      const RowsChange rows = layout.Update(change);
      const std::vector<std::string> before = std::exchange(painted, {}), now = SlowRows(buffer.Text(), rules);
      for (std::size_t i = 0; i < now.size(); ++i)
        painted.push_back(i < rows.first                   ? before.at(i)
                          : i < rows.first + rows.inserted ? now[i]
                                                           : before.at(i - rows.inserted + rows.removed));
    });
    for (int edit = 0; edit < 40; ++edit) {
      rules.align = static_cast<TextAlign>(random.Below(3));
      if (edit % 10 == 9) rules.width += static_cast<std::int64_t>(random.Below(9)) * kUnitsPerPixel;
      layout.SetAlign(rules.align);
      layout.SetWidth(rules.width);
      painted = SlowRows(buffer.Text(), rules);
      if (random.Below(30) == 0) buffer.SetText(piece(200));
      buffer.Replace(random.Below(buffer.Size() + 1), random.Below(12), piece(8));
      const std::vector<std::string> rows = SlowRows(buffer.Text(), rules);
      ASSERT_EQ(painted, rows) << "round " << round << " edit " << edit;
      ASSERT_NO_FATAL_FAILURE(ExpectPlaces(layout, rules, rows)) << "round " << round << " edit " << edit;
    }
  }
}

using Stops = std::vector<std::size_t>;

// The positions that `step` reaches, from `from` to the end of the text.
Stops AllStops(std::size_t (*step)(std::string_view, std::size_t), std::string_view text, std::size_t from) {
  Stops stops{from};
  while (stops.size() < 99 && step(text, stops.back()) != stops.back()) stops.push_back(step(text, stops.back()));
  return stops;
}

constexpr std::string_view kStopText = "ab, c\r\n\r\n  d\re\xE8";  // \xE8 is the letter "č"

TEST(TextStops, CountALineEndAsOneStep) {
  EXPECT_EQ(AllStops(NextStop, kStopText, 0), (Stops{0, 1, 2, 3, 4, 5, 7, 9, 10, 11, 12, 13, 14, 15}));
  EXPECT_EQ(AllStops(PreviousStop, kStopText, 15), (Stops{15, 14, 13, 12, 11, 10, 9, 7, 5, 4, 3, 2, 1, 0}));
  EXPECT_EQ(PreviousStop(kStopText, 6), 5u);  // from between CR and LF
  EXPECT_EQ(NextStop(kStopText, 6), 7u);
}

TEST(TextStops, WordsBeginAtLettersOtherSignsAndLineEnds) {
  EXPECT_EQ(AllStops(NextWord, kStopText, 0), (Stops{0, 2, 4, 5, 7, 11, 12, 13, 15}));
  EXPECT_EQ(AllStops(PreviousWord, kStopText, 15), (Stops{15, 13, 12, 11, 9, 7, 5, 4, 2, 0}));
  EXPECT_EQ(NextWord("\r\n\na", 1), 2u);
  EXPECT_EQ(NextWord("a09_Z.", 0), 5u);  // digits and "_" belong to a word
  EXPECT_EQ(PreviousWord("  a", 2), 0u);
  EXPECT_EQ(PreviousWord("a\r\n\r\nb", 4), 3u);  // from between CR and LF
}

TEST(WordAt, FindsTheWordAtOrBeforeAPosition) {
  const std::pair<std::size_t, std::string_view> words[] = {
      {1, "ab"}, {2, ","}, {5, "c"}, {6, ""}, {7, ""}, {15, "e\xE8"}};  // 5: after the last word of the line
  for (const auto& [pos, word] : words) {
    const TextSpan span = WordAt(kStopText, pos);
    EXPECT_EQ(kStopText.substr(span.begin, span.end - span.begin), word) << pos;
  }
  EXPECT_EQ(WordAt("", 0).end, 0u);
}

// The rows have three characters, a page has two rows.
struct CaretMoverTest : testing::Test {
  TextBuffer buffer;
  TextLayout layout{buffer};
  CaretMover mover{layout};

  void Put(std::string_view marked) {
    PutMarked(buffer, marked);
    layout.Lay(Rules(30));
    mover.Forget();
  }
  // Makes the moves and returns the document.
  std::string Moved(const std::vector<CaretMove>& moves, bool select = false) {
    for (const CaretMove move : moves) mover.Go(buffer, move, select, 2);
    return Marked(buffer);
  }
};

TEST_F(CaretMoverTest, MovesByRowsAndPagesAndEndsASelection) {
  using enum CaretMove;
  const struct {
    const char* before;
    std::vector<CaretMove> moves;
    const char* after;
    bool select = false;
  } cases[] = {
      {"ab|c¶a¶abc¶", {kDown, kDown}, "abc¶a¶ab|c¶"},  // a short row keeps the wanted column
      {"ab|c¶a¶abc¶", {kDown, kDown, kDown, kDown, kUp, kUp}, "abc¶a|¶abc¶"},
      {"ab|c¶a¶abc¶", {kDown, kLeft, kDown}, "abc¶a¶|abc¶"},    // any other move sets a new column
      {"ab|c¶a¶abc¶", {kDown, kRowEnd, kDown}, "abc¶a¶a|bc¶"},  // even if the caret stays where it is
      {"a|¶b", {kUp}, "a|¶b"},
      {"a|¶b¶c¶d", {kPageDown}, "a¶b¶c|¶d"},
      {"ab|c¶d¶e¶abc", {kPageDown, kPageDown}, "abc¶d¶e¶ab|c"},
      {"abc¶d¶e¶ab|c", {kPageUp, kPageUp}, "ab|c¶d¶e¶abc"},
      {"ab|c[", {kRight}, "abc|"},  // an arrow ends the selection at its border
      {"a|b[", {kLeft}, "a|b"},
      {"a|b[c", {kLeft}, "|ab[c", true},
      {"a|b[c", {kTextEnd}, "ab[c|", true},
      {"a|b[c", {kTextStart}, "|abc"},
  };
  for (const auto& c : cases) {
    Put(c.before);
    EXPECT_EQ(Moved(c.moves, c.select), c.after) << c.before;
  }
}

TEST_F(CaretMoverTest, TheCaretAtTheEndOfAWrappedRowStaysInThatRow) {
  using enum CaretMove;
  Put("|abcd");
  EXPECT_EQ(Moved({kRowEnd, kRowEnd}), "abc|d");
  EXPECT_EQ(mover.Row(buffer), 0u);
  mover.Forget();  // the text has changed
  EXPECT_EQ(mover.Row(buffer), 1u);
  EXPECT_EQ(Moved({kUp, kRowEnd, kRowStart}), "|abcd");
  EXPECT_EQ(Moved({kDown}), "abc|d");
  EXPECT_EQ(mover.Row(buffer), 1u);
}

}  // namespace
}  // namespace pelmar
