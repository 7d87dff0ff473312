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
  const auto search = [](std::string_view term, const std::deque<Answer>& answers) {
    ScriptedPlatform platform;
    platform.answers = answers;
    TextBuffer text;
    text.SetText(std::string("Žába a žába. KONEC"_w));
    SearchHelp(text, term, platform);
    std::string told;
    for (const std::string& call : platform.calls) told += call + '\n';
    return told + std::to_string(text.SelStart()) + ' ' + ToUtf8(text.SelText());
  };
  const std::string first = "message 52 \"Nalezeno na 1 místě, pokračovat ?\" \"hledání\"\n";
  const std::string second = "message 52 \"Nalezeno na 8 místě, pokračovat ?\" \"hledání\"\n";
  EXPECT_EQ(search("žába"_w, {Answer::kYes, Answer::kYes}), first + second + "7 žába");
  EXPECT_EQ(search("ŽÁBA"_w, {Answer::kNo}), first + "0 Žába");
  EXPECT_EQ(search("není"_w, {}), "0 ");
}

}  // namespace
}  // namespace pelmar
