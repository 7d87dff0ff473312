#include "files/windows/file_windows.h"

#include "files/printing.h"
#include "files/windows/dir_setup.h"
#include "files/windows/dos_unix_conv.h"
#include "files/windows/otevri.h"
#include "files/windows/uloz.h"
#include "html/dialogs/frame.h"
#include "html/dialogs/obrazek.h"
#include "html/dialogs/odkaz_na_jiny.h"
#include "html/dialogs/vytvor.h"
#include "platform/qt/controls/drive_list.h"
#include "platform/qt/controls/folder_list.h"
#include "shell/windows/program_parts.h"

namespace pelmar {
namespace {

// The lists of a dialog by their names, for the dialog of the working folders.
template <class Window>
std::function<DirSetup::Lists()> ListsOf(const ProgramParts& parts) {
  return [parts] {
    auto& window = parts.windows.Get<Window>();
    return DirSetup::Lists{window.template findChild<DriveList*>(QStringLiteral("Drive1")),
                           window.template findChild<FolderList*>(QStringLiteral("Dir1"))};
  };
}

// Every dialog that picks files.
std::vector<std::function<DirSetup::Lists()>> FilePickers(const ProgramParts& parts) {
  return {
      ListsOf<Vytvor>(parts),  ListsOf<Uloz>(parts),  ListsOf<Otevri>(parts),        ListsOf<OdkazNaJiny>(parts),
      ListsOf<Obrazek>(parts), ListsOf<Frame>(parts), ListsOf<Dos_Unix_conv>(parts),
  };
}

}  // namespace

void AddFileWindows(const ProgramParts& parts) {
  parts.windows.Register<Otevri>(
      [parts] { return std::make_unique<Otevri>(parts.editor.opener, parts.platform, &parts.main); });
  parts.windows.Register<Uloz>(
      [parts] { return std::make_unique<Uloz>(parts.editor.documents, parts.editor.saver, &parts.main); });
  parts.windows.Register<Dos_Unix_conv>(
      [parts] { return std::make_unique<Dos_Unix_conv>(parts.platform, &parts.main); });
  parts.windows.Register<DirSetup>([parts] { return std::make_unique<DirSetup>(FilePickers(parts), &parts.main); });
  parts.ShowBy<Otevri>({"mnuopen", "Open"});
  parts.ShowBy<Uloz>({"mnusave", "Save"});
  parts.ShowBy<Dos_Unix_conv>({"mnu_utiliti_dos_unix"});
  parts.ShowBy<DirSetup>({"mnudir"});
  AddPrintCommands(parts.editor, parts.main);
}

}  // namespace pelmar
