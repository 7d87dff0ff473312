#include "program/commands.h"

#include "accessories/morse.h"
#include "ciphers/check_sums.h"
#include "ciphers/xor_cipher.h"
#include "files/files.h"
#include "html/lists.h"
#include "html/tag_commands.h"
#include "html/test_page.h"
#include "shell/insert_commands.h"
#include "texttools/commands.h"

namespace pelmar {

void AddCommands(Editor& editor, Files& files) {
  AddFileCommands(editor, files);
  AddTagCommands(editor);
  AddInsertCommands(editor);
  AddTextToolCommands(editor);
  AddListCommands(editor);
  AddPrimitiveCipherCommand(editor);
  AddCheckSumCommand(editor);
  AddPageTestCommands(editor);
  AddMorseCommand(editor);
}

}  // namespace pelmar
