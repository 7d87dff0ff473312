#include "shell/services/program_parts.h"
#include "shell/windows/config.h"
#include "shell/windows/customize_toolbar.h"
#include "shell/windows/hlp.h"
#include "shell/windows/main/main_window.h"
#include "shell/windows/o.h"
#include "shell/windows/pass.h"
#include "shell/windows/pos.h"
#include "shell/windows/start.h"

namespace pelmar {

void AddShellWindows(const ProgramParts& parts) {
  const auto settings = std::ref(parts.editor.settings);
  const auto platform = std::ref(parts.platform);
  const auto main = std::ref(parts.main);
  parts.Add<Config>({}, settings, platform, [parts] { parts.session.StoreSettings(); });
  parts.Add<Pass>({}, settings, platform, [parts](bool hide) { parts.main.HideText(hide); });
  parts.Add<Hlp>({}, platform, [parts] { parts.windows.Get<O>().Present(); });
  parts.Add<O>({"mnuabout"}, settings, platform);
  parts.Add<Pos>({}, main);
  parts.Add<CustomizeToolbar>({"mnucust"}, std::ref(parts.main.Toolbar()));
  parts.windows.Register<Start>([parts] {
    return std::make_unique<Start>(
        parts.editor.settings,
        Start::Callbacks{[parts] { parts.main.ShowMain(); }, [parts] { parts.editor.commands.Run("mnuopen"); },
                         [parts] { parts.windows.Get<Config>().Run(); }});
  });
  parts.ShowBy<Start>({"mnustart"});
  for (const std::string_view name : {"mnuhlp", "Help"})
    parts.editor.commands.Add(name, [parts] { parts.windows.GetFresh<Hlp>().Present(); });
  for (const std::string_view name : {"Mnu_Lock", "Lock"})
    parts.editor.commands.Add(name, [parts] { parts.windows.GetFresh<Pass>().Run(); });
}

}  // namespace pelmar
