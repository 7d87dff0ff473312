#include "shell/editor.h"

#include <string>

#include "ciphers/commands.h"
#include "html/insert.h"
#include "html/lists.h"
#include "html/test_page.h"
#include "texttools/commands.h"

namespace pelmar {
namespace {

void AddDocumentCommands(Editor& e) {
  e.commands.Add("mnuclean", [&e] { NewDocument(e); });
  e.commands.Add("New", [&e] { NewDocument(e); });
  e.commands.Add("Mnu_Open_Next_Window", [&e] { e.platform.StartAnotherCopy(); });
}

void AddFileCommands(Editor& e) {
  e.commands.Add("mnu_open_st", [&e] { e.opener.OpenStandard(); });
  e.commands.Add("Mnu_Reload_File", [&e] { e.opener.ReloadFile(); });
  // required: a plain click opens the second entry, since the first is as a rule the document at hand
  e.commands.Add("Recent", [&e] { e.opener.OpenRecentFile(2); });
  e.commands.Add("mnu_save_st", [&e] { e.saver.SaveStandard(); });
  e.commands.Add("Mnu_SaveFast", [&e] { e.saver.SaveFast(); });
  e.commands.Add("mnuulvyb", [&e] { e.saver.SaveSelectionAs(); });
  e.commands.Add("mnukopsoub", [&e] { e.saver.SaveSelectionAs(); });
  e.commands.Add("mnuzesouboru", [&e] { e.saver.InsertFromFile(); });
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

void AddTagCommands(Editor& e) {
  for (const TagWrapper& tag : TagWrappers())
    e.commands.Add(tag.command, [&e, &tag] { WrapSelection(e.text, tag.open, tag.close, tag.sample); });
  for (const FixedInsert& insert : FixedInserts())
    e.commands.Add(insert.command, [&e, &insert] { InsertAtCaret(e.text, insert.text); });
  e.commands.Add("mnudate", [&e] { InsertAtCaret(e.text, DateText(e.platform.Now())); });
  e.commands.Add("mnutime", [&e] { InsertAtCaret(e.text, TimeText(e.platform.Now())); });
  e.commands.Add("mnuemail", [&e] { InsertAtCaret(e.text, EmailText(e.settings)); });
}

}  // namespace

Editor::Editor(Platform& platform_layer) : platform(platform_layer) {
  AddDocumentCommands(*this);
  AddFileCommands(*this);
  AddToolbarClipboard(*this);
  AddTagCommands(*this);
  AddTextToolCommands(*this);
  AddListCommands(*this);
  AddCipherCommands(*this);
  AddPageTestCommands(*this);
}

void NewDocument(Editor& editor) {
  if (editor.platform.Message(MessageType::kYesNoWarning, "Opravdu nový soubor ?", "Nový") != Answer::kYes) return;
  editor.documents.ClearCurrent();
}

}  // namespace pelmar
