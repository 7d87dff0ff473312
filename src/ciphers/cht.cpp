#include "ciphers/cht.h"

#include <array>

#include "ciphers/shift.h"
#include "shell/common.h"
#include "text/index.h"

namespace pelmar {
namespace {

constexpr std::array<std::string_view, kLetters> kLookAlikes = {
    "Aa@&", "Bb8", "Cc(", "Dd)>", "Ee3", "Ff[",  "Gg6", "Hh#", "Ii1!|", "Jj?",   "Kk<", "Ll74", "Mm~wW",
    "Nn%",  "Oo0", "Pp9", "Qq",   "Rr",  "Ss5$", "Tt+", "Uu",  "Vv^",   "Ww~mM", "Xx*", "Yy/",  "Zz2",
};

}  // namespace

std::string LookAlikeReminder() {
  return JoinLines({
      "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
      "abcdefghijklmnopqrstuvwxyz",
      "&8(>3[6#1?<7~%09  5+ ^M*/2",
      "@  )    !  4w     $   m",
      "        |   W",
  });
}

std::string HackerTranscription(std::string_view text, const Draw& draw) {
  std::string result(text);
  for (char& ch : result) {
    const int letter = LetterNumber(ch);
    const std::string_view set = letter == 0 ? std::string_view(&ch, 1) : kLookAlikes[IndexFromOne(letter)];
    ch = set[DrawBelow(draw, set.size())];
  }
  return result;
}

}  // namespace pelmar
