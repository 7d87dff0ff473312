// Opens and saves the editor's document. Adds the commands of Opener and Saver, except those that show the dialog
// Otevři or Ulož.
#pragma once

#include "files/open.h"
#include "files/save.h"
#include "shell/editor.h"

namespace pelmar {

struct Files {
  // The editor must outlive this object.
  explicit Files(Editor& editor)
      : recent(editor.settings, editor.platform),
        opener(editor.documents, recent, editor.platform, editor.file_number),
        saver(editor.documents, recent, editor.platform, editor.file_number) {}

  RecentFiles recent;
  Opener opener;
  Saver saver;
};

void AddFileCommands(Editor& editor, Files& files);

}  // namespace pelmar
