#include "files/line_ends.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/runtime_error.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

TEST(LineEnds, ConvertedPathIsCutAtTheFirstFullStop) {
  EXPECT_EQ(ConvertedPath("/a/b.c.txt", "unx"), "/a/b.unx");
  EXPECT_EQ(ConvertedPath("/a.d/b.txt", "dos"), "/a.dos");  // required: a folder's full stop counts
  EXPECT_EQ(ConvertedPath("/a/b", "unx"), "unx");           // required
}

// The whole of what a rewriter makes of a text that comes in pieces of any length.
std::string Rewritten(FileRewriter&& rewriter, std::string_view text, RandomSource& random) {
  std::string out;
  while (!text.empty()) {
    const std::string piece(text.substr(0, 1 + random.Below(30)));
    out += rewriter.Rewrite(piece);
    text.remove_prefix(piece.size());
  }
  out += rewriter.Finish();
  return out.substr(0, rewriter.Kept());
}

TEST(LineEnds, EqualASlowWalkThroughRandomTexts) {
  RandomSource random(8);
  for (int round = 0; round < 3000; ++round) {
    const std::string text = random.Text(90, round % 2 ? "a\r\n" : "abcdefghijkl\r\n\x0B\x8D\x8A");
    std::string unix_text, dos_text;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] != '\n' || i == 0 || text[i - 1] != '\r') unix_text += text[i] == '\r' ? '\n' : text[i];
      dos_text += text[i] == '\n' ? "\r\n" : std::string(1, text[i]);
    }
    if (!unix_text.empty() && unix_text.back() != '\n') unix_text += '\n';
    dos_text.resize(dos_text.rfind('\n') + 1);  // required: what stands behind the last line feed is lost
    ASSERT_EQ(Rewritten(ToLineFeeds(), text, random), unix_text) << text;
    ASSERT_EQ(Rewritten(ToCrLf(), text, random), dos_text) << text;
  }
}

TEST(LineEnds, OnlyTheUnixTargetKeepsALongerTailAndErrorsEndTheCommand) {
  ScriptedPlatform platform;
  platform.files = {{"/f.txt", "a\nb"}, {"/f.unx", "0123456"}, {"/f.dos", "0123456"}};
  ConvertToUnix(platform, "/f.txt");
  EXPECT_EQ(platform.files["/f.unx"], "a\nb\n456");  // required
  ConvertToDos(platform, "/f.txt");
  EXPECT_EQ(platform.files["/f.dos"], "a\r\n");
  EXPECT_THROW(ConvertToUnix(platform, "/none.txt"), RuntimeError);
  platform.write_errors["/f.dos"] = ENOSPC;
  platform.kept_content = "/kept";
  try {
    ConvertToDos(platform, "/f.txt");
    ADD_FAILURE();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), ENOSPC);
    EXPECT_STREQ(error.what(),
                 "Konverze souboru /f.txt do /f.dos: na disku není místo\r\n"
                 "Soubor je poškozen, jeho původní obsah leží v /kept");
  }
  platform.answers = {Answer::kOk};
  ConvertToUnix(platform, "/f.unx");  // its own target
  EXPECT_EQ(platform.files["/f.unx"], "a\nb\n456");
  EXPECT_EQ(platform.busy, 0);
}

}  // namespace
}  // namespace pelmar
