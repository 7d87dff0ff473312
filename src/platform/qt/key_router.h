// Decides which part of the program gets a key, before the widget with the keyboard focus gets the key.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

class QKeyEvent;

namespace pelmar {

// The order in which takers are asked, until one of them takes the key. Before that, Qt looks for a shortcut, and the
// router drops repeats of Enter and Delete (see HoldsBack). If no taker takes the key, the focused widget gets the key.
// If this widget ignores the key, its parents get the key: in this way an Enter in a field reaches the dialog.
enum class KeyTurn {
  kTabs,    // the physical number keys select a tab
  kMenu,    // keys of menu items that are still disabled
  kField,   // Enter and arrow keys in one field, list or toolbar
  kWindow,  // windows that get all keys: calculator, converter, character table, on-screen keyboard, welcome
  kDialog,  // Enter in a check box or an option, which some desktops would tick
};

// Returns true if the taker handles the key, so that nobody else gets the key.
using KeyTaker = std::function<bool(QWidget& receiver, QKeyEvent& press)>;

class KeyRouter {
 public:
  // The only router, since there is only one keyboard.
  static KeyRouter& Get();

  // Adds a taker for key presses in `scope` and in the widgets inside `scope`, until `scope` is deleted.
  void Add(KeyTurn turn, QWidget& scope, KeyTaker taker);

  // Call with each key event for a widget, in order. True if the widget must not get the event.
  bool Takes(QWidget& receiver, QKeyEvent& event);

  // The router keeps the state of the Insert key, since the system has none. Pressing Insert alone toggles the state.
  [[nodiscard]] bool InsertIsOn() const { return insert_on_; }

 private:
  [[nodiscard]] bool IsRepeat(const QKeyEvent& press) const;
  bool HoldsBack(const QWidget& receiver, const QKeyEvent& event);

  struct Entry {
    KeyTurn turn;
    QPointer<QWidget> scope;
    KeyTaker takes;
  };

  std::vector<Entry> entries_;  // by turn
  int released_key_ = 0;
  quint64 released_at_ = 0;             // ms, the time stamp of the event
  QPointer<const QWidget> pressed_in_;  // the widget of the last press of Enter or Delete that was not a repeat
  bool insert_on_ = false;
};

}  // namespace pelmar
