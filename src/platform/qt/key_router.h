// Decides which part of the program gets a key, before the widget with the keyboard focus gets the key.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

class QKeyEvent;

namespace pelmar {

// The order in which the router asks its functions (KeyTaker), until one takes the key. A key that runs a shortcut or
// that DropsRepeat drops never gets so far. If no function takes the key, the focused widget gets the key. If this
// widget ignores the key, its parents get the key: so an Enter in a field reaches the dialog.
enum class KeyTurn {
  kTabs,    // Alt with a physical number key selects a tab
  kMenu,    // shortcuts of menu items that the status timer has not enabled yet
  kField,   // keys of one control or dialog, for instance Enter in a field or arrows in a list
  kWindow,  // windows that read all keys: calculator, converter, character table, on-screen keyboard, welcome
  kDialog,  // Enter in a check box or an option button, which some desktops would tick
};

// Returns true if the taker handles the key, so that nobody else gets the key.
using KeyTaker = std::function<bool(QWidget& receiver, QKeyEvent& press)>;

class KeyRouter {
 public:
  // The only router, since there is only one keyboard.
  static KeyRouter& Get();

  // Adds a taker for key presses in `scope` and in the widgets inside `scope`, until `scope` is deleted.
  void Add(KeyTurn turn, QWidget& scope, KeyTaker taker);

  // Call with each key event before its widget gets the event. True if the widget must not get the event.
  bool Takes(QWidget& receiver, QKeyEvent& event);

  // The router keeps the state of the Insert key, since the system has none. The state is off at first. Each press of
  // Insert without a modifier key toggles the state, unless the press is a repeat.
  [[nodiscard]] bool InsertIsOn() const { return insert_on_; }

 private:
  [[nodiscard]] bool IsRepeat(const QKeyEvent& press) const;
  bool DropsRepeat(const QWidget& receiver, const QKeyEvent& event);

  struct Entry {
    KeyTurn turn;
    QPointer<QWidget> scope;
    KeyTaker takes;
  };

  std::vector<Entry> entries_;  // sorted by turn
  int released_key_ = 0;
  quint64 released_at_ = 0;  // ms, the time stamp of the release
  // The widget of the last press, without repeats, of Enter, Delete or the space bar.
  QPointer<const QWidget> pressed_in_;
  bool insert_on_ = false;
};

}  // namespace pelmar
