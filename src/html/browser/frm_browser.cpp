#include "html/browser/frm_browser.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "html/browser/web_address.h"
#include "platform/qt/controls/accessible_face.h"
#include "platform/qt/controls/elided_label.h"
#include "platform/qt/convert.h"
#include "platform/qt/frames/dialog_parent.h"
#include "platform/qt/frames/outer_geometry.h"
#include "platform/qt/frames/placement.h"
#include "platform/qt/frames/svg_icon.h"
#include "platform/qt/key_router.h"
#include "shell/stand_alone.h"
#include "text/number_text.h"
#include "ui_frm_browser.h"

namespace pelmar {
namespace {

constexpr int kTimerInterval = 5;       // ms
constexpr int kLongestInMessage = 300;  // characters of an address
// The first web page of a browser that runs without the editor.
constexpr std::string_view kStartingAddress = "https://duckduckgo.com/";
constexpr std::string_view kOpenFilter = "Všechno (*.*)|*.*|htm (*.htm)|*.htm|html (*.html)|*.html";

QLabel* AddPanel(QStatusBar& bar, const char* name, const QString& description, int stretch) {
  QLabel* panel = stretch > 0 ? new ElidedLabel(&bar) : new QLabel(&bar);  // a link's address may be of any length
  panel->setObjectName(QLatin1String(name));
  panel->setAccessibleDescription(description);
  panel->setTextFormat(Qt::PlainText);
  panel->setMargin(2);
  panel->setIndent(4);
  bar.addWidget(panel, stretch);
  return panel;
}

}  // namespace

FrmBrowser::FrmBrowser(WebViewMaker& maker, Platform& platform, std::function<void()> end_program)
    : StartingAddress(Utf8ToQString(kStartingAddress)),
      platform_(platform),
      end_program_(std::move(end_program)),
      ui_(std::make_unique<Ui::frmBrowser>()) {
  ui_->setupUi(this);
  ShowProgramIcon();
  KeepAboveAll(*this);
  status_ = AddPanel(*ui_->StatusBar1, "Panel1", QStringLiteral("Stav"), 0);
  status_->setText(QStringLiteral("Busy"));
  status_->setMinimumWidth(status_->sizeHint().width());
  status_->clear();
  progress_ = AddPanel(*ui_->StatusBar1, "Panel2", QStringLiteral("Průběh načítání"), 0);
  link_ = AddPanel(*ui_->StatusBar1, "Panel4", QStringLiteral("Odkaz pod ukazatelem"), 1);
  timTimer.setObjectName(QStringLiteral("timTimer"));
  timTimer.setInterval(kTimerInterval);
  connect(&timTimer, &QTimer::timeout, this, &FrmBrowser::timTimer_Timer);
  view_ = maker.Make(ui_->client);
  ConnectView();
  ConnectToolBar();
  ConnectAddress();
  if (end_program_) ui_->Close->setToolTip(QStringLiteral("Ukončit program"));
}

FrmBrowser::~FrmBrowser() = default;

void FrmBrowser::ConnectView() {
  view_->Widget()->setObjectName(QStringLiteral("brwWebBrowser"));
  view_->Widget()->setAccessibleName(QStringLiteral("Stránka"));
  ui_->page->addWidget(view_->Widget());
  setTabOrder(ui_->cboAddress, view_->Widget());
  view_->on_progress = [this](qint64 progress, qint64 maximum) { View_Progress(progress, maximum); };
  view_->on_link = [this](const QString& address) {
    link_->setText(address);
    link_->setToolTip(address);
  };
  view_->on_change = [this] {
    ShowCaption();
    // A load that a link in the page has started needs the timer too.
    if (view_->Busy()) timTimer.start();
  };
  view_->on_coming = [this] { ui_->netLine->hide(); };
  view_->on_withheld = [this] { ui_->netLine->show(); };
  view_->on_finished = [this] { View_Finished(); };
  connect(ui_->LoadNet, &QPushButton::clicked, this, &FrmBrowser::LoadNet_Click);
}

void FrmBrowser::ConnectToolBar() {
  const auto on = [this](QAction* action, auto act) {
    action->setIcon(SvgIcon(QStringLiteral(":/icons/%1.svg").arg(action->objectName().toLower())));
    auto* button = qobject_cast<QToolButton*>(ui_->tbToolBar->widgetForAction(action));
    button->setFocusPolicy(Qt::TabFocus);
    connect(action, &QAction::triggered, this, [this, act] {
      timTimer.start();
      act();
    });
  };
  on(ui_->Back, [this] { view_->Go(-1); });
  on(ui_->Forward, [this] { view_->Go(1); });
  on(ui_->Refresh, [this] { view_->Refresh(); });
  on(ui_->Stop, [this] { Stop_Click(); });
  on(ui_->Open, [this] { Open_Click(); });
  on(ui_->Close, [this] { Close_Click(); });
}

void FrmBrowser::ConnectAddress() {
  QLineEdit* line = ui_->cboAddress->lineEdit();
  // Otherwise Qt would complete typed text. When the box loses focus, Qt would load the typed address if the list
  // contains this address.
  ui_->cboAddress->setCompleter(nullptr);
  disconnect(line, &QLineEdit::editingFinished, ui_->cboAddress, nullptr);
  ui_->cboAddress->installEventFilter(this);
  KeyRouter::Get().Add(KeyTurn::kField, *ui_->cboAddress, [this](QWidget&, const QKeyEvent& press) {
    if (press.key() != Qt::Key_Return && press.key() != Qt::Key_Enter) return false;
    NavigateToBox();
    return true;
  });
  connect(ui_->cboAddress, &QComboBox::activated, this, &FrmBrowser::NavigateToBox);
}

bool FrmBrowser::eventFilter(QObject* watched, QEvent* event) {
  // Turning the wheel over the box loads nothing.
  if (watched == ui_->cboAddress && event->type() == QEvent::Wheel) return true;
  return QMainWindow::eventFilter(watched, event);
}

void FrmBrowser::ShowInBrowser(const std::string& path) {
  Visit(AddressOfFile(path));
  BringToFront(*this);
}

void FrmBrowser::ShowAlone() {
  BringToFront(*this);
  if (!StartingAddress.isEmpty()) Visit(StartingAddress);
  ui_->cboAddress->setFocus();
  ui_->cboAddress->lineEdit()->selectAll();
}

void FrmBrowser::Visit(const QString& address) {
  DontNavigateNow = true;
  ui_->cboAddress->addItem(address);
  ui_->cboAddress->setEditText(address);
  DontNavigateNow = false;
  Load(address);
}

void FrmBrowser::Load(const QString& address) {
  const QUrl url = UrlOfAddress(address);
  if (url.isValid() && !MayBeShown(url)) {
    const QString refusal = QStringLiteral(
        "Takovou adresu interní browser neotvírá:\r\n%1\r\n\r\nOtvírá http, https, file, data a about:blank.");
    platform_.Message(MessageType::kOkInfo,
                      Utf8FromQString(refusal.arg(Shortened(address.trimmed(), kLongestInMessage))), "Interní browser");
    return;
  }
  timTimer.start();
  view_->Load(url);
  view_->Widget()->setFocus();
}

void FrmBrowser::NavigateToBox() {
  if (DontNavigateNow) return;
  ui_->cboAddress->lineEdit()->setModified(false);
  Load(ui_->cboAddress->currentText());
}

void FrmBrowser::ShowCaption() {
  setWindowTitle(PlainTitle("HTML testovací browser (" + Utf8FromQString(view_->LocationName()) + ")"));
}

void FrmBrowser::timTimer_Timer() {
  const bool busy = view_->Busy();
  ShowState(busy);
  if (busy) return ui_->Picture1->Step();
  timTimer.stop();
  ShowCaption();
}

void FrmBrowser::ShowState(bool busy) {
  status_->setText(busy ? QStringLiteral("Busy") : QStringLiteral("Idle"));
  ui_->Picture1->setEnabled(busy);
  // Escape stops a load. At other times the page gets this key.
  ui_->Stop->setShortcut(busy ? QKeySequence(Qt::Key_Escape) : QKeySequence());
}

void FrmBrowser::View_Progress(qint64 progress, qint64 maximum) {
  if (maximum <= 0) return progress_->clear();
  const double percent = static_cast<double>(progress) / static_cast<double>(maximum) * 100.0;
  progress_->setText(Utf8ToQString(NumberText(percent) + '%'));
}

void FrmBrowser::View_Finished() {
  ShowCaption();
  QLineEdit& line = *ui_->cboAddress->lineEdit();
  const bool half_typed = line.isModified();
  const bool selected = line.hasSelectedText();
  const QString typed = line.text();
  const int caret = line.cursorPosition();
  DontNavigateNow = true;
  PutOnTop(AddressOfUrl(view_->LocationAddress()));
  // If the person is typing an address, the box keeps the typed text.
  if (half_typed) {
    line.setText(typed);
    line.setCursorPosition(caret);
    line.setModified(true);
  }
  if (selected && !half_typed) line.selectAll();
  DontNavigateNow = false;
  // If the widget of an earlier page had the focus, no widget has the focus now.
  if (focusWidget() == nullptr) view_->Widget()->setFocus();
}

void FrmBrowser::PutOnTop(const QString& address) {
  QComboBox& list = *ui_->cboAddress;
  for (int row = list.count() - 1; row >= 0; --row)
    if (list.itemText(row) == address) list.removeItem(row);
  list.insertItem(0, address);
  list.setCurrentIndex(0);
}

void FrmBrowser::Stop_Click() {
  timTimer.stop();
  view_->Stop();
  ShowCaption();
  ShowState(false);  // the timer has stopped, so nothing else would show the end of the load
}

void FrmBrowser::Open_Click() {
  if (const auto path = platform_.OpenDialog(kOpenFilter, 1)) Visit(AddressOfFile(*path));
}

void FrmBrowser::LoadNet_Click() {
  timTimer.start();
  view_->LoadFromNet();
  view_->Widget()->setFocus();
}

void FrmBrowser::Close_Click() {
  hide();
  view_->EndIfStuck();
  if (!end_program_) return;
  if (MayEndStandAlone(platform_, "Browser")) return end_program_();
  show();
}

void FrmBrowser::closeEvent(QCloseEvent* event) {
  // Qt hides the window after accept().
  if (!end_program_) {
    view_->EndIfStuck();
    return event->accept();
  }
  event->ignore();
  Close_Click();
}

void FrmBrowser::showEvent(QShowEvent* event) {
  if (!centred_ && !event->spontaneous()) {
    centred_ = true;
    ShowOnParentsScreen(*this);
    CentreOnScreen(*this);
  }
  QMainWindow::showEvent(event);
}

}  // namespace pelmar
