#include "files/windows/file_windows.h"

#include "files/windows/otevri.h"
#include "files/windows/uloz.h"
#include "shell/windows/program_parts.h"

namespace pelmar {

void AddFileWindows(const ProgramParts& parts) {
  parts.windows.Register<Otevri>(
      [parts] { return std::make_unique<Otevri>(parts.editor.opener, parts.platform, &parts.main); });
  parts.windows.Register<Uloz>(
      [parts] { return std::make_unique<Uloz>(parts.editor.documents, parts.editor.saver, &parts.main); });
  parts.ShowBy<Otevri>({"mnuopen", "Open"});
  parts.ShowBy<Uloz>({"mnusave", "Save"});
}

}  // namespace pelmar
