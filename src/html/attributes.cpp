#include "html/attributes.h"

#include <algorithm>

#include "platform/color.h"
#include "platform/paths.h"
#include "shell/common.h"
#include "text/codepage.h"

namespace pelmar {

std::string Quoted(std::string_view text) {
  std::string quoted(kQuote);
  quoted += text;
  return quoted += kQuote;
}

std::string Attribute(std::string_view name, std::string_view value) {
  std::string attribute(" ");
  attribute += name;
  attribute += '=';
  return attribute += Quoted(value);
}

std::string ForwardSlashes(std::string_view path) {
  std::string slashed(path);
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  return slashed;
}

std::string LinkText(std::string_view path) {
  std::string text;
  for (std::size_t at = 0; at < path.size();) {
    const std::size_t from = at;
    const char32_t character = DecodeUtf8(path, at);
    const unsigned char code = CodeOfUnicode(character);
    if (code != '?' || character == U'?') {
      text += static_cast<char>(code);
      continue;
    }
    for (const char byte : path.substr(from, at - from)) text += '%' + HexByte(CodeOf(byte));
  }
  return text;
}

std::string FileAddress(std::string_view path, bool relative) {
  return relative ? ForwardSlashes(path) : PathToFileUrl(path);
}

std::string_view LeftTrimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

std::string_view Trimmed(std::string_view text) {
  text = LeftTrimmed(text);
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace pelmar
