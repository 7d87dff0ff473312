// Decides who gets a key that is on its way to the widget with the keyboard. The application asks it once for each key.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

class QKeyEvent;

namespace pelmar {

// Who is asked, in this order; the first that takes the key ends the round. Before them the toolkit runs shortcuts and
// the router stops a held Enter or Delete. A key that nobody takes goes to the widget with the keyboard. What that one
// ignores goes to the widgets around it, up to the window: so Enter in a field comes to its dialog.
enum class KeyTurn {
  kTabs,    // the physical number keys pick a tab
  kMenu,    // keys of items that the menu still shows grey
  kField,   // Enter and arrow keys in one field, list or toolbar
  kWindow,  // windows that get all keys: calculator, converter, character table, keyboard on the screen, welcome
};

// Returns true when it takes the key.
using KeyTaker = std::function<bool(QWidget& receiver, QKeyEvent& press)>;

class KeyRouter {
 public:
  // There is one keyboard.
  static KeyRouter& Get();

  // Asks the taker for each key press that `scope` or a widget inside it would get, as long as `scope` lives.
  void Add(KeyTurn turn, QWidget& scope, KeyTaker taker);

  // Gets each key event for a widget, in order. True when the widget must not get it.
  bool Takes(QWidget& receiver, QKeyEvent& event);

  // The Insert key has no lamp: the program keeps its state, which changes with each press of the bare key.
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
  quint64 released_at_ = 0;             // ms, on the clock of the events
  QPointer<const QWidget> pressed_in_;  // got the last first press of Enter or Delete
  bool insert_on_ = false;
};

}  // namespace pelmar
