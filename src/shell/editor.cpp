#include "shell/editor.h"

namespace pelmar {
namespace {

void AddDocumentCommands(Editor& e) {
  for (const std::string_view name : {"mnuclean", "New"}) e.commands.Add(name, [&e] { NewDocument(e); });
  e.commands.Add("Mnu_Open_Next_Window", [&e] { e.platform.StartAnotherCopy(); });
}

}  // namespace

Editor::Editor(Platform& platform_layer) : platform(platform_layer) { AddDocumentCommands(*this); }

void NewDocument(Editor& editor) {
  if (!editor.platform.Confirmed("Opravdu nový soubor ?", "Nový")) return;
  editor.documents.ClearCurrent();
}

}  // namespace pelmar
