#include "shell/windows/status_timer.h"

#include <QApplication>

#include "platform/qt/outer_geometry.h"
#include "platform/twips.h"
#include "shell/status.h"
#include "shell/windows/main_window.h"

namespace pelmar {
namespace {

constexpr int kInterval = 500;
constexpr QStringView kFilesStuck = u"Soubory nelze otevírat ani ukládat, pomůže jen nový start programu";

}  // namespace

StatusTimer::StatusTimer(MainWindow& window, Editor& editor) : QTimer(&window), window_(window), editor_(editor) {
  setObjectName(QStringLiteral("Timer1"));
  setInterval(kInterval);
  connect(this, &QTimer::timeout, this, &StatusTimer::Tick);
}

void StatusTimer::SnapWindows() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  std::erase_if(requests_, [&](const auto& of_window) { return !windows.contains(of_window.first); });
  for (QWidget* window : windows) {
    if (window->property(kTagProperty).toString() != QLatin1String(kAutosnapTag)) continue;
    if (!window->isVisible() || window->isMinimized() || window->isMaximized()) continue;
    const QSize screen = ScreenTwips(*window);
    const TwipsRect place = OuterGeometry(*window);
    const TwipsRect snapped = Snap(place, editor_.settings.AutosnapDistance, screen.width(), screen.height());
    if (snapped != place && requests_[window].Worthwhile(place, snapped)) SetOuterPlace(*window, snapped);
  }
}

void StatusTimer::Tick() {
  SnapWindows();
  if (!window_.MainActive()) return;
  const bool has_clipboard = editor_.platform.ClipboardHasText();
  const std::string clipboard = editor_.platform.ClipboardText();
  window_.Menus().Apply(ComputeMenuState(editor_.text, editor_.documents.CurrentPath(), clipboard));
  StatusStrip& bar = window_.Bar();
  bar.Show(ComputePanels(editor_.text, editor_.settings.LineCounting,
                         has_clipboard ? std::optional<std::string_view>(clipboard) : std::nullopt));
  bar.Show(editor_.platform.Keys());
  // The main window isn't active while an operation is at work on a file: this one was abandoned.
  bar.SetNotice(editor_.file_number.IsOpen() ? kFilesStuck.toString() : QString());
  window_.WidenContentPanel();
}

}  // namespace pelmar
