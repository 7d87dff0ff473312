// The program without its windows: the one text, the documents over it, the settings and the commands that need no
// window of their own. Windows get the parts they need from here through their constructors.
#pragma once

#include "platform/platform.h"
#include "shell/commands.h"
#include "shell/documents.h"
#include "shell/file_number.h"
#include "shell/settings_record.h"
#include "text/text_buffer.h"

namespace pelmar {

struct Editor {
  explicit Editor(Platform& platform_layer);

  Platform& platform;
  SettingsRecord settings;
  FileNumber file_number;
  TextBuffer text;
  Documents documents{text};
  Commands commands;
};

// Clears the current tab after a question.
void NewDocument(Editor& editor);

}  // namespace pelmar
