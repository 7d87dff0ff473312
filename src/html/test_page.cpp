#include "html/test_page.h"

#include <cerrno>
#include <cstdint>

#include "platform/busy.h"
#include "platform/runtime_error.h"
#include "shell/common.h"
#include "text/insert.h"

namespace pelmar {
namespace {

constexpr std::string_view kPageName = "$$$PelmarTemp";
// Names that others have taken already are passed over, but not for ever.
constexpr int kMostNames = 100;

struct TestPage {
  std::string path;
  std::string digits;  // what the name has behind its fixed part
};

std::string DrawDigits(Platform& platform) {
  return std::to_string(static_cast<std::int64_t>(platform.Random() * 99'999'999.0));
}

// Throws RuntimeError where the page can't be written.
TestPage WriteTestPage(Editor& e, std::string_view extension, PageEnd end) {
  std::string text = e.text.Text();
  if (end == PageEnd::kLineBreak) text += kCrLf;
  const std::string folder = e.platform.TempFolder();
  e.platform.ReseedRandom();
  TestPage page;
  int error = EEXIST;
  const OpenNumber number(e.file_number);
  for (int tries = 0; error == EEXIST && tries < kMostNames; ++tries) {
    page.digits = DrawDigits(e.platform);
    page.path = folder + std::string(kPageName) + page.digits + std::string(extension);
    error = e.platform.WriteNewFile(page.path, text);
  }
  if (error != 0) throw RuntimeError(error, page.path);
  return page;
}

// Nothing where the page can't be written; the person has been told then.
std::optional<TestPage> TryTestPage(Editor& e, std::string_view extension, PageEnd end, std::string_view title) {
  try {
    return WriteTestPage(e, extension, end);
  } catch (const RuntimeError& error) {
    e.platform.Message(MessageType::kOk,
                       "Testovací stránku nelze zapsat do složky " + e.platform.TempFolder() + "\r\nKód chyby " +
                           std::to_string(error.Number()),
                       title);
    return std::nullopt;
  }
}

void RemoveHtml(Editor& e) {
  const BusyPointer busy(e.platform);
  ReplaceSelection(e.text, StripHtml(e.text.SelText()));
}

void TestHtml(Editor& e) {
  const std::string path = e.documents.CurrentPath();
  if (!path.empty() && e.platform.Message(MessageType::kYesNoWarning, "Soubor je uložen, zobrazit uloženou verzi ?",
                                          "Nový") == Answer::kYes) {
    e.platform.OpenWithDefaultProgram(path);
    return;
  }
  const std::optional<TestPage> page = TryTestPage(e, ".htm", PageEnd::kLineBreak, "Testuj html");
  if (!page) return;
  // required: the name that is opened lacks the fixed part of the name that was written, and no message follows
  e.platform.OpenWithDefaultProgram(e.platform.TempFolder() + page->digits + ".htm");
}

}  // namespace

std::string StripHtml(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  bool inside = false;
  for (const char ch : text) {
    if (ch == '<') {
      inside = true;
    } else if (inside) {
      inside = ch != '>';
    } else {
      plain += ch;
    }
  }
  return plain;
}

std::optional<std::string> PageToShow(Editor& editor, PageEnd end) {
  if (const std::string& path = editor.documents.CurrentPath(); !path.empty()) return path;
  const std::optional<TestPage> page = TryTestPage(editor, ".html", end, "Interní browser");
  return page ? std::optional(page->path) : std::nullopt;
}

void AddPageTestCommands(Editor& editor) {
  editor.commands.Add("mnuNoHtml", [&editor] { RemoveHtml(editor); });
  editor.commands.Add("mnutest", [&editor] { TestHtml(editor); });
}

}  // namespace pelmar
