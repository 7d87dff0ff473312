// The conversions of files: line ends, and between UTF-8 and Windows-1250.
#include <gtest/gtest.h>

#include <cerrno>

#include "files/encodings.h"
#include "files/line_ends.h"
#include "platform/runtime_error.h"
#include "support/marked_text.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

using enum Answer;

TEST(LineEnds, EqualASlowConversionOfRandomTexts) {
  RandomSource random(8);
  for (int round = 0; round < 3000; ++round) {
    const std::string text = random.Text(90, "a\r\n");
    std::string unix_text, dos_text;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] != '\n' || i == 0 || text[i - 1] != '\r') unix_text += text[i] == '\r' ? '\n' : text[i];
      dos_text += text[i] == '\n' ? "\r\n" : std::string(1, text[i]);
    }
    if (!unix_text.empty() && unix_text.back() != '\n') unix_text += '\n';
    dos_text.resize(dos_text.rfind('\n') + 1);  // required: the text after the last line feed is lost
    ASSERT_EQ(ToLineFeeds(text), unix_text) << text;
    ASSERT_EQ(ToCrLf(text), dos_text) << text;
  }
}

// required: the first full stop counts, even in the name of a folder
TEST(ConvertedPath, CutsThePathAtItsFirstFullStop) {
  EXPECT_EQ(ConvertedPath("/a.b.txt", "unx"), "/a.unx");
  EXPECT_EQ(ConvertedPath("/folder.d/lines.txt", "dos"), "/folder.dos");
  EXPECT_EQ(ConvertedPath("/name", "unx"), "unx");
}

struct ConversionTest : testing::Test {
  ScriptedPlatform platform;

  // Runs the conversion and returns its only message without the title.
  template <class Convert>
  std::string Message(const Convert& convert, const std::deque<Answer>& answers = {kOk}) {
    platform.answers = answers;
    std::vector<std::string> messages;
    platform.TakeCalls();
    convert();
    EXPECT_EQ(platform.busy, 0);
    for (const std::string& call : platform.TakeCalls())
      if (call.starts_with("message")) messages.push_back(call);
    if (messages.size() != 1) return std::to_string(messages.size()) + " messages";
    const std::string title = " \"Konverze UNIX <-> DOS\"";
    EXPECT_TRUE(messages[0].ends_with(title));
    return FoldLineEnds(messages[0].substr(0, messages[0].size() - title.size()));
  }
  std::string OfPage(const std::string& path, Answer answer = kOk) {
    return Message([&] { ConvertToPage(platform, path); }, {answer});
  }
  std::string OfUtf8(const std::string& path, Answer answer = kOk) {
    return Message([&] { ConvertToUtf8(platform, path, false); }, {answer});
  }
};

TEST_F(ConversionTest, ToUnixKeepsTheTailOfALongerOldFileAndToDosDoesNot) {  // required
  platform.files = {{"/a.txt", "a\nb"}, {"/a.unx", "0123456789"}, {"/a.dos", "0123456789"}};
  ConvertToUnix(platform, "/a.txt");
  EXPECT_EQ(platform.files["/a.unx"], "a\nb\n456789");
  ConvertToDos(platform, "/a.txt");
  EXPECT_EQ(platform.files["/a.dos"], "a\r\n");
  EXPECT_EQ(platform.TakeCallsInOneLine(), "busy 1; write /a.unx; busy 0; busy 1; write /a.dos; busy 0; ");
}

TEST_F(ConversionTest, AFileIsNeverWrittenOverItself) {
  platform.files = {{"/a.unx", "a"}, {"/a.1250", "a"}, {"/a.utf8", "a"}};
  const std::string refusal = "message 0 \"Výsledek by přepsal převáděný soubor:¶";
  EXPECT_EQ(Message([&] { ConvertToUnix(platform, "/a.unx"); }), refusal + "/a.unx\"");
  EXPECT_EQ(OfPage("/a.1250"), refusal + "/a.1250\"");
  EXPECT_EQ(OfUtf8("/a.utf8"), refusal + "/a.utf8\"");
}

