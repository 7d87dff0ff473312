#include "shell/windows/main/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "files/dropped_files.h"
#include "platform/qt/controls/tab_keys.h"
#include "platform/qt/convert.h"
#include "platform/qt/frames/outer_geometry.h"
#include "platform/qt/frames/svg_icon.h"
#include "platform/qt/key_router.h"
#include "platform/qt/x11.h"
#include "shell/services/status_timer.h"
#include "shell/status.h"

namespace pelmar {
namespace {

// The size at the first start, with space for the whole toolbar.
constexpr QSize kFirstSize(820, 560);
// The largest coordinate and length of a window under X11, in twips.
constexpr int kLargestX11 = TwipsOf(32'767);

std::vector<std::string> DroppedFiles(const QMimeData* mime) {
  std::vector<std::string> paths;
  for (const QUrl& url : mime->urls())
    if (url.isLocalFile()) paths.push_back(PathOfUrl(url));
  return paths;
}

}  // namespace

MainWindow::MainWindow(Editor& editor, Files& files)
    : editor_(editor), files_(files), placement_(*this, [this](const TwipsRect& now) { return Wanted(now); }) {
  setObjectName(QStringLiteral("Main"));
  setProperty(kTagProperty, QLatin1String(kAutosnapTag));
  setAcceptDrops(true);
  placement_.on_frame = [this] { ApplyLayout(); };
  MakeControls();
  AddViewCommands();
  FollowDocuments();
}

void MainWindow::MakeControls() {
  menus_ = new MenuBar(editor_.commands, this);
  menus_->setAccessibleName(QStringLiteral("Hlavní nabídka"));
  setMenuBar(menus_);
  client_ = new QWidget(this);
  setCentralWidget(client_);
  client_->installEventFilter(this);
  toolbar_ = new MainToolbar(editor_.commands, files_, client_);
  toolbar_->setAccessibleName(QStringLiteral("Panel nástrojů"));
  tabs_ = new FileTab(editor_.documents, client_);
  box_ = new TextBox(client_);
  box_->setObjectName(QStringLiteral("Text1"));
  box_->setAccessibleName(QStringLiteral("Text dokumentu"));
  box_->UseBuffer(editor_.text);
  box_->setStandardShortcuts(false);
  box_->SetCaretStays(true);
  KeyRouter::Get().Add(KeyTurn::kMenu, *box_, [this](QWidget&, const QKeyEvent& press) {
    return menus_->RunIfNowEnabled(press, [this] {
      return ComputeMenuState(editor_.text, editor_.documents.CurrentPath(), editor_.platform.ClipboardContent());
    });
  });
  bar_ = new StatusStrip(client_);
  bar_->setAccessibleName(QStringLiteral("Stavový řádek"));
  bar_->raise();
  // The pop-up menus are also submenus of the menu bar.
  const auto pop_up = [this](QWidget* owner, std::string_view name) {
    owner->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(owner, &QWidget::customContextMenuRequested, this,
            [this, owner, name](const QPoint& at) { menus_->Submenu(name)->popup(owner->mapToGlobal(at)); });
  };
  pop_up(tabs_, "MnuPopUp");
  pop_up(bar_, "MnuPopUp");
  pop_up(toolbar_, "MnuPopUp");
  pop_up(box_, "MnuSel");
  connect(toolbar_, &MainToolbar::EscapePressed, box_, [this] { box_->setFocus(); });
  // The tabs take no focus, so they have shortcuts.
  AddTabKeys(*this, *tabs_);
  connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, menus_,
          [this] { menus_->setActiveAction(menus_->actions().constFirst()); });
  const auto count_lines = [this](bool count) {
    editor_.settings.LineCounting = count;
    if (on_line_counting) on_line_counting();
  };
  connect(bar_->Panel(3), &StatusPanel::Clicked, this, [count_lines] { count_lines(false); });
  connect(bar_->Panel(3), &StatusPanel::DoubleClicked, this, [count_lines] { count_lines(true); });
}

void MainWindow::AddViewCommands() {
  editor_.commands.Add("MnuTS", [this] { ToggleBar("MnuTS", toolbar_); });
  editor_.commands.Add("MnuSBS", [this] { ToggleBar("MnuSBS", bar_); });
  editor_.commands.Add("mnuFTS", [this] { ToggleBar("mnuFTS", tabs_); });
  editor_.commands.Add("MnuAllTop", [this] { ToggleAlwaysOnTop(); });
  editor_.commands.Add("mnuquit", [this] { close(); });
}

void MainWindow::FollowDocuments() {
  const auto show_title = [this] { setWindowTitle(PlainTitle(editor_.documents.Title())); };
  listenings_ = {editor_.documents.title_changed.Add(show_title),
                 files_.recent.changed.Add([this] { toolbar_->ShowRecentFiles(); })};
  show_title();
}

void MainWindow::ToggleBar(std::string_view item, QWidget* bar) {
  bar->setVisible(menus_->Action(item)->isChecked());
  ApplyLayout();
}

void MainWindow::ToggleAlwaysOnTop() {
  // required: flag and check mark are toggled separately, so they may disagree after a start
  editor_.settings.AlwaysOnTopFlag = !editor_.settings.AlwaysOnTopFlag;
  SetAlwaysOnTop(editor_.settings.AlwaysOnTopFlag);
}

void MainWindow::HideText(bool hide) {
  QScrollBar* const bar = box_->verticalScrollBar();
  const int scrolled = bar->value();
  box_->setVisible(!hide);
  bar->setValue(scrolled);  // a box that is shown again has scrolled to its caret
  if (hide) bar_->Clear();  // until the next tick
}

LayoutInput MainWindow::Measures() const {
  LayoutInput in;
  in.outer_width = OuterGeometry(*this).width;
  in.inner_width = TwipsOf(client_->width());
  in.inner_height = TwipsOf(client_->height());
  in.toolbar_height = TwipsOf(toolbar_->sizeHint().height());
  in.bar_height = TwipsOf(bar_->sizeHint().height());
  in.toolbar_visible = !toolbar_->isHidden();
  in.bar_visible = !bar_->isHidden();
  in.tabs_visible = !tabs_->isHidden();
  in.minimised = isMinimized();
  in.panel_widths = bar_->Widths();
  return in;
}

void MainWindow::ApplyLayout() {
  // Before the first tick each call computes the width of panel 4 from 0. Otherwise this width would alternate with
  // each call (see SparePanelWidth).
  if (!ticked_) bar_->SetWidth(4, 0);
  const LayoutInput in = Measures();
  const LayoutResult out = ComputeLayout(in);
  const int bar_height = PixelsOf(in.bar_height);
  toolbar_->setGeometry(0, 0, client_->width(), PixelsOf(in.toolbar_height));
  bar_->setGeometry(0, client_->height() - bar_height, client_->width(), bar_height);
  const int top = PixelsOf(out.text_top);
  const int width = out.text_width ? PixelsOf(*out.text_width) : box_->width();
  const int height = out.text_height ? std::max(0, PixelsOf(*out.text_height)) : box_->height();
  box_->setGeometry(0, top, width, height);
  tabs_->SetStripWidth(client_->width() - width);
  tabs_->setGeometry(0, top, out.tabs_width ? PixelsOf(*out.tabs_width) : tabs_->width(), height);
  if (out.panel4_width && placement_.FrameKnown()) bar_->SetWidth(4, *out.panel4_width);
  // The resize calls ApplyLayout again with the new height.
  if (out.grow_outer_height > 0) resize(this->width(), this->height() + PixelsOf(out.grow_outer_height));
}

void MainWindow::UpdateContentPanel() {
  // Without a known frame the outer width is wrong.
  if (isMinimized() || !placement_.FrameKnown()) return;
  ticked_ = true;
  if (const auto spare = SparePanelWidth(OuterGeometry(*this).width, bar_->Widths())) bar_->SetWidth(4, *spare);
}

// Call at each paint; only the first call acts. From the first paint on, the window manager can report the frame, so
// outer sizes can be set exactly.
void MainWindow::FitToFrame() {
  if (fitted_) return;
  fitted_ = true;
  // Setting the icon takes time for rendering, so the icon is set only when the window is visible.
  ShowProgramIcon();
  placement_.Begin({}, window_state_ == WindowMode::kMaximised);
}

TwipsRect MainWindow::Wanted(const TwipsRect& now) const {
  // A window that leaves the maximised state is corrected only if its inside has got the wanted outer size. Any other
  // size was chosen by the person or the window manager, for instance half of the screen.
  const bool has_wanted_size = now.width == wanted_place_.width && now.height == wanted_place_.height;
  const QSize unframed(PixelsOf(wanted_place_.width), PixelsOf(wanted_place_.height));
  if (left_maximised_ && !has_wanted_size && size() != unframed) return now;
  if (wants_position_) return wanted_place_;
  return {now.left, now.top, wanted_place_.width, wanted_place_.height};
}

void MainWindow::SetPlace(const TwipsRect& place) {
  const auto bounded = [](int twips) { return std::clamp(twips, -kLargestX11, kLargestX11); };
  // A damaged settings file could ask for a window that takes gigabytes.
  const QSize most = screen()->virtualSize() * 2;
  wanted_place_ = {bounded(place.left), bounded(place.top), bounded(std::min(place.width, TwipsOf(most.width()))),
                   bounded(std::min(place.height, TwipsOf(most.height())))};
  const QSize first = kFirstSize.boundedTo(screen()->availableSize());
  if (place.width <= 0) wanted_place_.width = TwipsOf(first.width());
  if (place.height <= 0) wanted_place_.height = TwipsOf(first.height());
  pelmar::SetOuterSize(*this, wanted_place_.width, wanted_place_.height);
  SetOuterPosition(*this, wanted_place_.left, wanted_place_.top);
}

TwipsRect MainWindow::Place() const {
  TwipsRect place = OuterGeometry(*this);
  if (isMinimized()) {
    // A window that started minimised has no frame yet.
    if (!placement_.FrameKnown()) return wanted_place_;
    // The place that the window has when it is no longer minimised.
    const QMargins frame = windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins();
    place = InTwips(normalGeometry().marginsAdded(frame));
  }
  // Wayland tells no program the position of its windows.
  if (!IsWayland()) return place;
  return {wanted_place_.left, wanted_place_.top, place.width, place.height};
}

void MainWindow::SetStartState(WindowMode state) { window_state_ = state; }

WindowMode MainWindow::WindowState() const {
  if (!isVisible()) return window_state_;  // not shown yet; a minimised window is visible for Qt
  if (isMinimized()) return WindowMode::kMinimised;
  return isMaximized() ? WindowMode::kMaximised : WindowMode::kNormal;
}

// A normal window may have another frame than a maximised one. The window manager reports the new frame later. Then
// Placement corrects the outer place.
void MainWindow::SetNormalState() {
  if (!isMaximized() && !isMinimized()) return;
  placement_.Begin(windowHandle()->frameMargins());
  showNormal();
}

void MainWindow::SetOuterSize(int width, int height) {
  left_maximised_ = wants_position_ = false;
  wanted_place_.width = width;
  wanted_place_.height = height;
  pelmar::SetOuterSize(*this, width, height);
}

void MainWindow::MoveTo(const TwipsRect& place) {
  SetOuterSize(place.width, place.height);
  wants_position_ = true;
  wanted_place_ = place;
  SetOuterPosition(*this, place.left, place.top);
}

void MainWindow::SetAlwaysOnTop(bool on_top) { pelmar::SetAlwaysOnTop(*this, on_top); }

void MainWindow::SetEditorColors(Color fore, Color back) {
  box_->setTextColor(ColorToQt(fore));
  box_->setBackgroundColor(ColorToQt(back));
}

void MainWindow::ChangeFont(const std::function<void(QFont&)>& change) {
  QFont font = box_->font();
  change(font);
  if (font != box_->font()) box_->setFont(font);
}

void MainWindow::SetEditorFont(const std::string& name) {
  ChangeFont([&name](QFont& font) { font.setFamily(TextToQString(name)); });
}

void MainWindow::ApplyEditorFontSize(int size) {
  ChangeFont([size](QFont& font) { font.setPointSize(size); });
  for (const auto& [points, item] : FontSizeItems()) menus_->Action(item)->setChecked(points == size);
}

void MainWindow::SetEditorBold(bool bold) {
  ChangeFont([bold](QFont& font) { font.setBold(bold); });
}

void MainWindow::SetEditorItalic(bool italic) {
  ChangeFont([italic](QFont& font) { font.setItalic(italic); });
}

void MainWindow::MarkBold(bool bold) { menus_->Action("mnuEditBold")->setChecked(bold); }
void MainWindow::MarkItalic(bool italic) { menus_->Action("mnuitalic")->setChecked(italic); }

void MainWindow::NextAlignment() {
  const Qt::Alignment now = box_->Alignment();
  box_->setAlignment(now == Qt::AlignLeft ? Qt::AlignRight : now == Qt::AlignRight ? Qt::AlignHCenter : Qt::AlignLeft);
}

EditorLook MainWindow::Look() const {
  const QFont font = box_->font();
  return {TextFromQString(font.family()),
          ColorFromQt(box_->TextColor()),
          ColorFromQt(box_->BackgroundColor()),
          font.pointSizeF(),
          font.bold(),
          font.italic()};
}

void MainWindow::ShowMain() {
  if (isVisible()) return BringToFront(*this);
  if (window_state_ == WindowMode::kMinimised) return showMinimized();
  if (window_state_ == WindowMode::kMaximised) return showMaximized();
  show();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  // Nobody may close a locked program.
  if (box_->isHidden() || (may_close && !may_close())) return event->ignore();
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  // The system delivers drops even while a modal dialog is open, for instance the lock. These drops are refused.
  if (QApplication::activeModalWidget() != nullptr) return;
  if (!DroppedFiles(event->mimeData()).empty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  // The question is asked after the drop, so the source program needn't wait for the answer.
  const auto open = [this, paths = DroppedFiles(event->mimeData())] {
    activateWindow();
    OpenDropped(paths, editor_.documents, files_.opener, editor_.platform);
  };
  QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // A hidden window gets its layout when it is shown.
  if (event->type() != QEvent::WindowStateChange || !isVisible()) return;
  ApplyLayout();
  // The size and position of a window that started maximised were set without its frame. They are corrected when the
  // window first becomes normal.
  const auto* change = static_cast<QWindowStateChangeEvent*>(event);
  if (!change->oldState().testFlag(Qt::WindowMaximized) || isMaximized() || isMinimized()) return;
  if (!placement_.FrameKnown() || std::exchange(window_state_, WindowMode::kNormal) != WindowMode::kMaximised) return;
  left_maximised_ = true;
  placement_.Begin(windowHandle()->frameMargins());
}

bool MainWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    main_active_ = true;
    if (isVisible()) box_->setFocus();  // the window is hidden if an accessory runs alone
  }
  if (event->type() == QEvent::WindowDeactivate) main_active_ = false;
  return QMainWindow::event(event);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == client_ && event->type() == QEvent::Resize) ApplyLayout();
  if (watched == client_ && event->type() == QEvent::Paint) FitToFrame();
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace pelmar
