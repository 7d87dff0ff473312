#include "html/dialogs/kotva.h"
#include "html/dialogs/mail_to.h"
#include "html/dialogs/obrazek.h"
#include "html/dialogs/odkaz.h"
#include "html/dialogs/odkaz_na_jiny.h"
#include "html/dialogs/template.h"
#include "shell/services/program_parts.h"

namespace pelmar {

void AddLinkWindows(const ProgramParts& parts) {
  const auto text = std::ref(parts.editor.text);
  const auto settings = std::cref(parts.editor.settings);
  const auto remember = [&windows = parts.windows](const QString& name) { windows.Get<Odkaz>().AddAnchor(name); };
  parts.Add<Obrazek>({"mnuobr", "Image"}, text, parts.BrowserCallback());
  parts.Add<OdkazNaJiny>({"mnuodkazjiny", "Link"}, text, parts.BrowserCallback());
  parts.Add<Odkaz>({"mnuodkaz"}, text);
  parts.Add<Kotva>({"mnukotva"}, text, remember);
  parts.Add<MailTo>({"mnumailto"}, text, std::cref(settings.get().UserEmail));
  parts.Add<Template>({"mnutemplate"}, text, settings);
  parts.AddFilePicker<Obrazek>();
  parts.AddFilePicker<OdkazNaJiny>();
}

}  // namespace pelmar
