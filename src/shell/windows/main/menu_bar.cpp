#include "shell/windows/main/menu_bar.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcutEvent>
#include <algorithm>
#include <utility>

#include "platform/qt/convert.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// Parses "Ctrl+X", "Ctrl+F4" or "F1". Qt's parser is slower and would delay the first window.
QKeyCombination KeysOf(std::string_view shortcut) {
  constexpr std::string_view kControl = "Ctrl+";
  const bool control = shortcut.starts_with(kControl);
  if (control) shortcut.remove_prefix(kControl.size());
  int key = CodeOf(shortcut.front());
  if (shortcut.size() > 1) {
    int number = 0;
    for (const char digit : shortcut.substr(1)) number = 10 * number + digit - '0';
    key = Qt::Key_F1 + number - 1;
  }
  return QKeyCombination(control ? Qt::ControlModifier : Qt::NoModifier, static_cast<Qt::Key>(key));
}

bool HasAccessKey(const QAction& action, const QKeySequence& key) {
  return action.isVisible() && QKeySequence::mnemonic(action.text()) == key;
}

bool CanBeChosen(const QAction* item) { return item->isVisible() && item->isEnabled() && !item->isSeparator(); }

QChar Initial(const QString& text) {
  const auto letter = std::ranges::find_if(text, [](QChar ch) { return ch.isLetterOrNumber(); });
  return letter == text.end() ? QChar() : letter->toLower();
}

// The next item after the active one that begins with the letter. After the last item the search continues at the
// first. An item with an access key is skipped, because only its access key chooses it.
QAction* NextByInitial(const QMenu& menu, QChar letter) {
  const auto first = menu.actions().indexOf(menu.activeAction()) + 1;
  QList<QAction*> items = menu.actions();
  std::rotate(items.begin(), items.begin() + first, items.end());
  const auto found = std::ranges::find_if(items, [letter](const QAction* item) {
    return CanBeChosen(item) && !item->text().contains(u'&') && Initial(item->text()) == letter.toLower();
  });
  return found == items.end() ? nullptr : *found;
}

// Sends Down keys to the menu until the item is active, at most one key for each item. QMenu::setActiveAction would
// open a submenu.
void GoTo(QMenu& menu, const QAction* item) {
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  for (auto left = menu.actions().size(); left > 0 && menu.activeAction() != item; --left)
    static_cast<QObject&>(menu).event(&down);
}

}  // namespace

MenuBar::MenuBar(const Commands& commands, QWidget* parent) : QMenuBar(parent), commands_(commands) {
  std::vector<QWidget*> open{this};  // the latest menu of each level, to which items are added
  for (const MenuItem& item : MenuItems()) {
    open.resize(static_cast<std::size_t>(item.level) + 1);
    const QString name = Utf8ToQString(item.name);
    const QString caption = Utf8ToQString(item.caption);
    QAction* action = nullptr;
    if (item.kind == MenuKind::kSubmenu) {
      auto* menu = new QMenu(caption, this);
      menu->installEventFilter(this);
      connect(menu, &QMenu::aboutToShow, this, [this] {
        alt_alone_ = false;
        QWidget* focus = QApplication::focusWidget();
        if (focus != nullptr && focus != this && !qobject_cast<QMenu*>(focus)) before_ = focus;
      });
      menu->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
      action = menu->menuAction();
      open.push_back(menu);
    } else {
      action = new QAction(caption, this);
      action->setSeparator(item.kind == MenuKind::kSeparator);
      action->setCheckable(item.kind == MenuKind::kToggle || item.kind == MenuKind::kToggleOn);
      action->setChecked(item.kind == MenuKind::kToggleOn);
      if (!item.shortcut.empty()) action->setShortcut(KeysOf(item.shortcut));
      connect(action, &QAction::triggered, this, [this, key = item.name] { commands_.Run(key); });
    }
    action->setObjectName(name);
    action->setMenuRole(QAction::NoRole);
    open[static_cast<std::size_t>(item.level)]->addAction(action);
    actions_.emplace(item.name, action);
  }
}

void MenuBar::Apply(const MenuState& state) {
  SetEnabled(ItemsOfPath(), state.has_path);
  SetEnabled(ItemsOfClipboard(), state.has_clipboard);
  SetEnabled(ItemsOfText(), state.has_text);
  SetEnabled(ItemsOfSelection(), state.has_selection);
}

