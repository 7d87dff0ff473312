#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "html/samples/templaty.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// All samples as they were when somebody looked at them last: a line for each, then its text.
TEST(Samples, AreTheKeptOnes) {
  SettingsRecord profile;
  profile.UserName = "Jan Žižka"_w;
  profile.UserEmail = "a@b";
  std::string all;
  for (const Sample& sample : Samples()) {
    const std::string text = SampleText(sample.key, profile);
    all += std::string("#### ") + std::string(sample.key) + "|" + std::string(sample.text) + "|";
    all += std::string(sample.file_name) + '\n';
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool ends = text.compare(i, 2, "\r\n") == 0;
      ASSERT_TRUE(ends || (text[i] != '\r' && text[i] != '\n')) << sample.key << " breaks a line in half at " << i;
      all += ends ? '\n' : text[i];
      i += ends ? 1 : 0;
    }
    all += '\n';
  }
  EXPECT_EQ(ToUtf8(all), Content(PELMAR_KEPT_SAMPLES));
  EXPECT_EQ(SampleText("HTML6", profile), "");
}

}  // namespace
}  // namespace pelmar
