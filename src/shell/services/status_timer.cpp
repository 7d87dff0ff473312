#include "shell/services/status_timer.h"

#include <QApplication>
#include <utility>

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
    if (snapped != place && requests_[window].MayRequest(place, snapped)) SetOuterPlace(*window, snapped);
  }
}

// Updates only panels whose content may have changed, because a long document or clipboard takes time.
void StatusTimer::ShowPanels(std::uint64_t clipboard_revision, const std::optional<std::string>& clipboard) {
  const TextBuffer& buffer = editor_.text;
  StatusStrip& bar = window_.Bar();
  if (bar.Cleared()) {
    shown_text_.reset();
    shown_content_.reset();
  }
  const TextState of_text{buffer.Revision(), buffer.SelStart(), buffer.SelEnd(), editor_.settings.LineCounting};
  if (std::exchange(shown_text_, of_text) != of_text) bar.Show(ComputePanels(buffer, of_text.line_counting));
  const ContentState of_content{buffer.HasSelection() ? of_text : TextState(), clipboard_revision};
  if (std::exchange(shown_content_, of_content) != of_content) bar.ShowContent(ComputeContent(buffer, clipboard));
}

void StatusTimer::Tick() {
  SnapWindows();
  if (!window_.MainActive()) return;
  // The clipboard's revision is read before its content. So if the clipboard changes in between, the next tick sees a
  // new revision.
  const std::uint64_t revision = editor_.platform.ClipboardRevision();
  const std::optional<std::string>& clipboard = editor_.platform.ClipboardContent();
  // A change of the menu bar would close an open menu.
  if (QApplication::activePopupWidget() == nullptr)
    window_.Menus().Apply(ComputeMenuState(editor_.text, editor_.documents.CurrentPath(), clipboard));
  ShowPanels(revision, clipboard);
  StatusStrip& bar = window_.Bar();
  bar.Show(editor_.platform.Keys());
  // No file operation runs while the main window is active. So if the number is in use, a failed operation left it so.
  bar.Warn(Warning::kFilesStuck, editor_.file_number.IsOpen() ? kFilesStuck.toString() : QString());
  window_.UpdateContentPanel();
}

}  // namespace pelmar
