// The program without its windows: the text, the documents, the settings and the commands. Windows get the parts they
// need through their constructors.
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

// Clears the selected tab if the person confirms.
void NewDocument(Editor& editor);

}  // namespace pelmar
