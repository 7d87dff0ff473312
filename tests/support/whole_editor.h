// The editor with its files and every command that needs no window.
#pragma once

#include "files/files.h"
#include "program/commands.h"
#include "shell/editor.h"

namespace pelmar {

struct WholeEditor : Editor {
  explicit WholeEditor(Platform& platform_layer) : Editor(platform_layer) { AddCommands(*this, files); }

  Files files{*this};
  Opener& opener = files.opener;
  Saver& saver = files.saver;
};

}  // namespace pelmar
