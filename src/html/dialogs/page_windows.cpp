#include "html/dialogs/page_windows.h"

#include "html/dialogs/frame.h"
#include "html/dialogs/frames.h"
#include "html/dialogs/table.h"
#include "html/dialogs/table_cell.h"
#include "html/dialogs/table_row.h"
#include "html/dialogs/vytvor.h"
#include "shell/windows/program_parts.h"

namespace pelmar {
namespace {

void AddTables(const ProgramParts& parts) {
  TextBuffer& text = parts.editor.text;
  parts.windows.Register<TableRow>([parts, &text] { return std::make_unique<TableRow>(text, &parts.main); });
  parts.windows.Register<TableCell>(
      [parts, &text] { return std::make_unique<TableCell>(text, parts.ColorDoor(), &parts.main); });
  parts.windows.Register<Table>([parts, &text] {
    return std::make_unique<Table>(
        text, [parts] { return parts.windows.Get<TableCell>().AskAttributes(); },
        [parts] { return parts.windows.Get<TableRow>().AskAttributes(); }, &parts.main);
  });
  parts.ShowBy<Table>({"mnutable", "Table"});
  parts.ShowBy<TableRow>({"mnurow"});
  parts.ShowBy<TableCell>({"mnucell"});
}

}  // namespace

void AddPageWindows(const ProgramParts& parts) {
  TextBuffer& text = parts.editor.text;
  AddTables(parts);
  parts.windows.Register<Frames>([parts, &text] { return std::make_unique<Frames>(text, &parts.main); });
  parts.windows.Register<Frame>(
      [parts, &text] { return std::make_unique<Frame>(text, parts.BrowserDoor(), &parts.main); });
  parts.windows.Register<Vytvor>([parts, &text] {
    return std::make_unique<Vytvor>(text, parts.main, parts.editor.settings, parts.platform,
                                    Vytvor::Doors{parts.ColorDoor(), parts.BrowserDoor()}, &parts.main);
  });
  parts.AddFilePicker<Frame>();
  parts.AddFilePicker<Vytvor>();
  parts.ShowBy<Frames>({"mnuHTML_fset"});
  parts.ShowBy<Frame>({"mnuHTML_Fme"});
  parts.ShowBy<Vytvor>({"mnucreate", "Newhtml"});
}

}  // namespace pelmar
