#include "shell/editor.h"

#include "text/insert.h"

namespace pelmar {
namespace {

void AddDocumentCommands(Editor& e) {
  e.commands.Add("mnuclean", [&e] { NewDocument(e); });
  e.commands.Add("New", [&e] { NewDocument(e); });
  e.commands.Add("Mnu_Open_Next_Window", [&e] { e.platform.StartAnotherCopy(); });
}

void AddToolbarClipboard(Editor& e) {
  e.commands.Add("Cut", [&e] {
    e.platform.SetClipboardText(e.text.SelText());
    e.text.ReplaceSelection({});
  });
  e.commands.Add("Copy", [&e] { e.platform.SetClipboardText(e.text.SelText()); });
  // required: a selection isn't replaced, the text goes before it
  e.commands.Add("Paste", [&e] { InsertAtCaret(e.text, e.platform.ClipboardText()); });
}

}  // namespace

Editor::Editor(Platform& platform_layer) : platform(platform_layer) {
  AddDocumentCommands(*this);
  AddToolbarClipboard(*this);
}

void NewDocument(Editor& editor) {
  if (editor.platform.Message(MessageType::kYesNoWarning, "Opravdu nový soubor ?", "Nový") != Answer::kYes) return;
  editor.documents.ClearCurrent();
}

}  // namespace pelmar
