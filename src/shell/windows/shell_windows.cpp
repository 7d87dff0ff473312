#include "shell/windows/shell_windows.h"

#include "shell/windows/config.h"
#include "shell/windows/customize_toolbar.h"
#include "shell/windows/hlp.h"
#include "shell/windows/o.h"
#include "shell/windows/pass.h"
#include "shell/windows/pos.h"
#include "shell/windows/program_parts.h"
#include "shell/windows/start.h"

namespace pelmar {

void AddShellWindows(const ProgramParts& parts) {
  WindowRegistry& windows = parts.windows;
  windows.Register<Config>([parts] {
    return std::make_unique<Config>(
        parts.editor.settings, parts.platform, [parts] { parts.doors.store_settings(); }, &parts.main);
  });
  windows.Register<Pass>([parts] {
    return std::make_unique<Pass>(
        parts.editor.settings, parts.platform, [parts](bool hide) { parts.main.HideText(hide); }, &parts.main);
  });
  windows.Register<Start>([parts] {
    return std::make_unique<Start>(
        parts.editor.settings,
        Start::Doors{[parts] { parts.main.ShowMain(); }, [parts] { parts.editor.commands.Run("mnuopen"); },
                     [parts] { parts.windows.Get<Config>().Run(); }});
  });
  windows.Register<Hlp>([parts] {
    return std::make_unique<Hlp>(
        parts.platform, [parts] { parts.windows.Get<O>().Present(); }, &parts.main);
  });
  windows.Register<O>([parts] { return std::make_unique<O>(parts.editor.settings, parts.platform, &parts.main); });
  windows.Register<Pos>([parts] { return std::make_unique<Pos>(parts.main, &parts.main); });
  windows.Register<CustomizeToolbar>(
      [parts] { return std::make_unique<CustomizeToolbar>(parts.main.Toolbar(), &parts.main); });

  parts.ShowBy<CustomizeToolbar>({"mnucust"});
  parts.ShowBy<Start>({"mnustart"});
  parts.ShowBy<O>({"mnuabout"});
  for (const std::string_view name : {"mnuhlp", "Help"})
    parts.editor.commands.Add(name, [parts] { parts.windows.Anew<Hlp>().Present(); });
  for (const std::string_view name : {"Mnu_Lock", "Lock"})
    parts.editor.commands.Add(name, [parts] { parts.windows.Anew<Pass>().Run(); });
}

}  // namespace pelmar
