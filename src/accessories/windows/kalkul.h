// `Kalkul`: the desk calculator, by mouse and by the keys of the real keyboard. Its own buttons only hide it; its close
// box unloads it, which forgets what it holds, and ends the program where it runs alone.
#pragma once

#include <functional>

#include "accessories/calculator.h"
#include "accessories/windows/key_preview.h"
#include "platform/qt/controls/dialog_window.h"

class QLabel;
class QPushButton;

namespace Ui {
class Kalkul;
}

namespace pelmar {

class Kalkul : public FormDialog<Ui::Kalkul> {
  Q_OBJECT

 public:
  struct Doors {
    std::function<void(const std::string&)> hand_over;  // the number, to the text or to the clipboard
    std::function<void()> show_converter;
    std::function<void()> hide_converter;
    std::function<void()> unload;       // forgets this window, after the event at hand
    std::function<void()> end_program;  // where the calculator runs alone
  };

  Kalkul(Platform& platform, bool stand_alone, Doors doors, QWidget* parent);

  // Shows a number in place of the one that is there.
  void SetNumber(const std::string& number);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void ConnectEntry();
  void ConnectOperators();
  void ConnectFunctions();
  void OnClick(QPushButton* key, std::function<void()> act);
  void Command20_Click();
  bool MayUnload();
  Preview PhysicalKey(const QKeyEvent& event);
  [[nodiscard]] QPushButton* KeyOf(char character) const;
  void Show();
  void ShowCut();

  Platform& platform_;
  bool stand_alone_;
  Doors doors_;
  Calculator calculator_;
  QLabel* cut_;  // dots before a number of which only the end is to be seen
};

}  // namespace pelmar
