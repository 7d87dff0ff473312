#include "texttools/commands.h"

#include <functional>
#include <string>

#include "shell/common.h"
#include "shell/editor.h"
#include "text/codepage.h"
#include "text/insert.h"
#include "texttools/find.h"
#include "texttools/lines.h"
#include "texttools/random_text.h"

namespace pelmar {
namespace {

// The first character of each word in upper case, all other characters in lower case. Only blanks and the control
// characters 0 and 9 to 13 separate words.
std::string ProperCase(std::string_view text) {
  std::string result(text);
  bool first = true;
  for (char& ch : result) {
    ch = first ? ToUpper(ch) : ToLower(ch);
    first = ch == '\0' || ch == ' ' || (ch >= '\t' && ch <= '\r');
  }
  return result;
}

// The characters from last to first. A line break becomes LF CR.
std::string Reversed(std::string_view text) { return {text.rbegin(), text.rend()}; }

// Adds a command that replaces the selected text by what `transform` returns.
void AddTransform(Editor& e, std::string_view name, std::function<std::string(std::string_view)> transform) {
  e.commands.Add(name,
                 [&e, transform = std::move(transform)] { e.text.ReplaceSelection(transform(e.text.SelText())); });
}

void AddTransforms(Editor& e) {
  AddTransform(e, "mnusmall", [](std::string_view text) { return ToLower(text); });
  AddTransform(e, "mnubig", [](std::string_view text) { return ToUpper(text); });
  AddTransform(e, "mnupropercase", ProperCase);
  AddTransform(e, "mnuprevrat", Reversed);
  AddTransform(e, "mnuHackyCarky", StripDiacritics);
  AddTransform(e, "mnu_untext", [&e](std::string_view text) {
    e.platform.ReseedRandom();
    return RandomCase(text, DrawFrom(e.platform));
  });
}

void CountCharacters(Editor& e) {
  const std::size_t selected = e.text.SelLength();
  const std::string message = selected != 0 ? "Počet znaků je : " + std::to_string(selected)
                                            : "Počet znaků v celém textu je : " + std::to_string(e.text.Size());
  e.platform.Message(MessageType::kOk, message + " celkem.", "Znaky");
}

void NumberSelectedLines(Editor& e) {
  if (!e.text.HasSelection()) {
    e.platform.Message(MessageType::kOk, "Vyber text", "Očíslování");
    return;
  }
  e.text.ReplaceSelection(NumberLines(e.text.SelText()));
}

// Adds a command that shows the hourglass while it works.
void AddBusy(Editor& e, std::string_view name, std::function<void()> work) {
  e.commands.Add(name, [&e, work = std::move(work)] {
    const BusyPointer busy(e.platform);
    work();
  });
}

void AddLineTools(Editor& e) {
  AddBusy(e, "Mnu_Sort_Lines", [&e] {
    const auto order = [&e](const std::vector<std::string_view>& lines) { return e.platform.SortedOrder(lines); };
    e.text.ReplaceSelection(SortLines(e.text.SelText(), order));
  });
  AddBusy(e, "mnuEnterLineNumbers", [&e] { NumberSelectedLines(e); });
  AddBusy(e, "MnuSelTextDivideWordsToLines", [&e] { e.text.ReplaceSelection(WordsToLines(e.text.SelText())); });
  e.commands.Add("mnucharcount", [&e] { CountCharacters(e); });
}

// Adds a command that inserts a generated text before the selection. The selected text stays, but is no longer
// selected.
void AddGenerator(Editor& e, std::string_view name, std::string (*generate)(const Draw&)) {
  e.commands.Add(name, [&e, generate] {
    e.platform.ReseedRandom();
    InsertAtCaret(e.text, generate(DrawFrom(e.platform)));
  });
}

void AddRandomTexts(Editor& e) {
  AddGenerator(e, "mnunahtex", RandomSentence);
  AddGenerator(e, "mnunahslovo", RandomWord);
  AddGenerator(e, "mnunahjmeno", RandomName);
  AddBusy(e, "MnuSelTextDada", [&e] {
    e.platform.ReseedRandom();
    e.text.ReplaceSelection(ShuffledWords(e.text.SelText(), DrawFrom(e.platform)));
  });
}

void AddClipboardCommands(Editor& e) {
  for (const std::string_view name : {"Cut", "mnucut"})
    e.commands.Add(name, [&e] {
      e.platform.SetClipboardText(e.text.SelText());
      e.text.ReplaceSelection({});
    });
  for (const std::string_view name : {"Copy", "mnucopysel"})
    e.commands.Add(name, [&e] { e.platform.SetClipboardText(e.text.SelText()); });
  // required: the pasted text goes before the selection and does not replace the selection
  for (const std::string_view name : {"Paste", "mnuadd"})
    e.commands.Add(name, [&e] { InsertAtCaret(e.text, e.platform.ClipboardText()); });
  e.commands.Add("mnucopy", [&e] { e.platform.SetClipboardText(e.text.Text()); });
  e.commands.Add("mnuinsert", [&e] {
    if (e.platform.Confirmed("Opravdu vše nahradit textem ze schránky ?", "Vložení"))
      e.text.SetText(e.platform.ClipboardText());
  });
  e.commands.Add("mnunewclip", [&e] {
    if (e.platform.Confirmed("Opravdu nový dokument z textu ve schránce ?", "Nový"))
      e.text.SetText(e.platform.ClipboardText());
    e.documents.ForgetPath();  // required: on No as well
  });
  e.commands.Add("mnuclearclip", [&e] {
    if (e.platform.Confirmed("Opravdu vyčistit schránku ?", "Vyčištění")) e.platform.ClearClipboard();
  });
  e.commands.Add("mnuallselect", [&e] { e.text.Select(0, e.text.Size()); });
}

}  // namespace

void AddTextToolCommands(Editor& editor) {
  AddTransforms(editor);
  AddLineTools(editor);
  AddRandomTexts(editor);
  AddClipboardCommands(editor);
  editor.commands.Add("mnusearch", [&editor] { FindPrimitively(editor.text, editor.platform); });
}

}  // namespace pelmar
