#include "html/browser_texts.h"

#include <gtest/gtest.h>

#include <string>

namespace pelmar {
namespace {

TEST(BrowserTexts, TellHowFarAPageIs) {
  EXPECT_EQ(ProgressText(1, 3), "33,3333333333333%");
  EXPECT_EQ(ProgressText(5, 5), "100%");
  EXPECT_EQ(ProgressText(1, 0), "");
}

TEST(BrowserTexts, KnowUtf8ThatDoesntSaySo) {
  const std::string late(1017, ' ');
  const std::pair<std::string, bool> cases[] = {
      {"kůň", true},
      {"\xEF\xBB\xBFkůň", false},
      {"k\xF9\xF2", false},
      {"kun", false},
      {"CharSet=utf-8 kůň", false},
      {late + "charset kůň", false},  // its last letter is the last that is looked at
      {late + " charset kůň", true},
  };
  for (const auto& [page, undeclared] : cases) EXPECT_EQ(IsUndeclaredUtf8(page), undeclared) << page;
}

}  // namespace
}  // namespace pelmar