bool MenuBar::RunIfNowEnabled(const QKeyEvent& keys, const std::function<MenuState()>& now) const {
  // An unknown key would match all items without a shortcut.
  if (keys.key() == 0 || keys.key() == Qt::Key_unknown) return false;
  const QKeySequence sequence(keys.keyCombination());
  const std::pair<std::span<const std::string_view>, bool MenuState::*> groups[] = {
      {ItemsOfPath(), &MenuState::has_path},
      {ItemsOfClipboard(), &MenuState::has_clipboard},
      {ItemsOfText(), &MenuState::has_text},
      {ItemsOfSelection(), &MenuState::has_selection}};
  for (const auto& [items, condition] : groups) {
    for (const std::string_view name : items) {
      QAction* grey = Action(name);
      if (grey->isEnabled()) continue;
      // The items of a disabled menu are not disabled themselves.
      const QList<QAction*> candidates = grey->menu() != nullptr ? grey->menu()->actions() : QList<QAction*>{grey};
      const auto of_keys = [&sequence](const QAction* item) { return item->shortcut() == sequence; };
      const auto item = std::ranges::find_if(candidates, of_keys);
      if (item == candidates.end() || !(now().*condition)) continue;
      commands_.Run(Utf8FromQString((*item)->objectName()));
      return true;
    }
  }
  return false;
}

// Opens the menu with the access key. Two menus have the key T: if the first of them is highlighted or open, T opens
// the second, otherwise the first. A disabled menu takes its key but stays closed. False if no menu has the key.
bool MenuBar::OpenByAccessKey(const QKeySequence& key) {
  QList<QAction*> menus = actions();
  menus.removeIf([&key](const QAction* menu) { return !HasAccessKey(*menu, key); });
  if (menus.isEmpty()) return false;
  QAction* const next = menus[(menus.indexOf(activeAction()) + 1) % menus.size()];
  if (!next->isEnabled()) return true;
  setActiveAction(next);
  const QList<QAction*> items = next->menu()->actions();
  if (const auto first = std::ranges::find_if(items, CanBeChosen); first != items.end()) GoTo(*next->menu(), *first);
  return true;
}

bool MenuBar::event(QEvent* event) {
  if (event->type() == QEvent::Shortcut && OpenByAccessKey(static_cast<QShortcutEvent*>(event)->key())) return true;
  return QMenuBar::event(event);
}

void MenuBar::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers() == Qt::NoModifier && OpenByAccessKey(QKeySequence(Qt::ALT | event->key()))) return;
  QMenuBar::keyPressEvent(event);
}

bool MenuBar::eventFilter(QObject* watched, QEvent* event) {
  auto* menu = qobject_cast<QMenu*>(watched);
  const bool press = event->type() == QEvent::KeyPress;
  if (menu == nullptr || (!press && event->type() != QEvent::KeyRelease)) return QMenuBar::eventFilter(watched, event);
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (key.key() != Qt::Key_Alt) return press && KeyInMenu(*menu, key);
  // Qt would close the menu on the press of Alt, so Alt+T could never open the second menu with the key T. The menus
  // are closed when Alt alone is released.
  if (!press && alt_alone_) CloseMenus();
  alt_alone_ = press;
  return true;
}

// Closes the menus with Escape. The last Escape leaves the menu bar, but only after the bar has handled the Alt key.
void MenuBar::CloseMenus() {
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  constexpr int kDeepest = 4;
  for (int level = 0; level < kDeepest; ++level)
    if (QObject* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) menu->event(&escape);
  const auto leave = [this] {
    QKeyEvent last(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QMenuBar::keyPressEvent(&last);
    if (before_ && !before_->hasFocus()) before_->setFocus(Qt::MenuBarFocusReason);
  };
  QMetaObject::invokeMethod(this, leave, Qt::QueuedConnection);
}

// Handles a key in an open menu. Alt with a key means the access key of the open menu, otherwise of an enabled item in
// it, otherwise of another menu. A letter or digit selects the next item that begins with it and has no access key.
// False if the menu itself must handle the key, for example an item's access key or an arrow.
bool MenuBar::KeyInMenu(QMenu& menu, const QKeyEvent& key) {
  alt_alone_ = false;
  const bool alt = key.modifiers() == Qt::AltModifier;
  const QKeySequence access(Qt::ALT | key.key());
  if (alt && activeAction() != nullptr && HasAccessKey(*activeAction(), access)) return OpenByAccessKey(access);
  const QList<QAction*> items = menu.actions();
  const auto answers = [&access](const QAction* item) { return item->isEnabled() && HasAccessKey(*item, access); };
  if (std::ranges::any_of(items, answers)) return false;
  if (alt) return activeAction() != nullptr && OpenByAccessKey(access);
  if (key.text().size() != 1 || !key.text().front().isLetterOrNumber()) return false;
  if (const QAction* next = NextByInitial(menu, key.text().front())) GoTo(menu, next);
  return true;  // even if no item begins with the key, so that no letter reaches the text box
}

void MenuBar::SetEnabled(std::span<const std::string_view> names, bool enabled) {
  for (const std::string_view name : names) Action(name)->setEnabled(enabled);
}

}  // namespace pelmar
