#include "shell/common.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "platform/color.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "support/random_source.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(FilePart, SplitsAtTheLastSeparatorAndTheLastDot) {
  const struct {
    const char *path, *folder, *name, *extension;
  } cases[] = {
      {"C:\\a\\b.c.txt", "C:\\a\\", "b.c", "txt"},
      {"/a.b/.profile", "/a.b/", "", "profile"},
      {"/a\\b/c\\d.e", "/a\\b/c\\", "d", "e"},
      {"/a/b.", "/a/", "b", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FilePart(c.path, 1), c.folder) << c.path;
    EXPECT_EQ(FilePart(c.path, 2), c.name) << c.path;
    EXPECT_EQ(FilePart(c.path, 3), c.extension) << c.path;
  }
  EXPECT_EQ(FilePart("C:\\a\\b", 3), "b");  // required: without a dot the extension is the whole name
  EXPECT_EQ(FilePart("readme.txt", 1), "readme.txt");
  EXPECT_EQ(FilePart("readme.txt", 3), "");
  EXPECT_EQ(FilePart("/a/b.c", 4), "");
  for (const char* path : {"/a/README", "C:\\b", "readme.txt", "/a.b/"}) {
    try {
      FilePart(path, 2);
      ADD_FAILURE() << path;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), EINVAL);
    }
  }
  for (const int part : {1, 2, 3}) EXPECT_THROW(FilePart("", part), RuntimeError);
}

TEST(Paths, AreJoinedAndMadeUrlsInBothKinds) {
  EXPECT_EQ(PathToFileUrl("/home/jan/a b.html"), "file:///home/jan/a b.html");
  EXPECT_EQ(PathToFileUrl("C:\\a\\b%.html"), "file:///C:/a/b%.html");
  EXPECT_EQ(JoinPath("/tmp", "a.txt"), "/tmp/a.txt");
  EXPECT_EQ(JoinPath("/tmp/", "a.txt"), "/tmp/a.txt");
  EXPECT_EQ(JoinPath("C:\\x", "a.txt"), "C:\\x\\a.txt");
  EXPECT_EQ(JoinPath("C:\\x\\", "a.txt"), "C:\\x\\a.txt");
}

TEST(Common, ColorsCountsAndLetters) {
  EXPECT_EQ(ColorToHex(16777215), "#FFFFFF");
  EXPECT_EQ(ColorToHex(0x030201), "#010203");
  EXPECT_EQ(ColorToHex(Rgb(10, 0, 200)), "#0A00C8");
  EXPECT_EQ(CountLineFeeds("a\rb\n\n"), 2);
  EXPECT_EQ(CountLineFeeds(std::string(1000, '\n')), 1000);
  EXPECT_EQ(NumberWithSignBlank(0), " 0");
  EXPECT_EQ(NumberWithSignBlank(-3), "-3");
  EXPECT_EQ(StripDiacritics("ÁČĎÉĚÍŇÓŘŠŤŮÚÝŽ áčďéěíňóřšťůúýž"_w), "ACDEEINORSTUUYZ acdeeinorstuuyz");
  EXPECT_EQ(StripDiacritics("äöüĺľŕ"_w), "äöüĺľŕ"_w);  // letters of other languages
  int n = 0;
  EXPECT_EQ(RandomCase("šŠ1š-"_w, [&] { return n++ % 2 == 0 ? 0.0 : 0.5; }), "šŠ1Š-"_w);
}

std::string ToldReplace(std::string s, const std::string& find, const std::string& with) {
  for (std::size_t from = 0;;) {
    const std::size_t hit = from <= s.size() ? s.find(find, from) : std::string::npos;
    if (hit == std::string::npos) return s;
    s = s.substr(0, hit) + with + s.substr(hit + find.size());
    from = hit + 1;
  }
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
