#include "shell/help.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(Help, ThePersonsOwnFileComesFirst) {
  ScriptedPlatform platform;
  platform.answers = {Answer::kOk};
  EXPECT_EQ(LoadHelp(platform), std::nullopt);
  EXPECT_EQ(platform.calls.back(),
            "message 0 \"Chyba helpového systému - pelmar.txt: soubor nebo složka neexistuje\" \"Help k Pelmar VEX\"");
  platform.files["/share/pelmar.txt"] = "package";
  EXPECT_EQ(LoadHelp(platform), "package");
  platform.files["/install/pelmar.txt"] = "mine";
  EXPECT_EQ(LoadHelp(platform), "mine");
}

TEST(Help, SearchesWithoutCaseAsLongAsThePersonWants) {
  const std::string first = R"(message 52 "Nalezeno na 1 místě, pokračovat ?" "hledání")";
  const std::string second = R"(message 52 "Nalezeno na 8 místě, pokračovat ?" "hledání")";
  const struct {
    std::string_view term;
    std::deque<Answer> answers;
    std::vector<std::string> told;
    std::size_t start, length;
  } cases[] = {{"žába"_w, {Answer::kYes, Answer::kYes}, {first, second}, 7, 4},
               {"ŽÁBA"_w, {Answer::kNo}, {first}, 0, 4},
               {"není"_w, {}, {}, 0, 0}};
  for (const auto& c : cases) {
    ScriptedPlatform platform;
    platform.answers = c.answers;
    TextBuffer text;
    text.SetText(std::string("Žába a žába. KONEC"_w));
    SearchHelp(text, c.term, platform);
    EXPECT_EQ(platform.calls, c.told) << c.term;
    EXPECT_EQ(text.SelStart(), c.start) << c.term;
    EXPECT_EQ(text.SelLength(), c.length) << c.term;
  }
}

}  // namespace
}  // namespace pelmar
