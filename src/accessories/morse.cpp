#include "accessories/morse.h"

#include "shell/common.h"
#include "shell/editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::string_view kLetters[] = {
    ".-/", "-.../", "-.-./", "-../",  "./",   "..-./", "--./", "..../", "../",   ".---/", "-.-/",  ".-../", "--/",
    "-./", "---/",  ".--./", "--.-/", ".-./", ".../",  "-/",   "..-/",  "...-/", ".--/",  "-..-/", "-.--/", "--../",
};
constexpr std::string_view kDigits[] = {
    "-----/", ".----/", "..---/", "...--/", "....-/", "...../", "-..../", "--.../", "---../", "----./",
};
constexpr std::string_view kCh = "----/";
constexpr std::string_view kSlash = "-..-./";

constexpr std::string_view Letter(char letter) { return kLetters[letter - 'A']; }
constexpr std::string_view Digit(char digit) { return kDigits[digit - '0']; }

// The sign of a character, empty if there is no sign. A letter must be a capital without diacritics.
std::string_view SignOf(char ch) {
  if (ch >= 'A' && ch <= 'Z') return Letter(ch);
  if (ch >= '0' && ch <= '9') return Digit(ch);
  switch (ch) {
    case ' ':  // required: a blank has the sign of the slash
    case '/':
      return kSlash;
    case '.':  // required: not a Morse sign
      return "//";
    case ',':
      return ".-.-.-/";
    case '"':
      return ".----./";
    case ':':
      return "---.../";
    case '-':
      return "-....-/";
    case '?':
      return "..--../";
    case ')':
    case '(':
      return "-.--.-/";
    default:
      return {};
  }
}

constexpr MorseItem kLetterItems[] = {
    {"mnua", "A", Letter('A')}, {"mnub", "B", Letter('B')}, {"mnuc", "C", Letter('C')}, {"mnud", "D", Letter('D')},
    {"mnue", "E", Letter('E')}, {"mnuf", "F", Letter('F')}, {"mnuG", "G", Letter('G')}, {"mnuH", "H", Letter('H')},
    {"mnuCH", "CH", kCh},       {"mnui", "I", Letter('I')}, {"mnuJ", "J", Letter('J')}, {"mnuk", "K", Letter('K')},
    {"mnul", "L", Letter('L')}, {"mnum", "M", Letter('M')}, {"mnuN", "N", Letter('N')}, {"mnuo", "O", Letter('O')},
    {"mnup", "P", Letter('P')}, {"mnuQ", "Q", Letter('Q')}, {"mnur", "R", Letter('R')}, {"MnuS", "S", Letter('S')},
    {"mnuT", "T", Letter('T')}, {"mnuU", "U", Letter('U')}, {"mnuv", "V", Letter('V')}, {"mnuW", "W", Letter('W')},
    {"mnux", "X", Letter('X')}, {"mnuY", "Y", Letter('Y')}, {"mnuz", "Z", Letter('Z')},
};

constexpr MorseItem kDigitItems[] = {
    {"mnu1", "1", Digit('1')}, {"mnu2", "2", Digit('2')}, {"mnu3", "3", Digit('3')}, {"mnu4", "4", Digit('4')},
    {"mnu5", "5", Digit('5')}, {"mnu6", "6", Digit('6')}, {"mnu7", "7", Digit('7')}, {"mnu8", "8", Digit('8')},
    {"mnu9", "9", Digit('9')}, {"mnu0", "0", Digit('0')},
};

constexpr MorseItem kShortDigitItems[] = {
    {"mnumorcz1", "1", ".-/"},  {"mnumorcz2", "2", "..-/"}, {"mnumorcz3", "3", "...-/"}, {"mnumorcz7", "7", "-.../"},
    {"mnumorcz8", "8", "-../"}, {"mnumorcz9", "9", "-./"},  {"mnumorcz0", "0", "-/"},
};

// required: full stop and apostrophe differ from those of the encoder
constexpr MorseItem kSignItems[] = {
    {"mnumotec", "Tečka (.)", "....../"},         {"mnumocar", "Čárka (,)", ".-.-.-/"},
    {"mnumoapo", "Apostrof (\")", ".---./"},      {"mnumodvo", "Dvojtečka (:)", "---.../"},
    {"mnumopom", "Pomlčka (-)", "-....-/"},       {"mnumoota", "Otazník (?)", "..--../"},
    {"mnumozlom", "Zlomková čára (/)", "-..-./"}, {"mnumokri", "Kříž (+)", ".-.-./"},
    {"mnumorzavor", "Závorka ) (", "-.--.-/"},
};

constexpr MorseItem kMessageItems[] = {
    {"mnusos", "S.O.S.", "...---.../"},           {"mnuend", "Konec", "...-.-/"},
    {"mnupozor", "Pozor !", "-.-.-./"},           {"mnurorumím", "Rozumím", "...-./"},
    {"mnunerorum", "Nerozumím", "...../"},        {"mnumorsemiscPoma", "Pomaleji !", "-.-.-../"},
    {"mnumorsemiscOpak", "Opakuj !", "..--../"},  {"mnumorsemiscCekej", "Čekej !", ".-.../"},
    {"mnumorsemiscOddel", "Oddělovač", "-...-/"}, {"mnumorsemiscPoZpra", "Podávej zprávu !", "-.-/"},
};

constexpr MorseMenu kMenus[] = {
    {"mnumorsechar", "&Písmeno", kLetterItems},
    {"mnumorsenumber", "&Ćíslo", kDigitItems},
    {"mnumorsecisskr", "Číslo - Zkráceně", kShortDigitItems},
    {"mnumorzn", "&Znak", kSignItems},
    {"mnu_morseMessage", "Z&práva", kMessageItems},
};

}  // namespace

std::string TextToMorse(std::string_view text) {
  const std::string plain = StripDiacritics(ToUpper(text));
  std::string morse;
  morse.reserve(plain.size() * 5);
  for (std::size_t i = 0; i < plain.size(); ++i) {
    // required: the H after a C is not skipped and writes its own sign too
    const bool is_ch = plain[i] == 'C' && i + 1 < plain.size() && plain[i + 1] == 'H';
    const std::string_view sign = is_ch ? kCh : SignOf(plain[i]);
    if (sign.empty()) {
      morse += plain[i];
    } else {
      morse += sign;
    }
  }
  return morse;
}

std::span<const MorseMenu> MorseMenus() { return kMenus; }

void AddMorseCommand(Editor& editor) {
  editor.commands.Add("mnuMakeMorse", [&editor] {
    const BusyPointer busy(editor.platform, BusyLook::kArrow);
    editor.text.ReplaceSelection(TextToMorse(editor.text.SelText()));
  });
}

}  // namespace pelmar
