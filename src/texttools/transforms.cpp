#include "texttools/transforms.h"

#include "text/codepage.h"

namespace pelmar {

std::string ProperCase(std::string_view text) {
  std::string result(text);
  bool first = true;
  for (char& ch : result) {
    ch = first ? ToUpper(ch) : ToLower(ch);
    first = ch == '\0' || ch == ' ' || (ch >= '\t' && ch <= '\r');
  }
  return result;
}

std::string Reversed(std::string_view text) { return {text.rbegin(), text.rend()}; }

}  // namespace pelmar
