#include "files/files.h"

namespace pelmar {

void AddFileCommands(Editor& editor, Files& files) {
  editor.commands.Add("mnu_open_st", [&files] { files.opener.OpenStandard(); });
  editor.commands.Add("Mnu_Reload_File", [&files] { files.opener.ReloadFile(); });
  // required: a plain click opens the second entry, because the first one is usually the current document
  editor.commands.Add("Recent", [&files] { files.opener.OpenRecentFile(2); });
  editor.commands.Add("mnu_save_st", [&files] { files.saver.SaveStandard(); });
  editor.commands.Add("Mnu_SaveFast", [&files] { files.saver.SaveFast(); });
  for (const std::string_view name : {"mnuulvyb", "mnukopsoub"})
    editor.commands.Add(name, [&files] { files.saver.SaveSelectionAs(); });
  editor.commands.Add("mnuzesouboru", [&files] { files.saver.InsertFromFile(); });
}

}  // namespace pelmar