TEST_F(ConversionTest, AFailureNamesTheFileAndWhereTheOldContentIs) {
  platform.files["/full.utf8"] = "a";
  for (const char* full : {"/full.1250", "/full.dos"}) platform.write_errors[full] = ENOSPC;
  platform.kept_content = "/kept";
  const std::string failure = "message 0 \"Soubor se nepodařilo převést!¶Soubor: ";
  const std::string missing = "Kód chyby 2: soubor nebo složka neexistuje\"";
  EXPECT_EQ(OfPage("/no"), failure + "/no¶" + missing);
  EXPECT_EQ(OfUtf8("/no"), failure + "/no¶" + missing);
  const std::string damaged = "na disku není místo¶Soubor je poškozen, jeho původní obsah leží v /kept";
  EXPECT_EQ(OfPage("/full.utf8"), failure + "/full.1250¶Kód chyby 28: " + damaged + '"');
  try {
    ConvertToDos(platform, "/full.utf8");
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), ENOSPC);
    EXPECT_EQ(FoldLineEnds(error.what()), "Konverze souboru /full.utf8 do /full.dos: " + damaged);
  }
  EXPECT_EQ(platform.busy, 0);
  EXPECT_THROW(ConvertToUnix(platform, "/no.txt"), RuntimeError);
  // An old target with an unknown tail isn't overwritten.
  platform.read_errors["/full.unx"] = EACCES;
  platform.TakeCalls();
  EXPECT_THROW(ConvertToUnix(platform, "/full.utf8"), RuntimeError);
  EXPECT_EQ(platform.TakeCallsInOneLine(), "busy 1; busy 0; ");
}

TEST_F(ConversionTest, MalformedUtf8IsReportedWithItsPosition) {
  const std::pair<const char*, const char*> cases[] = {
      {"\xE8", "řádek 1, sloupec 1, bajt 1"},
      {"\xEF\xBB\xBFůů\xC5", "řádek 1, sloupec 3, bajt 8"},  // the byte order mark has no column
      {"a\r\nb\rc\n\nůx\xC5y", "řádek 5, sloupec 3, bajt 12"},
  };
  for (const auto& [bytes, place] : cases) {
    platform.files = {{"/bad.txt", bytes}};
    EXPECT_EQ(OfPage("/bad.txt"),
              std::string("message 0 \"Soubor /bad.txt není v UTF-8:¶") + place + ".¶Nic nebylo zapsáno.\"");
    EXPECT_FALSE(platform.files.contains("/bad.1250"));
  }
}

TEST_F(ConversionTest, CharactersOutsideThePageAreAskedAbout) {
  const std::pair<const char*, const char*> cases[] = {
      {"ů\n→?😀\xC2\x85", "3.¶První je → (U+2192): řádek 2, sloupec 1, bajt 4."},
      {"\xC2\x85", "1.¶První je U+0085: řádek 1, sloupec 1, bajt 1."},  // a control character isn't shown
  };
  for (const auto& [text, found] : cases) {
    platform.files = {{"/a.txt", text}};
    EXPECT_EQ(OfPage("/a.txt", kNo),
              std::string("message 52 \"Soubor /a.txt obsahuje znaky, které ve Windows-1250 nejsou, celkem ") + found +
                  "¶¶Zapsat místo nich \"?\" ?\"");
    EXPECT_FALSE(platform.files.contains("/a.1250"));
  }
  platform.files = {{"/a.txt", "ů\n→?"}};
  OfPage("/a.txt", kYes);
  EXPECT_EQ(platform.files["/a.1250"], "\xF9\n??");
}

TEST_F(ConversionTest, WritesBesideTheSourceAndRestoresAnyText) {
  RandomSource random(3);
  const std::pair<const char*, const char*> stems[] = {
      {"/a.d/b.c.txt", "/a.d/b.c."}, {"/a.d/b", "/a.d/b."}, {"/a/.rc", "/a/.rc."}, {"b.", "b."}};
  for (int round = 0; round < 400; ++round) {
    const std::string page = round % 2 ? random.Bytes(12) : random.Text(12, "k\xF9\xF2\r\n\x80?");
    const bool byte_order_mark = round % 3 == 0;
    const std::string utf8 = (byte_order_mark ? "\xEF\xBB\xBF" : "") + ToUtf8(page);
    const auto& [path, stem] = stems[round % 4];
    platform.answers.assign(1, kYes);  // if the bytes already look like UTF-8
    platform.files = {{path, page}};
    ConvertToUtf8(platform, path, byte_order_mark);
    ASSERT_EQ(platform.files[stem + std::string("utf8")], utf8);
    platform.answers.clear();  // the way back asks nothing
    platform.files = {{path, utf8}};
    ConvertToPage(platform, path);
    ASSERT_EQ(platform.files[stem + std::string("1250")], page);
  }
}

TEST(FormatHint, NamesUtf8AndForeignLineEnds) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"\xC5\xBE\n", "Soubor je v UTF-8"}, {"a\nb\n", "Řádky končí"}, {"\na", "Některé"}, {"a\r\n\n", "Některé"}};
  for (const auto& [text, hint] : cases) EXPECT_TRUE(FormatHint(text).starts_with(hint)) << text;
  EXPECT_EQ(FormatHint("\xBE\r\na\r"), "");
  EXPECT_EQ(FormatHint(std::string_view("a\0\r\0\n\0", 6)), "");
}

}  // namespace
}  // namespace pelmar
