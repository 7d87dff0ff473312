#include "html/browser_texts.h"

#include <gtest/gtest.h>

#include <string>

namespace pelmar {
namespace {

TEST(BrowserTexts, TellHowFarAPageIsAndKnowUtf8ThatDoesntSaySo) {
  EXPECT_EQ(ProgressText(1, 3) + ' ' + ProgressText(5, 5) + ' ' + ProgressText(1, 0), "33,3333333333333% 100% ");
  const std::string late(1017, ' ');
  for (const auto& [page, undeclared] : {
           std::pair<std::string, bool>{"kůň", true},
           {"\xEF\xBB\xBFkůň", false},
           {"k\xF9\xF2", false},
           {"kun", false},
           {"CharSet=utf-8 kůň", false},
           {late + "charset kůň", false},  // its last letter is the last that is looked at
           {late + " charset kůň", true},
       })
    EXPECT_EQ(IsUndeclaredUtf8(page), undeclared) << page;
}

}  // namespace
}  // namespace pelmar
