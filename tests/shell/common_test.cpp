#include "shell/common.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/color.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "shell/file_number.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(FilePart, SplitsAtTheLastSeparatorAndTheLastDot) {
  const auto part = [](const char* path, int number) {
    try {
      return FilePart(path, number);
    } catch (const RuntimeError&) {
      return std::string("error");
    }
  };
  // required: without a dot the extension is the whole name, and there is no name
  const std::pair<const char*, const char*> cases[] = {{"C:\\a\\b.c.txt", "C:\\a\\|b.c|txt"},
                                                       {"/a.b/.profile", "/a.b/||profile"},
                                                       {"/a\\b/c\\d.e", "/a\\b/c\\|d|e"},
                                                       {"/a/b.", "/a/|b|"},
                                                       {"C:\\a\\b", "C:\\a\\|error|b"},
                                                       {"readme.txt", "readme.txt|error|"},
                                                       {"/a.b/", "/a.b/|error|"},
                                                       {"", "error|error|error"}};
  for (const auto& [path, parts] : cases)
    EXPECT_EQ(part(path, 1) + '|' + part(path, 2) + '|' + part(path, 3), parts) << path;
  EXPECT_EQ(FilePart("/a/b.c", 4), "");
}

TEST(Paths, AreJoinedAndMadeUrlsInBothKinds) {
  EXPECT_EQ(PathToFileUrl("/home/jan/a b.html"), "file:///home/jan/a b.html");
  EXPECT_EQ(PathToFileUrl("C:\\a\\b%.html"), "file:///C:/a/b%.html");
  for (const char* folder : {"/tmp", "/tmp/"}) EXPECT_EQ(JoinPath(folder, "a.txt"), "/tmp/a.txt");
  for (const char* folder : {"C:\\x", "C:\\x\\"}) EXPECT_EQ(JoinPath(folder, "a.txt"), "C:\\x\\a.txt");
}

TEST(FileExists, TakesASeparatorAtTheEnd) {
  ScriptedPlatform platform;
  platform.files["/a.txt"] = "";
  const FileNumber number;
  for (const char* path : {"/a.txt", "/a.txt/"}) EXPECT_TRUE(FileExists(number, platform, path));
}

TEST(Common, ColorsCountsAndLetters) {
  EXPECT_EQ(ColorToHex(0x030201), "#010203");
  EXPECT_EQ(ColorToHex(Rgb(10, 0, 200)), "#0A00C8");
  EXPECT_EQ(CountLineFeeds("a\rb\n\n"), 2);
  EXPECT_EQ(CountLineFeeds(std::string(1000, '\n') + std::string(1000, 'x')), 1000);
  EXPECT_EQ(NumberWithSignBlank(0), " 0");
  EXPECT_EQ(NumberWithSignBlank(-3), "-3");
  // Letters of other languages stay.
  EXPECT_EQ(StripDiacritics("ÁČĎÉĚÍŇÓŘŠŤŮÚÝŽ áčďéěíňóřšťůúýž äöüĺľŕ"_w), "ACDEEINORSTUUYZ acdeeinorstuuyz äöüĺľŕ"_w);
  int n = 0;
  EXPECT_EQ(RandomCase("šŠ1š-"_w, [&] { return n++ % 2 == 0 ? 0.0 : 0.5; }), "šŠ1Š-"_w);
}

std::string ToldReplace(std::string s, const std::string& find, const std::string& with) {
  for (std::size_t from = 0; from <= s.size(); ++from) {
    from = s.find(find, from);
    if (from == std::string::npos) break;
    s.replace(from, find.size(), with);
  }
  return s;
}

// required: what a replacement brings in is read again from its second character on, so "aaaa" without "a" is "aa"
TEST(ReplaceAllText, EqualsTheToldLoopOnRandomTexts) {
  RandomSource random(3);
  for (int round = 0; round < 3000; ++round) {
    const std::string text = random.Text(20, "ab"), find = random.Text(3, "ab"), with = random.Text(3, "ab");
    if (find.empty() || with.find(find, 1) != std::string::npos) {  // would never end
      ASSERT_THROW(ReplaceAllText(text, find, with), RuntimeError);
    } else {
      ASSERT_EQ(ReplaceAllText(text, find, with), ToldReplace(text, find, with)) << text << ' ' << find << ' ' << with;
    }
  }
}

}  // namespace
}  // namespace pelmar
