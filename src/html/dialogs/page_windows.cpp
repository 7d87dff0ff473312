#include "html/dialogs/page_windows.h"

#include "accessories/windows/color_dialog.h"
#include "html/dialogs/table.h"
#include "html/dialogs/table_cell.h"
#include "html/dialogs/table_row.h"
#include "shell/windows/program_parts.h"

namespace pelmar {

void AddPageWindows(const ProgramParts& parts) {
  TextBuffer& text = parts.editor.text;
  WindowRegistry& windows = parts.windows;
  windows.Register<TableRow>([parts, &text] { return std::make_unique<TableRow>(text, &parts.main); });
  windows.Register<TableCell>(
      [parts, &text] { return std::make_unique<TableCell>(text, ColorPicker(parts.windows), &parts.main); });
  windows.Register<Table>([parts, &text] {
    return std::make_unique<Table>(
        text, [parts] { return parts.windows.Get<TableCell>().AskAttributes(); },
        [parts] { return parts.windows.Get<TableRow>().AskAttributes(); }, &parts.main);
  });
  parts.ShowBy<Table>({"mnutable", "Table"});
  parts.ShowBy<TableRow>({"mnurow"});
  parts.ShowBy<TableCell>({"mnucell"});
}

}  // namespace pelmar
