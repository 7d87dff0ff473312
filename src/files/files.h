// Opening and saving over the editor's document, and the commands that need no window of their own for it.
#pragma once

#include "files/open.h"
#include "files/outside_changes.h"
#include "files/save.h"
#include "shell/editor.h"

namespace pelmar {

struct Files {
  // The editor outlives them.
  explicit Files(Editor& editor)
      : outside(editor.documents, editor.platform),
        opener(editor.documents, editor.settings, editor.platform, editor.file_number, outside),
        saver(editor.documents, opener, editor.platform, editor.file_number, outside) {}

  OutsideChanges outside;
  Opener opener;
  Saver saver;
};

void AddFileCommands(Editor& editor, Files& files);

}  // namespace pelmar
