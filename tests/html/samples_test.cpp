#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "html/samples/templaty.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

SettingsRecord Profile() {
  SettingsRecord profile;
  profile.UserName = "Jan Žižka"_w;
  profile.UserEmail = "a@b";
  return profile;
}

std::string Text(std::string_view key) { return SampleText(key, Profile()); }

// All samples as they were when somebody looked at them last: a line for each, then its text.
TEST(Samples, AreTheKeptOnes) {
  std::string all;
  for (const Sample& sample : Samples()) {
    all += std::string("#### ") + std::string(sample.key) + '|' + ToUtf8(sample.text) + '|';
    all += std::string(sample.file_name) + '\n' + ToUtf8(Text(sample.key)) + '\n';
  }
  std::erase(all, '\r');  // the line ends have a test of their own
  EXPECT_EQ(all, Content(PELMAR_KEPT_SAMPLES));
  EXPECT_EQ(Text("HTML6"), "");
}

TEST(Samples, HaveWholeLinesAndCzechLettersOfTheCodePage) {
  std::size_t longest = 0;
  for (const Sample& sample : Samples()) {
    const std::string text = Text(sample.key);
    longest = std::max(longest, text.size());
    EXPECT_FALSE(text.empty() || text.back() == '\n') << sample.key;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool first = text[i] == '\r', second = i > 0 && text[i - 1] == '\r';
      ASSERT_TRUE((text[i] == '\n') == second && (!first || i + 1 < text.size())) << sample.key << " at " << i;
      ASSERT_TRUE(static_cast<unsigned char>(text[i]) >= ' ' || first || second) << sample.key << " at " << i;
    }
    // Letters outside ASCII would be Windows-1250, of which UTF-8 is never a part.
    const bool plain = std::all_of(text.begin(), text.end(), [](char ch) { return CodeOf(ch) < 128; });
    EXPECT_EQ(plain, IsUtf8(text)) << sample.key;
    // A page with such letters tells its code page, or a browser shows them wrong.
    EXPECT_TRUE(plain || sample.key == "DIZ1" || text.find("charset=windows-1250") != std::string::npos) << sample.key;
  }
  EXPECT_EQ(longest, Text("HTML5").size());
}

}  // namespace
}  // namespace pelmar
