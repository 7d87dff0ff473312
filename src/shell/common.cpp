#include "shell/common.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>

#include "platform/runtime_error.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::string_view kMarked = "áÁčČďĎéěÉĚíÍňŇóÓřŘšŠťŤůúŮÚýÝžŽ"_w;
constexpr std::string_view kPlain = "aAcCdDeeEEiInNoOrRsStTuuUUyYzZ"_w;
static_assert(kMarked.size() == kPlain.size());

}  // namespace

std::string StripDiacritics(std::string_view text) {
  std::string plain(text);
  for (char& ch : plain)
    if (const std::size_t at = kMarked.find(ch); at != std::string_view::npos) ch = kPlain[at];
  return plain;
}

std::string RandomCase(std::string_view text, const Draw& draw) {
  std::string result(text);
  for (char& ch : result) ch = draw() < 0.5 ? ToLower(ch) : ToUpper(ch);
  return result;
}

std::string ReplaceAllText(std::string_view text, std::string_view find, std::string_view with) {
  if (find.empty() || with.find(find, 1) != std::string_view::npos)
    throw RuntimeError(EINVAL, "ReplaceAllText: nahrazování by neskončilo");
  // What is still to be searched lies reversed in `ahead`, so that a replacement is put in front of it at its end and
  // nothing behind a hit ever moves: linear where the plain loop over one string is quadratic.
  std::string done;
  done.reserve(text.size());
  std::string ahead(text.rbegin(), text.rend());
  const std::string wanted(find.rbegin(), find.rend());
  while (true) {
    const std::size_t hit = ahead.rfind(wanted);
    if (hit == std::string::npos) break;
    done.append(ahead.rbegin(), ahead.rend() - static_cast<std::ptrdiff_t>(hit + wanted.size()));
    ahead.resize(hit);
    ahead.append(with.rbegin(), with.rend());
    if (ahead.empty()) break;
    done += ahead.back();
    ahead.pop_back();
  }
  done.append(ahead.rbegin(), ahead.rend());
  return done;
}

// By blocks whose count fits into a byte, so that the compiler compares many bytes at once.
std::int32_t CountLineFeeds(std::string_view text) {
  constexpr std::size_t kBlock = 128;
  std::int32_t count = 0;
  for (; text.size() >= kBlock; text.remove_prefix(kBlock)) {
    std::uint8_t of_block = 0;
    for (std::size_t i = 0; i < kBlock; ++i) of_block = static_cast<std::uint8_t>(of_block + (text[i] == '\n' ? 1 : 0));
    count += of_block;
  }
  return count + static_cast<std::int32_t>(std::ranges::count(text, '\n'));
}

std::string NumberWithSignBlank(std::int64_t number) { return (number < 0 ? "" : " ") + std::to_string(number); }

}  // namespace pelmar
