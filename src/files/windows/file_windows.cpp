#include "files/windows/file_windows.h"

#include "files/printing.h"
#include "files/windows/dir_setup.h"
#include "files/windows/dos_unix_conv.h"
#include "files/windows/otevri.h"
#include "files/windows/uloz.h"
#include "shell/windows/program_parts.h"

namespace pelmar {

void AddFileWindows(const ProgramParts& parts) {
  parts.windows.Register<Otevri>(
      [parts] { return std::make_unique<Otevri>(parts.files.opener, parts.platform, &parts.main); });
  parts.windows.Register<Uloz>(
      [parts] { return std::make_unique<Uloz>(parts.editor.documents, parts.files.saver, &parts.main); });
  parts.windows.Register<Dos_Unix_conv>(
      [parts] { return std::make_unique<Dos_Unix_conv>(parts.platform, &parts.main); });
  parts.windows.Register<DirSetup>([parts] { return std::make_unique<DirSetup>(parts.file_pickers, &parts.main); });
  parts.AddFilePicker<Otevri>();
  parts.AddFilePicker<Uloz>();
  parts.AddFilePicker<Dos_Unix_conv>();
  parts.ShowBy<Otevri>({"mnuopen", "Open"});
  parts.ShowBy<Uloz>({"mnusave", "Save"});
  parts.ShowBy<Dos_Unix_conv>({"mnu_utiliti_dos_unix"});
  parts.ShowBy<DirSetup>({"mnudir"});
  AddPrintCommands(parts.editor, parts.main);
}

}  // namespace pelmar
