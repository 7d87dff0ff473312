// `Kalkul`: the desk calculator. In the editor, the button "Zavři" hides the calculator and the converter and keeps the
// number. The close box also hides the converter, but deletes the calculator, so that the number is lost. If the
// calculator is the whole program, the button "Quit" and the close box ask whether to end the program.
#pragma once

#include <functional>

#include "accessories/calculator.h"
#include "accessories/windows/key_preview.h"
#include "platform/qt/controls/dialog_window.h"

class QPushButton;

namespace Ui {
class Kalkul;
}

namespace pelmar {

class Kalkul : public FormDialog<Ui::Kalkul> {
  Q_OBJECT

 public:
  struct Callbacks {
    std::function<void(const std::string&)> hand_over;  // puts the number into the text or on the clipboard
    std::function<void()> show_converter;
    std::function<void()> hide_converter;
    std::function<void()> unload;       // deletes this window after the present event
    std::function<void()> end_program;  // called only if the calculator is the whole program
  };

  Kalkul(Platform& platform, bool stand_alone, Callbacks callbacks, QWidget* parent);

  void SetNumber(const std::string& number);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void ConnectEntry();
  void ConnectOperators();
  void ConnectFunctions();
  void OnClick(QPushButton* key, std::function<void()> act);
  void Command20_Click();
  // Hides the converter. If the calculator is the whole program, asks whether to end the program, and after Yes ends
  // the program. Without a Yes, shows this window again and returns false.
  bool ConfirmClose();
  Preview PhysicalKey(const QKeyEvent& event);
  [[nodiscard]] QPushButton* KeyOf(char character) const;
  void ShowState();

  Platform& platform_;
  bool stand_alone_;
  Callbacks callbacks_;
  Calculator calculator_;
};

}  // namespace pelmar
