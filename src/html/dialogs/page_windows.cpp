#include "html/dialogs/frame.h"
#include "html/dialogs/frames.h"
#include "html/dialogs/table.h"
#include "html/dialogs/table_cell.h"
#include "html/dialogs/table_row.h"
#include "html/dialogs/vytvor.h"
#include "shell/services/program_parts.h"
#include "shell/windows/main/main_window.h"

namespace pelmar {

void AddPageWindows(const ProgramParts& parts) {
  const auto text = std::ref(parts.editor.text);
  const auto ask_cell = [&windows = parts.windows] { return windows.Get<TableCell>().AskAttributes(); };
  const auto ask_row = [&windows = parts.windows] { return windows.Get<TableRow>().AskAttributes(); };
  parts.Add<Table>({"mnutable", "Table"}, text, ask_cell, ask_row);
  parts.Add<TableRow>({"mnurow"}, text);
  parts.Add<TableCell>({"mnucell"}, text, parts.ColorCallback());
  parts.Add<Frames>({"mnuHTML_fset"}, text);
  parts.Add<Frame>({"mnuHTML_Fme"}, text, parts.BrowserCallback());
  parts.Add<Vytvor>({"mnucreate", "Newhtml"}, text, std::ref(parts.main), std::cref(parts.editor.settings),
                    std::ref(parts.platform), Vytvor::Callbacks{parts.ColorCallback(), parts.BrowserCallback()});
  parts.AddFilePicker<Frame>();
  parts.AddFilePicker<Vytvor>();
}

}  // namespace pelmar
