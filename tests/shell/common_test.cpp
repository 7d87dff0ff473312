#include "shell/common.h"
#include "platform/color.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <random>
#include <string>

#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(FilePart, SplitsAtTheLastSeparatorAndTheLastDot) {
  const struct {
    const char *path, *folder, *name, *extension;
  } cases[] = {
      {"C:\\a\\b.c.txt", "C:\\a\\", "b.c", "txt"},
      {"/home/jan/index.html", "/home/jan/", "index", "html"},
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
}

TEST(FilePart, ANameWithoutDotIsARuntimeError) {
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

TEST(PathToFileUrl, HasThreeSlashesForBothKindsOfPath) {
  EXPECT_EQ(PathToFileUrl("/home/jan/a b.html"), "file:///home/jan/a b.html");
  EXPECT_EQ(PathToFileUrl("C:\\a\\b%.html"), "file:///C:/a/b%.html");
}

TEST(JoinPath, KeepsTheFoldersOwnSeparator) {
  EXPECT_EQ(JoinPath("/tmp", "a.txt"), "/tmp/a.txt");
  EXPECT_EQ(JoinPath("/tmp/", "a.txt"), "/tmp/a.txt");
  EXPECT_EQ(JoinPath("C:\\x", "a.txt"), "C:\\x\\a.txt");
  EXPECT_EQ(JoinPath("C:\\x\\", "a.txt"), "C:\\x\\a.txt");
}

TEST(Common, ColorsAndCounts) {
  EXPECT_EQ(ColorToHex(0), "#000000");
  EXPECT_EQ(ColorToHex(16777215), "#FFFFFF");
  EXPECT_EQ(ColorToHex(255), "#FF0000");
  EXPECT_EQ(ColorToHex(65536 * 255), "#0000FF");
  EXPECT_EQ(ColorToHex(65536), "#000001");
  EXPECT_EQ(ColorToHex(Rgb(10, 0, 200)), "#0A00C8");
  EXPECT_EQ(CountLineFeeds(""), 0);
  EXPECT_EQ(CountLineFeeds("a\r\n"), 1);
  EXPECT_EQ(CountLineFeeds("a\rb\n\n"), 2);
  EXPECT_EQ(CountLineFeeds(std::string(1000, '\n')), 1000);
  EXPECT_EQ(NumberWithSignBlank(0), " 0");
  EXPECT_EQ(NumberWithSignBlank(-3), "-3");
}

TEST(Common, StripDiacriticsTouchesCzechLettersOnly) {
  EXPECT_EQ(StripDiacritics("Žluťoučký kůň"_w), "Zlutoucky kun");
  EXPECT_EQ(StripDiacritics("ÁČĎÉĚÍŇÓŘŠŤŮÚÝŽ áčďéěíňóřšťůúýž"_w), "ACDEEINORSTUUYZ acdeeinorstuuyz");
  EXPECT_EQ(StripDiacritics("äöüĺľŕ"_w), "äöüĺľŕ"_w);
}

TEST(Common, RandomCaseFollowsTheDrawAndLeavesSigns) {
  int n = 0;
  const auto alternate = [&] { return n++ % 2 == 0 ? 0.0 : 0.5; };
  EXPECT_EQ(RandomCase("šŠ1š-"_w, alternate), "šŠ1Š-"_w);
}

std::string ToldReplace(std::string s, const std::string& find, const std::string& with) {
  for (std::size_t from = 0;;) {
    const std::size_t hit = from <= s.size() ? s.find(find, from) : std::string::npos;
    if (hit == std::string::npos) return s;
    s = s.substr(0, hit) + with + s.substr(hit + find.size());
    from = hit + 1;
  }
}

TEST(ReplaceAllText, ReadsTheReplacementsLaterCharactersAgain) {
  EXPECT_EQ(ReplaceAllText("banana", "a", "ab"), "babnabnab");
  EXPECT_EQ(ReplaceAllText("xabb", "ab", "a"), "xab");    // required: only characters behind the first are read again
  EXPECT_EQ(ReplaceAllText("aabb", "ab", "xa"), "axxa");  // required: the "a" put in forms a hit with the "b" behind
  EXPECT_EQ(ReplaceAllText("aaaa", "a", ""), "aa");       // required: what moves up to a removed hit is passed over
  EXPECT_EQ(ReplaceAllText("aXb", "x", "y"), "aXb");
  EXPECT_THROW(ReplaceAllText("banana", "a", "ba"), RuntimeError);  // would never end
  EXPECT_THROW(ReplaceAllText("banana", "", "x"), RuntimeError);
  std::mt19937 random(3);
  const auto word = [&](std::size_t most, std::size_t least) {
    std::string text;
    for (std::size_t n = least + random() % (most - least + 1); n > 0; --n) text += "ab"[random() % 2];
    return text;
  };
  for (int round = 0; round < 3000; ++round) {
    const std::string text = word(20, 0), find = word(3, 1), with = word(3, 0);
    if (with.find(find, 1) != std::string::npos) continue;
    ASSERT_EQ(ReplaceAllText(text, find, with), ToldReplace(text, find, with)) << text << ' ' << find << ' ' << with;
  }
}

}  // namespace
}  // namespace pelmar
