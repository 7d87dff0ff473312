#include "files/encodings.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

using enum Answer;
using Convert = void (*)(Platform&, const std::string&);
const Convert kToPage = ConvertToPage;
const Convert kToUtf8 = [](Platform& platform, const std::string& path) { ConvertToUtf8(platform, path, false); };
const Convert kToUtf8WithMark = [](Platform& platform, const std::string& path) {
  ConvertToUtf8(platform, path, true);
};

TEST(Encodings, AnyTextGoesThereAndBackBesideItsFile) {
  RandomSource random(3);
  const std::pair<const char*, const char*> stems[] = {
      {"/a.d/b.c.txt", "/a.d/b.c."}, {"/a.d/b", "/a.d/b."}, {"/a/.rc", "/a/.rc."}, {"b.", "b."}};
  for (int round = 0; round < 400; ++round) {
    const std::string page = round % 2 ? random.Bytes(12) : random.Text(12, "k\xF9\xF2\r\n\x80?");
    const bool mark = round % 3 == 0;
    const std::string utf8 = (mark ? "\xEF\xBB\xBF" : "") + ToUtf8(page);
    const auto& [path, stem] = stems[round % 4];
    ScriptedPlatform platform;
    platform.answers.assign(1, kYes);  // where the bytes look like UTF-8 already
    platform.files = {{path, page}};
    (mark ? kToUtf8WithMark : kToUtf8)(platform, path);
    ASSERT_EQ(platform.files[stem + std::string("utf8")], utf8);
    platform.files = {{path, utf8}};
    kToPage(platform, path);
    ASSERT_EQ(platform.files[stem + std::string("1250")], page);
    ASSERT_EQ(platform.busy, 0);
  }
}

std::string Told(int type, const std::string& text) {
  return "message " + std::to_string(type) + " \"" + text + "\" \"Konverze UNIX <-> DOS\"; ";
}

TEST(Encodings, AskAndTellAndKeepWhatIsThere) {
  const auto no_utf8 = [](const std::string& place) {
    return Told(0, "Soubor /a.txt není v UTF-8:\r\nřádek " + place + ".\r\nNic nebylo zapsáno.");
  };
  const auto lacks = [](const std::string& what) {
    return Told(52, "Soubor /a.txt obsahuje znaky, které ve Windows-1250 nejsou, celkem " + what +
                        ".\r\n\r\nZapsat místo nich \"?\" ?");
  };
  const std::string three = lacks("3.\r\nPrvní je → (U+2192): řádek 2, sloupec 1, bajt 4");
  const std::string over = Told(52, "Opravdu uložit /old.1250?\r\nSoubor již existuje a bude přepsán!");
  const std::string failed = "Soubor se nepodařilo převést!\r\nSoubor: ";
  const std::string own = "Výsledek by přepsal převáděný soubor:\r\n";
  const struct {
    Convert convert;
    const char *path, *bytes;
    Answer answer;
    std::string told;
  } cases[] = {
      {kToPage, "/a.txt", "\xE8", kOk, no_utf8("1, sloupec 1, bajt 1")},
      {kToPage, "/a.txt", "\xEF\xBB\xBFůů\xC5", kOk, no_utf8("1, sloupec 3, bajt 8")},
      {kToPage, "/a.txt", "a\r\nb\rc\n\nůx\xC5y", kOk, no_utf8("5, sloupec 3, bajt 12")},
      {kToPage, "/a.txt", "ů\n→?😀\xC2\x85", kNo, three},
      {kToPage, "/a.txt", "ů\n→?😀\xC2\x85", kYes, three + "/a.1250=\xF9\n????"},
      {kToPage, "/a.txt", "\xC2\x85", kNo, lacks("1.\r\nPrvní je U+0085: řádek 1, sloupec 1, bajt 1")},
      {kToPage, "/old.utf8", "a", kNo, over},
      {kToPage, "/old.utf8", "a", kYes, over + "/old.1250=a"},
      {kToPage, "/a.1250", "a", kOk, Told(0, own + "/a.1250")},
      {kToUtf8, "/a.utf8", "a", kOk, Told(0, own + "/a.utf8")},
      {kToUtf8, "/a.txt", "ů", kNo, Told(52, "Soubor /a.txt je v UTF-8 už teď.\r\nOpravdu převést ?")},
      {kToPage, "/none", nullptr, kOk, Told(0, failed + "/none\r\nKód chyby 2")},
      {kToUtf8, "/none", nullptr, kOk, Told(0, failed + "/none\r\nKód chyby 2")},
      {kToPage, "/full.txt", "a", kOk, Told(0, failed + "/full.1250\r\nKód chyby 28")},
  };
  for (const auto& c : cases) {
    ScriptedPlatform platform;
    platform.files = {{"/old.1250", "old"}};
    if (c.bytes) platform.files[c.path] = c.bytes;
    const auto files = platform.files;
    platform.write_errors["/full.1250"] = ENOSPC;
    platform.answers = {c.answer};
    c.convert(platform, c.path);
    std::string told;
    for (const std::string& call : platform.calls)
      if (call.starts_with("message")) told += call + "; ";
    for (const auto& [path, bytes] : platform.files)
      if (!files.contains(path) || files.at(path) != bytes) told.append(path + '=').append(bytes);
    EXPECT_EQ(told, c.told) << c.path;
    EXPECT_EQ(platform.busy, 0);
  }
}

}  // namespace
}  // namespace pelmar
