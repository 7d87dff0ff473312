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

// Every character ten pixels, and by `odd` a fraction more to each, as at scales between whole numbers.
LayoutRules Rules(std::size_t width_pixels, bool wrap = true, std::size_t odd = 0) {
  LayoutRules rules;
  for (std::size_t code = 0; code < 256; ++code)
    rules.advances.of[code] = static_cast<std::int32_t>(10 * kUnitsPerPixel + code * odd % 411);
  rules.advances.tab_stop = 8 * rules.advances.of[' '];
  rules.width = static_cast<std::int64_t>(width_pixels) * kUnitsPerPixel;
  rules.wrap = wrap;
  return rules;
}

std::int64_t Width(const LayoutRules& rules, std::string_view text) {
  std::int64_t x = 0;
  for (const char ch : text)
    x = ch == '\t' ? (x / rules.advances.tab_stop + 1) * rules.advances.tab_stop
                   : x + rules.advances.of[static_cast<std::size_t>(CodeOf(ch))];
  return x;
}

// The rows of a text once more, the slow way, each with the CR LF that ends it.
std::vector<std::string> SlowRows(std::string_view text, const LayoutRules& rules) {
  std::vector<std::string> rows;
  do {
    const std::size_t line = std::min(text.find("\r\n"), text.size());
    std::size_t length = 0;
    while (length < line && (!rules.wrap || Width(rules, text.substr(0, length + 1)) <= rules.width)) ++length;
    if (length < line) {  // behind a blank, be it the one that hangs over the edge, but one character at least
      const std::size_t blank = text.substr(0, length + 1).find_last_of(" \t");
      length = blank == std::string::npos ? std::max<std::size_t>(length, 1) : blank + 1;
    }
    if (length == line) length = std::min(line + 2, text.size());
    rows.emplace_back(text.substr(0, length));
    text.remove_prefix(length);
  } while (!text.empty() || rows.back().ends_with("\r\n"));
  return rows;
}

// Whether a layout has these rows, and in them every place where their widths put it.
void ExpectPlaces(const TextLayout& layout, const LayoutRules& rules, const std::vector<std::string>& rows) {
  std::int64_t content = rules.width;
  for (const std::string& row : rows)
    if (!rules.wrap) content = std::max(content, Width(rules, row.substr(0, row.find("\r\n"))));
  ASSERT_EQ(layout.ContentWidth(), content);
  ASSERT_EQ(layout.RowCount(), rows.size());
  for (std::size_t i = 0, start = 0; i < rows.size(); start += rows[i++].size()) {
    const std::string line = rows[i].substr(0, rows[i].find("\r\n"));
    const bool wraps = i + 1 < rows.size() && line == rows[i];
    const auto x_of = [&](std::size_t count) {
      const std::int64_t x = Width(rules, std::string_view(line).substr(0, count));
      return rules.wrap ? std::min(x, rules.width) : x;
    };
    const std::int64_t room = (content - x_of(line.size())) / (rules.align == TextAlign::kCentre ? 2 : 1);
    const std::int64_t left = rules.align == TextAlign::kLeft ? 0 : room / kUnitsPerPixel * kUnitsPerPixel;
    ASSERT_EQ(layout.RowLeft(i), left) << i;
    ASSERT_EQ(layout.RowStart(i), start);
    ASSERT_EQ(layout.RowEnd(i), start + line.size());
    ASSERT_EQ(layout.EndsLine(i), !wraps);
    for (std::size_t at = 0; at <= line.size(); at += line.size() > 1000 ? 683 : 1) {
      ASSERT_EQ(layout.RowOf(start + at, at > 0), i) << at;
      ASSERT_EQ(layout.RowOf(start + at), wraps && at == line.size() ? i + 1 : i) << at;
      ASSERT_EQ(layout.XOf(i, start + at), x_of(at)) << at;
      const std::int64_t width = x_of(at + 1) - x_of(at);
      if (width == 0) continue;  // the row's end, or a blank that hangs over the edge
      ASSERT_EQ(layout.CharAt(i, x_of(at)), start + at);
      ASSERT_EQ(layout.CharAt(i, x_of(at + 1) - 1), start + at);
      ASSERT_EQ(PlaceInRow(layout, i, left + x_of(at) + (width - 1) / 2).pos, start + at);
      const TextPlace behind = PlaceInRow(layout, i, left + x_of(at) + (width + 1) / 2);
      ASSERT_EQ(behind.pos, start + at + 1);
      ASSERT_EQ(behind.at_row_end, wraps && at + 1 == line.size());
    }
  }
}

