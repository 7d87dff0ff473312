// The character analysis: how often each code occurs in a text, the bars of its graph and the rows of its list.
// All pure. Codes are those of Windows-1250.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

inline constexpr std::size_t kCodes = 256;

struct Analysis {
  std::array<std::int32_t, kCodes> counts{};       // by code; that of code 0 stays 0
  std::array<std::uint8_t, kCodes - 1> ranking{};  // the codes 1 to 255 by falling count, equal ones by rising code
  std::size_t length = 0;
};

Analysis AnalyseText(std::string_view text);

// The graph's own scale: bars stand on its lower edge, a full one reaches from kGraphFull up to 0.
inline constexpr int kGraphWidth = 508;
inline constexpr int kGraphHeight = 196;
inline constexpr int kGraphFull = 200;

struct Bar {
  int x = 0;
  double height = 0;  // 0 to kGraphFull
  bool operator==(const Bar&) const = default;
};

// Which bars there are, at x = code * BarStep. No bar at all where no code that counts occurs.
std::vector<Bar> GraphBars(const Analysis& analysis, bool wide, bool ignore_blank);
constexpr int BarStep(bool wide) { return wide ? 2 : 4; }
constexpr int BarWidth(bool wide) { return wide ? 1 : 3; }

// The code under a pointer at x of the scale; -1, which is no code, a unit left of the graph.
int CodeAt(double x, bool wide);
// "Poloha: 65 Znak: "A"".
std::string PointedText(int code);

// The list's 255 rows, most frequent first.
std::vector<std::string> AnalysisRows(const Analysis& analysis);
// The character that a row is about; 0 for a text that is no row.
char CharOfRow(std::string_view row);

}  // namespace pelmar
