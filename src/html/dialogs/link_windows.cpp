#include "html/dialogs/link_windows.h"

#include "html/dialogs/kotva.h"
#include "html/dialogs/mail_to.h"
#include "html/dialogs/obrazek.h"
#include "html/dialogs/odkaz.h"
#include "html/dialogs/odkaz_na_jiny.h"
#include "html/dialogs/template.h"
#include "shell/windows/program_parts.h"

namespace pelmar {

void AddLinkWindows(const ProgramParts& parts) {
  TextBuffer& text = parts.editor.text;
  WindowRegistry& windows = parts.windows;
  windows.Register<Obrazek>(
      [parts, &text] { return std::make_unique<Obrazek>(text, parts.BrowserDoor(), &parts.main); });
  windows.Register<OdkazNaJiny>(
      [parts, &text] { return std::make_unique<OdkazNaJiny>(text, parts.BrowserDoor(), &parts.main); });
  windows.Register<Odkaz>([parts, &text] { return std::make_unique<Odkaz>(text, &parts.main); });
  windows.Register<Kotva>([parts, &text] {
    const auto remember = [parts](const QString& name) { parts.windows.Get<Odkaz>().AddAnchor(name); };
    return std::make_unique<Kotva>(text, remember, &parts.main);
  });
  windows.Register<MailTo>(
      [parts, &text] { return std::make_unique<MailTo>(text, parts.editor.settings.UserEmail, &parts.main); });
  windows.Register<Template>(
      [parts, &text] { return std::make_unique<Template>(text, parts.editor.settings, &parts.main); });
  parts.AddFilePicker<Obrazek>();
  parts.AddFilePicker<OdkazNaJiny>();
  parts.ShowBy<Obrazek>({"mnuobr", "Image"});
  parts.ShowBy<OdkazNaJiny>({"mnuodkazjiny", "Link"});
  parts.ShowBy<Odkaz>({"mnuodkaz"});
  parts.ShowBy<Kotva>({"mnukotva"});
  parts.ShowBy<MailTo>({"mnumailto"});
  parts.ShowBy<Template>({"mnutemplate"});
}

}  // namespace pelmar
