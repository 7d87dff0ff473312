#include "files/line_ends.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/runtime_error.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

TEST(LineEnds, ConvertedPathIsCutAtTheFirstFullStop) {
  EXPECT_EQ(ConvertedPath("/a/b.c.txt", "unx"), "/a/b.unx");
  EXPECT_EQ(ConvertedPath("/a.d/b.txt", "dos"), "/a.dos");  // required: a folder's full stop counts
  EXPECT_EQ(ConvertedPath("/a/b", "unx"), "unx");           // required
}

TEST(LineEnds, BothDirections) {
  const struct {
    std::string_view source, unix, dos;
  } cases[] = {
      {"", "", ""},
      {"a", "a\n", ""},  // required: what stands behind the last line feed is lost
      {"a\nb\n", "a\nb\n", "a\r\nb\r\n"},
      {"a\r\nb\r\n", "a\nb\n", "a\r\r\nb\r\r\n"},
      {"a\rb\r", "a\nb\n", ""},
      {"\r\r\n\n\r", "\n\n\n\n", "\r\r\r\n\r\n"},
  };
  ScriptedPlatform platform;
  for (const auto& c : cases) {
    // With bytes in front, each border between two pieces falls on each place once.
    for (const std::string_view front : {"", "x", "xy"}) {
      platform.files = {{"/f.txt", std::string(front) + std::string(c.source)}};
      ConvertToUnix(platform, "/f.txt");
      ConvertToDos(platform, "/f.txt");
      const bool bare = c.source.empty() && !front.empty();
      EXPECT_EQ(platform.files["/f.unx"], std::string(front) + std::string(c.unix) + (bare ? "\n" : "")) << c.source;
      EXPECT_EQ(platform.files["/f.dos"], c.dos.empty() ? "" : std::string(front) + std::string(c.dos)) << c.source;
    }
  }
  EXPECT_EQ(platform.busy, 0);
}

TEST(LineEnds, OnlyTheUnixTargetKeepsALongerTail) {
  ScriptedPlatform platform;
  platform.files = {{"/f.txt", "a\nb"}, {"/f.unx", "0123456"}, {"/f.dos", "0123456"}};
  ConvertToUnix(platform, "/f.txt");
  EXPECT_EQ(platform.files["/f.unx"], "a\nb\n456");  // required
  ConvertToDos(platform, "/f.txt");
  EXPECT_EQ(platform.files["/f.dos"], "a\r\n");
}

TEST(LineEnds, ErrorsEndTheCommandAndTheSourceIsSafe) {
  ScriptedPlatform platform;
  EXPECT_THROW(ConvertToUnix(platform, "/none.txt"), RuntimeError);
  platform.files = {{"/f.txt", "a"}, {"/g.unx", "a\r\n"}};
  platform.write_errors["/f.dos"] = ENOSPC;
  EXPECT_THROW(ConvertToDos(platform, "/f.txt"), RuntimeError);
  EXPECT_EQ(platform.busy, 0);
  platform.answers = {Answer::kOk};
  ConvertToUnix(platform, "/g.unx");  // its own target
  EXPECT_EQ(platform.files["/g.unx"], "a\r\n");
}

}  // namespace
}  // namespace pelmar
