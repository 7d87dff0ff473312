// `Prev`: whole numbers in four notations, with a keypad for each of three bases. Typed characters press the keys of
// the focused keypad.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "accessories/converter.h"
#include "accessories/windows/key_preview.h"
#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"

class QGroupBox;
class QPushButton;

namespace Ui {
class Prev;
}

namespace pelmar {

class Prev : public FormDialog<Ui::Prev> {
  Q_OBJECT

 public:
  struct Callbacks {
    std::function<void(const std::string&)> to_text;
    std::function<void(const std::string&)> to_calculator;
  };

  Prev(Platform& platform, bool stand_alone, Callbacks callbacks, QWidget* parent);

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  // One of the three keypads.
  struct Keypad {
    QGroupBox* frame;
    std::string Converter::*field;
    QPushButton* drop_last;
    QPushButton* convert;
    QPushButton* to_text;
    std::optional<std::int32_t> (Converter::*conversion)();
  };

  void ConnectKeypad(const Keypad& keypad);
  void Convert(const Keypad& keypad);
  void ShowRoman(std::int32_t number);
  void ShowFields();
  Preview PhysicalKey(const QKeyEvent& event);

  Platform& platform_;
  Callbacks callbacks_;
  Converter converter_;
  std::string roman_;
  int conversions_ = 0;  // grows with each conversion and each hiding; a running conversion then stops
  std::vector<Keypad> keypads_;
};

}  // namespace pelmar
