#include "shell/windows/main/main_toolbar.h"

#include <QAction>
#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QToolButton>

#include "platform/qt/convert.h"
#include "platform/qt/frames/svg_icon.h"
#include "platform/qt/key_router.h"
#include "shell/menu_table.h"
#include "text/index.h"

namespace pelmar {
namespace {

// Removes the middle of an item that would make its menu wider than the screen. So the file name usually stays visible.
QString ElidedToScreen(const QString& item) {
  constexpr int kRestOfMenu = 80;  // pixels
  const int space = QGuiApplication::primaryScreen()->availableSize().width() - kRestOfMenu;
  return QFontMetrics(QApplication::font("QMenu")).elidedText(item, Qt::ElideMiddle, space);
}

// Escapes each "&" of the path; the first "&" marks the digit as access key.
QString EscapedMnemonics(const QString& item) {
  return item.left(1) + item.mid(1).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

MainToolbar::MainToolbar(const Commands& commands, Files& files, QWidget* parent)
    : QToolBar(parent), commands_(commands), files_(files) {
  setObjectName(QStringLiteral("Toolbar1"));
  setMovable(false);
  setIconSize({24, 24});
  for (const ToolbarButton& button : ToolbarButtons()) {
    auto* action = new QAction(this);
    action->setObjectName(Utf8ToQString(button.key));
    action->setText(Utf8ToQString(button.tip));
    action->setIcon(SvgIcon(QStringLiteral(":/icons/%1.svg").arg(Utf8ToQString(button.picture))));
    connect(action, &QAction::triggered, this, [this, key = button.key] { commands_.Run(key); });
    initial_.append(action);
    if (button.key == "Recent") AddRecentMenu(action);
    if (!button.separator_after) continue;
    auto* separator = new QAction(this);
    separator->setSeparator(true);
    initial_.append(separator);
  }
  Reset();
  KeyRouter::Get().Add(KeyTurn::kField, *this,
                       [this](QWidget& receiver, const QKeyEvent& press) { return TakesKey(receiver, press); });
}

void MainToolbar::AddRecentMenu(QAction* action) {
  auto* menu = new QMenu(this);
  menu->setToolTipsVisible(true);
  for (int number = 1; number <= 10; ++number) {
    QAction* item = menu->addAction(QString());
    item->setObjectName(QStringLiteral("M%1").arg(number));
    connect(item, &QAction::triggered, this, [this, number] { files_.opener.OpenRecentFile(number); });
    recent_[IndexFromOne(number)] = item;
  }
  action->setMenu(menu);
  ShowRecentFiles();
}

void MainToolbar::Reset() {
  for (QAction* action : std::as_const(initial_)) action->setVisible(true);
  Arrange(initial_);
}

void MainToolbar::Arrange(const QList<QAction*>& order) {
  const QList<QAction*> present = actions();
  if (present == order) return;
  for (QAction* action : present) removeAction(action);
  for (QAction* action : order) {
    addAction(action);
    auto* button = qobject_cast<QToolButton*>(widgetForAction(action));
    if (button == nullptr) continue;
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(action->toolTip());
    if (action->menu() != nullptr) button->setPopupMode(QToolButton::MenuButtonPopup);
  }
}

// Qt's buttons react only to the space bar, so Enter, Escape and Down are handled here.
bool MainToolbar::TakesKey(QWidget& receiver, const QKeyEvent& press) {
  auto* button = qobject_cast<QToolButton*>(&receiver);
  if (button == nullptr) return false;
  switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      button->click();
      return true;
    case Qt::Key_Escape:
      Q_EMIT EscapePressed();
      return true;
    case Qt::Key_Down:
      if (!button->defaultAction()->menu()) return false;
      return button->showMenu(), true;
    default:
      return false;
  }
}

void MainToolbar::ShowRecentFiles() {
  for (int number = 1; number <= 10; ++number) {
    QAction* action = recent_[IndexFromOne(number)];
    action->setText(EscapedMnemonics(ElidedToScreen(Utf8ToQString(files_.recent.ItemText(number)))));
    action->setToolTip(Utf8ToQString(files_.recent.Path(number)));
  }
}

}  // namespace pelmar
