#include "platform/paths.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstddef>

#include "platform/color.h"
#include "platform/runtime_error.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

bool IsSeparator(char ch) { return ch == '\\' || ch == '/'; }

// Positions from 1. No separator: `separator` is the length of the path. No extension: `dot` equals `separator`.
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

std::string EncodedUrl(std::string_view path) {
  std::string url = "file://";
  for (const char byte : path) {
    if (CodeOf(byte) >= 0x80 || byte == '%')
      url += '%' + HexByte(CodeOf(byte));
    else
      url += byte;
  }
  return url;
}

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

bool EndsInSeparator(std::string_view path) { return !path.empty() && IsSeparator(path.back()); }

std::string PathToFileUrl(std::string_view path) {
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

std::string_view NameOf(std::string_view path) { return path.substr(path.find_last_of("\\/") + 1); }

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  const bool backslashed = folder.find('\\') != std::string_view::npos && folder.find('/') == std::string_view::npos;
  if (!EndsInSeparator(path)) path += backslashed ? '\\' : '/';
  path += name;
  return path;
}

std::string StoredPath(std::string_view path) {
  std::string text = FromUtf8(path);
  return ToUtf8(text) == path ? text : EncodedUrl(path);
}

std::string PathFromStored(std::string_view bytes) { return PathFromFileUrl(bytes).value_or(ToUtf8(bytes)); }

}  // namespace pelmar
