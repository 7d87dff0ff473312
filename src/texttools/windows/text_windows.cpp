#include "shell/services/program_parts.h"
#include "shell/windows/main/main_window.h"
#include "shell/windows/pos.h"
#include "texttools/appearance.h"
#include "texttools/windows/formatuj.h"
#include "texttools/windows/hledani.h"
#include "texttools/windows/visual.h"
#include "texttools/windows/vyber.h"
#include "texttools/windows/zamena.h"

namespace pelmar {
namespace {

QRect SelectionOnScreen(const TextBox& box) {
  const TextBuffer& buffer = box.Buffer();
  if (!buffer.HasSelection() || !box.isVisible()) return {};
  const QRect whole = box.CharRect(buffer.SelStart()) | box.CharRect(buffer.SelStart() + buffer.SelLength() - 1);
  const QRect shown = whole & box.viewport()->rect();
  return {box.viewport()->mapToGlobal(shown.topLeft()), shown.size()};
}

}  // namespace

void AddTextWindows(const ProgramParts& parts) {
  const auto text = std::ref(parts.editor.text);
  const auto platform = std::ref(parts.platform);
  WindowRegistry& windows = parts.windows;
  const auto match = [&box = parts.main.Box()] { return SelectionOnScreen(box); };
  parts.Add<Hledani>({"mnufind", "Find"}, text, platform, match);
  parts.Add<Zamena>({"mnuchange"}, text, platform, match);
  parts.Add<Vyber>({}, text);
  parts.Add<Visual>({}, std::ref(parts.main), std::ref(parts.editor.settings),
                    Visual::Callbacks{parts.ColorCallback(), [&windows] { windows.GetFresh<Pos>().Present(); }});
  parts.editor.commands.Add("mnupresnvyb", [&windows] {
    auto& window = windows.GetFresh<Vyber>();
    if (window.isVisible()) window.Load();  // the selection may have changed
    window.Present();
  });
  parts.editor.commands.Add("mnumore", [&windows] { windows.GetFresh<Visual>().Present(); });
  parts.editor.commands.Add("mnu_format", [parts] { Formatuj(parts.editor.text, parts.platform, &parts.main).exec(); });
  AddAppearanceCommands(parts.editor, parts.main);
  parts.main.on_line_counting = [&windows] {
    if (auto* visual = windows.Find<Visual>()) visual->FollowLineCounting();
  };
  parts.main.on_font_size = [&windows] {
    if (auto* visual = windows.Find<Visual>()) visual->FollowFontSize();
  };
}

}  // namespace pelmar
