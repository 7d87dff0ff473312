#include "files/printing.h"
#include "files/windows/dir_setup.h"
#include "files/windows/dos_unix_conv.h"
#include "files/windows/file_warnings.h"
#include "files/windows/otevri.h"
#include "files/windows/uloz.h"
#include "shell/services/program_parts.h"

namespace pelmar {

void AddFileWindows(const ProgramParts& parts) {
  const auto platform = std::ref(parts.platform);
  parts.Add<Otevri>({"mnuopen", "Open"}, std::ref(parts.files.opener), platform);
  parts.Add<Uloz>({"mnusave", "Save"}, std::ref(parts.editor.documents), std::ref(parts.files.saver));
  parts.Add<Dos_Unix_conv>({"mnu_utiliti_dos_unix"}, platform);
  parts.Add<DirSetup>({"mnudir"}, std::cref(parts.services.folder_browsers));
  parts.AddFilePicker<Otevri>();
  parts.AddFilePicker<Uloz>();
  parts.AddFilePicker<Dos_Unix_conv>();
  AddPrintCommands(parts.editor, parts.main);
  new FileWarnings(parts.main, parts.editor);
}

}  // namespace pelmar
