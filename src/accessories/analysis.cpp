#include "accessories/analysis.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

#include "shell/common.h"
#include "text/codepage.h"
#include "text/index.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

// A percentage such as "012,50". Half a hundredth is rounded up.
std::string Percent(std::int32_t count, std::size_t length) {
  const auto all = static_cast<std::int64_t>(length);
  const std::int64_t hundredths = (20000 * std::int64_t{count} + all) / (2 * all);
  return ZeroPadded(hundredths / 100, 3) + "," + ZeroPadded(hundredths % 100, 2);
}

}  // namespace

Analysis AnalyseText(std::string_view text) {
  Analysis analysis;
  analysis.length = text.size();
  for (const char ch : text) ++analysis.counts[IndexOf(ch)];
  analysis.counts[0] = 0;
  std::iota(analysis.ranking.begin(), analysis.ranking.end(), std::uint8_t{1});
  std::ranges::stable_sort(analysis.ranking, std::greater(), [&](std::uint8_t code) { return analysis.counts[code]; });
  return analysis;
}

std::vector<Bar> GraphBars(const Analysis& analysis, bool wide, bool ignore_blank) {
  auto counts = analysis.counts;
  if (ignore_blank) counts[IndexOf(' ')] = 0;
  const std::int32_t most = std::ranges::max(counts);
  std::vector<Bar> bars;
  if (most == 0) return bars;
  const std::size_t last = wide ? kCodes - 1 : 128;
  // required: the narrow graph leaves out codes that occur exactly once, the wide graph those that don't occur
  const std::int32_t left_out = wide ? 0 : 1;
  for (std::size_t code = 1; code <= last; ++code) {
    if (counts[code] == left_out) continue;
    bars.push_back({static_cast<int>(code) * BarStep(wide), static_cast<double>(kGraphFull) * counts[code] / most});
  }
  return bars;
}

int CodeAt(double x, bool wide) {
  const double place = x + 1;
  return place == 0 ? -1 : static_cast<int>(std::floor(place / BarStep(wide)));
}

std::string PointedText(int code) {
  return "Poloha: " + std::to_string(code) + " Znak: " + std::string(kQuote) + CharOf(code) + std::string(kQuote);
}

std::vector<std::string> AnalysisRows(const Analysis& analysis) {
  std::vector<std::string> rows;
  if (analysis.length == 0) return rows;
  rows.reserve(analysis.ranking.size());
  for (const std::uint8_t code : analysis.ranking) {
    const std::int32_t count = analysis.counts[code];
    rows.push_back(ZeroPadded(static_cast<std::int64_t>(rows.size()) + 1, 3) + " " + ZeroPadded(count, 5) + " " +
                   Percent(count, analysis.length) + " " + ZeroPadded(code, 3) + " " + std::string(kQuote) +
                   CharOf(code) + std::string(kQuote));
  }
  return rows;
}

// Counts from the end of the row, since the number of digits of the count varies.
char CharOfRow(std::string_view row) { return row[row.size() - 2]; }

}  // namespace pelmar
