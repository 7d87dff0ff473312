#include "shell/services/status_timer.h"

#include <QApplication>
#include <optional>
#include <string>

#include "platform/qt/frames/outer_geometry.h"
#include "platform/twips.h"
#include "shell/status.h"
#include "shell/windows/main/main_window.h"

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
    const TwipsRect place = OuterGeometry(*window);
    const TwipsRect snapped = Snap(place, editor_.settings.AutosnapDistance, ScreenTwips(*window));
    if (requests_[window].MayRequest(place, snapped)) SetOuterPlace(*window, snapped);
  }
}

void StatusTimer::Tick() {
  SnapWindows();
  if (!window_.MainActive() || window_.Box().isHidden()) return;  // the lock hides the box
  const std::optional<std::string>& clipboard = editor_.platform.ClipboardContent();
  // A change of the menu bar would close an open menu.
  if (QApplication::activePopupWidget() == nullptr)
    window_.Menus().Apply(ComputeMenuState(editor_.text, editor_.documents.CurrentPath(), clipboard));
  StatusStrip& bar = window_.Bar();
  bar.Show(ComputePanels(editor_.text, editor_.settings.LineCounting));
  bar.ShowContent(ComputeContent(editor_.text, clipboard));
  bar.Show(editor_.platform.Keys());
  // No file operation runs while the main window is active. So if the number is in use, a failed operation left it so.
  bar.Warn(Warning::kFilesStuck, editor_.file_number.IsOpen() ? kFilesStuck.toString() : QString());
  window_.UpdateContentPanel();
}

}  // namespace pelmar
