// The program without its windows: the one text, the documents over it, the settings and the commands that need no
// window of their own. Windows get the parts they need from here through their constructors.
#pragma once

#include "files/open.h"
#include "files/save.h"
#include "platform/platform.h"
#include "shell/commands.h"
#include "shell/documents.h"
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
  Opener opener{documents, settings, platform, file_number};
  Saver saver{documents, opener, platform, file_number};
  Commands commands;
};

// Clears the current tab after a question.
void NewDocument(Editor& editor);

}  // namespace pelmar
