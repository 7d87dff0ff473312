#include "html/attributes.h"

#include <algorithm>

#include "platform/paths.h"
#include "shell/common.h"

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
