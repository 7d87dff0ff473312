// The character analysis: how often each code of Windows-1250 occurs in a text, the bars of the graph and the rows of
// the list.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

inline constexpr std::size_t kCodes = 256;

struct Analysis {
  std::array<std::int32_t, kCodes> counts{};       // by code; code 0 is not counted
  std::array<std::uint8_t, kCodes - 1> ranking{};  // codes 1 to 255, by falling count, then by rising code
  std::size_t length = 0;
};

Analysis AnalyseText(std::string_view text);

// The scale of the graph, in which y points down. Bars stand at y = kGraphFull, just below the visible part. A bar for
// the largest count, without ignored blanks, reaches y = 0.
inline constexpr int kGraphWidth = 508;
inline constexpr int kGraphHeight = 196;
inline constexpr int kGraphFull = 200;

struct Bar {
  int x = 0;
  double height = 0;  // 0 to kGraphFull
  bool operator==(const Bar&) const = default;
};

// The bars, at x = code * BarStep. The narrow graph has no codes above 128, and `ignore_blank` counts no blanks.
// Empty if the text has no codes other than 0 and ignored blanks.
std::vector<Bar> GraphBars(const Analysis& analysis, bool wide, bool ignore_blank);
constexpr int BarStep(bool wide) { return wide ? 2 : 4; }
constexpr int BarWidth(bool wide) { return wide ? 1 : 3; }

// The code at `x` of the scale, a negative number if `x` is -1 or less.
int CodeAt(double x, bool wide);
// For example "Poloha: 65 Znak: "A"".
std::string PointedText(int code);

// The 255 rows of the list, the most frequent code first. Empty for an empty text.
std::vector<std::string> AnalysisRows(const Analysis& analysis);
// The character that a row of AnalysisRows shows.
char CharOfRow(std::string_view row);

}  // namespace pelmar
