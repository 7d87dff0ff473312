#include "shell/common.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstddef>

#include "text/codepage.h"

namespace pelmar {
namespace {

bool IsSeparator(char ch) { return ch == '\\' || ch == '/'; }

// Positions from 1, found by the walk that the three parts share.
struct PathSplit {
  std::size_t separator;
  std::size_t dot;
};

PathSplit Split(std::string_view path) {
  if (path.empty()) throw RuntimeError(EINVAL, "FilePart: prázdná cesta");
  const std::size_t last = path.find_last_of("\\/");
  const std::size_t separator = last == std::string_view::npos ? path.size() : last + 1;
  const std::size_t point = path.substr(separator - 1).find_last_of('.');
  return {separator, point == std::string_view::npos ? separator : separator + point};
}

constexpr std::string_view kMarked = "áÁčČďĎéěÉĚíÍňŇóÓřŘšŠťŤůúŮÚýÝžŽ"_w;
constexpr std::string_view kPlain = "aAcCdDeeEEiInNoOrRsStTuuUUyYzZ"_w;
static_assert(kMarked.size() == kPlain.size());

}  // namespace

std::string FilePart(std::string_view path, int part) {
  const auto [separator, dot] = Split(path);
  switch (part) {
    case 1:
      return std::string(path.substr(0, separator));
    case 2:
      if (dot == separator) throw RuntimeError(EINVAL, "FilePart: jméno souboru nemá příponu: " + std::string(path));
      return std::string(path.substr(separator, dot - separator - 1));
    case 3:
      return std::string(path.substr(dot));
    default:
      return {};
  }
}

bool HasExtension(std::string_view path) {
  if (path.empty()) return false;
  const auto [separator, dot] = Split(path);
  return dot != separator;
}

std::string PathToFileUrl(std::string_view path) {
  // The slash of a native absolute path is the third one already.
  std::string url = path.starts_with('/') ? "file://" : "file:///";
  url += path;
  std::replace(url.begin(), url.end(), '\\', '/');
  return url;
}

std::optional<std::string> PathFromFileUrl(std::string_view url) {
  constexpr std::string_view kScheme = "file://";
  constexpr std::string_view kThisComputer = "localhost";
  if (ToLower(url.substr(0, kScheme.size())) != kScheme) return std::nullopt;
  url.remove_prefix(kScheme.size());
  if (ToLower(url.substr(0, kThisComputer.size())) == kThisComputer) url.remove_prefix(kThisComputer.size());
  if (!url.starts_with('/')) return std::nullopt;
  std::string path;
  for (std::size_t at = 0; at < url.size(); ++at) {
    unsigned byte = 0;
    const auto digits = url.substr(at + 1, 2);
    const bool encoded = url[at] == '%' && digits.size() == 2 &&
                         std::from_chars(digits.data(), digits.data() + 2, byte, 16).ptr == digits.data() + 2;
    if (encoded && byte == 0) return std::nullopt;
    path += encoded ? static_cast<char>(byte) : url[at];
    if (encoded) at += 2;
  }
  return path;
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  const bool backslashed = folder.find('\\') != std::string_view::npos && folder.find('/') == std::string_view::npos;
  if (path.empty() || !IsSeparator(path.back())) path += backslashed ? '\\' : '/';
  path += name;
  return path;
}

std::string HexByte(int value) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  return {kDigits[static_cast<std::size_t>(value / 16)], kDigits[static_cast<std::size_t>(value % 16)]};
}

std::string ColorToHex(Color color) {
  return "#" + HexByte(RedOf(color)) + HexByte(GreenOf(color)) + HexByte(BlueOf(color));
}

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

std::int32_t CountLineFeeds(std::string_view text) {
  return static_cast<std::int32_t>(std::count(text.begin(), text.end(), '\n'));
}

std::string NumberWithSignBlank(std::int64_t number) { return (number < 0 ? "" : " ") + std::to_string(number); }

}  // namespace pelmar
