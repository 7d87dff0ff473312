#include "texttools/windows/text_windows.h"

#include "shell/windows/pos.h"
#include "shell/windows/program_parts.h"
#include "texttools/appearance.h"
#include "texttools/windows/formatuj.h"
#include "texttools/windows/hledani.h"
#include "texttools/windows/visual.h"
#include "texttools/windows/vyber.h"
#include "texttools/windows/zamena.h"

namespace pelmar {
namespace {

QRect SelectionOnScreen(const TextBox& box) {
  const TextBuffer& text = box.Buffer();
  if (!text.HasSelection() || !box.isVisible()) return {};
  const QRect whole = box.CharRect(text.SelStart()) | box.CharRect(text.SelStart() + text.SelLength() - 1);
  const QRect shown = whole & box.viewport()->rect();
  return {box.viewport()->mapToGlobal(shown.topLeft()), shown.size()};
}

}  // namespace

void AddTextWindows(const ProgramParts& parts) {
  TextBuffer& text = parts.editor.text;
  WindowRegistry& windows = parts.windows;
  const auto match = [&box = parts.main.Text()] { return SelectionOnScreen(box); };
  windows.Register<Hledani>(
      [parts, &text, match] { return std::make_unique<Hledani>(text, parts.platform, match, &parts.main); });
  windows.Register<Zamena>(
      [parts, &text, match] { return std::make_unique<Zamena>(text, parts.platform, match, &parts.main); });
  windows.Register<Vyber>([parts, &text] { return std::make_unique<Vyber>(text, &parts.main); });
  windows.Register<Visual>([parts] {
    return std::make_unique<Visual>(parts.main, parts.editor.settings,
                                    Visual::Doors{parts.ColorDoor(), [parts] { parts.windows.Anew<Pos>().Present(); }},
                                    &parts.main);
  });
  parts.ShowBy<Hledani>({"mnufind", "Find"});
  parts.ShowBy<Zamena>({"mnuchange"});
  parts.editor.commands.Add("mnupresnvyb", [&windows] {
    auto& window = windows.Anew<Vyber>();
    if (window.isVisible()) window.Load();  // the selection may be another one by now
    window.Present();
  });
  parts.editor.commands.Add("mnumore", [&windows] { windows.Anew<Visual>().Present(); });

  parts.editor.commands.Add("mnu_format", [parts, &text] { Formatuj(text, parts.platform, &parts.main).exec(); });
  AddAppearanceCommands(parts.editor, parts.main);
  parts.main.on_line_counting = [&windows] {
    if (auto* visual = windows.Find<Visual>()) visual->FollowLineCounting();
  };
  parts.main.on_font_size = [&windows] {
    if (auto* visual = windows.Find<Visual>()) visual->FollowFontSize();
  };
}

}  // namespace pelmar
