#include "html/test_page.h"

#include "platform/error_text.h"
#include "platform/runtime_error.h"
#include "shell/common.h"
#include "shell/temp_file.h"

namespace pelmar {
namespace {

constexpr std::string_view kPageName = "$$$PelmarTemp";

// Writes the document to a temporary page. If the page can't be written, shows a message and returns nothing.
std::optional<TempFile> WriteTestPage(Editor& e, std::string_view extension, PageEnd end, std::string_view title) {
  std::string text = e.text.Text();
  if (end == PageEnd::kLineBreak) text += kCrLf;
  TempFile page;
  try {
    e.platform.ReseedRandom();
    const FileNumberGuard number(e.file_number);
    page = WriteTempFile(e.platform, kPageName, extension, text);
  } catch (const RuntimeError& error) {
    page.error = error.Number();
  }
  if (page.error == 0) return page;
  e.platform.Message(MessageType::kOk,
                     "Testovací stránku nelze zapsat do složky " + e.platform.TempFolder() + "\r\nKód chyby " +
                         std::to_string(page.error) + ": " + ErrorText(page.error),
                     title);
  return std::nullopt;
}

void RemoveHtml(Editor& e) {
  const BusyPointer busy(e.platform);
  e.text.ReplaceSelection(StripHtml(e.text.SelText()));
}

void TestHtml(Editor& e) {
  const std::string path = e.documents.CurrentPath();
  if (!path.empty() && e.platform.Confirmed("Soubor je uložen, zobrazit uloženou verzi ?", "Nový")) {
    e.platform.OpenWithDefaultProgram(path);
    return;
  }
  const std::optional<TempFile> page = WriteTestPage(e, ".htm", PageEnd::kLineBreak, "Testuj html");
  if (!page) return;
  // required: this path lacks kPageName, so the written page doesn't open. No message says so
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
  const std::optional<TempFile> page = WriteTestPage(editor, ".html", end, "Interní browser");
  return page ? std::optional(page->path) : std::nullopt;
}

void AddPageTestCommands(Editor& editor) {
  editor.commands.Add("mnuNoHtml", [&editor] { RemoveHtml(editor); });
  editor.commands.Add("mnutest", [&editor] { TestHtml(editor); });
}

}  // namespace pelmar