TEST(TextLayout, FollowsAnyEditAsASlowLayoutHasIt) {
  RandomSource random(20);
  std::size_t rows_told = 0, rows_there = 0;
  const auto piece = [&](std::size_t longest) { return random.Text(longest, "ab  \t\r\n\r\n\x01-\xA0"); };
  for (int round = 0; round < 120; ++round) {
    LayoutRules rules = Rules(random.Below(120), round % 2 == 0, 7);
    TextBuffer buffer;
    buffer.SetText(round < 2 ? std::string(9000, 'b') + '\t' + std::string(3000, 'a') : piece(200));
    TextLayout layout(buffer);
    layout.Lay(rules);
    std::vector<std::string> painted;  // by the rows that are told
    const Listening heard = buffer.OnChange([&](const TextChange& change) {
      const RowsChange told = layout.Update(change);
      const std::vector<std::string> before = std::exchange(painted, {}), now = SlowRows(buffer.Text(), rules);
      for (std::size_t i = 0; i < now.size(); ++i)
        painted.push_back(i < told.first                   ? before.at(i)
                          : i < told.first + told.inserted ? now[i]
                                                           : before.at(i - told.inserted + told.removed));
      rows_told += change.whole ? 0 : told.inserted;
      rows_there += change.whole ? 0 : now.size();
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
  EXPECT_LT(rows_told * 3, rows_there);  // not all of them each time
}

TEST(TextLayout, ALongRowIsMeasuredBeyond32Bits) {
  TextBuffer buffer;
  buffer.SetText(std::string(4096000, 'w'));
  TextLayout layout(buffer);
  layout.Lay(Rules(500, false));
  EXPECT_EQ(layout.XOf(0, 4095999), std::int64_t{4095999} * 10 * kUnitsPerPixel);
}

TEST(TextStops, StepsAndWords) {
  const std::string text = "ab, c\r\n\r\n  d\re\xE8";  // è of the page's own: a letter
  const auto walk = [&text](std::size_t from, std::size_t to, auto step) {
    std::string seen;
    for (; from != to && seen.size() < 99; from = step(text, from)) seen += std::to_string(from) + ' ';
    return seen;
  };
  EXPECT_EQ(walk(0, 15, NextStop), "0 1 2 3 4 5 7 9 10 11 12 13 14 ");
  EXPECT_EQ(walk(15, 0, PreviousStop), "15 14 13 12 11 10 9 7 5 4 3 2 1 ");
  EXPECT_EQ(walk(0, 15, NextWord), "0 2 4 5 7 11 12 13 ");
  EXPECT_EQ(walk(15, 0, PreviousWord), "15 13 12 11 9 7 5 4 2 ");
  EXPECT_EQ(PreviousStop(text, 6), 5u);  // from between CR and LF
  EXPECT_EQ(NextStop(text, 6), 7u);
  EXPECT_EQ(NextWord("\r\n\na", 1), 2u);
  EXPECT_EQ(PreviousWord("  a", 2), 0u);
  for (const auto stay : {NextStop, NextWord}) EXPECT_EQ(stay(text, 15), 15u);
  for (const auto stay : {PreviousStop, PreviousWord}) EXPECT_EQ(stay(text, 0), 0u);

  const std::pair<std::size_t, std::string_view> words[] = {
      {1, "ab"}, {2, ","}, {5, "c"}, {6, ""}, {7, ""}, {15, "e\xE8"}};  // 5: behind the last word of the line
  for (const auto& [pos, word] : words) {
    const TextSpan span = WordAt(text, pos);
    EXPECT_EQ(text.substr(span.begin, span.end - span.begin), word) << pos;
  }
  EXPECT_EQ(WordAt("", 0).end, 0u);
}

// Moves are the signs of kMoves, "+" before one that selects; "0" to "9" is where somebody else puts the caret, "!" a
// change of the text. Each place is told as row:caret, with the anchor where there is a selection.
TEST(CaretMover, KeepsItsAimAndItsRow) {
  constexpr std::string_view kMoves = "lr()[]udUD{}";
  const struct {
    const char *before, *moves, *places;
  } cases[] = {
      // Up and Down keep their aim over short rows, until something else moves the caret, be it to the same place.
      {"ab|c\r\na\r\nabc\r\n", "dddd+Uuldd0d2d]d",
       "1:6 2:10 3:13 3:13 1:6+13 0:2 0:1 1:6 2:9 0:0 1:5 0:2 1:6 1:6 2:9 "},
      {"a|\r\nb\r\nc\r\nd", "DDUUu", "2:7 3:10 1:4 0:1 0:1 "},
      {"|abcd", "]][]!u]d[", "0:3 0:3 0:0 0:3 1:3 0:0 0:3 1:4 1:3 "},  // the end of a wrapped row shows on that row
      {"ab|c[", "r", "0:3 "},                                          // arrows leave a selection at its borders
      {"a|b[", "l", "0:1 "},
      {"a|b[c", "+l+}{", "0:0+2 0:3+2 0:0 "},
      {"a b |c", "()", "0:2 1:4 "},
  };
  for (const auto& c : cases) {
    TextBuffer buffer;
    PutMarked(buffer, c.before);
    TextLayout layout(buffer);
    layout.Lay(Rules(30));
    CaretMover mover(layout);
    std::string places;
    bool select = false;
    for (const char sign : std::string(c.moves)) {
      const bool was_plus = std::exchange(select, sign == '+');
      if (sign == '+') continue;
      if (sign == '!') mover.Forget();
      if (sign >= '0' && sign <= '9') buffer.SetSelStart(static_cast<std::size_t>(sign - '0'));
      if (kMoves.find(sign) != std::string::npos)
        mover.Go(buffer, static_cast<CaretMove>(kMoves.find(sign)), was_plus, 2);
      places += std::to_string(mover.Row(buffer)) + ':' + std::to_string(buffer.Caret());
      places += (buffer.HasSelection() ? '+' + std::to_string(buffer.Anchor()) : "") + ' ';
    }
    EXPECT_EQ(places, c.places) << c.before << ' ' << c.moves;
  }
}

}  // namespace
}  // namespace pelmar
