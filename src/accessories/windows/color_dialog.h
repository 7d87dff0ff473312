// `ColorDialog`: a colour by three sliders, with transformations and a history. PickColor is its only door.
#pragma once

#include "accessories/color_math.h"
#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"

class QLabel;

namespace Ui {
class ColorDialog;
}

namespace pelmar {

class ColorDialog : public FormDialog<Ui::ColorDialog> {
  Q_OBJECT

 public:
  ColorDialog(Platform& platform, QWidget* parent);

  // Waits for a choice. required: after Storno the colour of the run's last Ok comes back, or black, not the given one.
  Color PickColor(Color color);

 private:
  void ConnectCommands();
  void SliderChanged(QLabel* value_label, int value);
  void RefreshColor();
  void Set(const Channels& channels);
  void Command1_Click();
  [[nodiscard]] Channels Now() const;

  Platform& platform_;
  Color picked_color_ = 0;  // PickedColor
};

}  // namespace pelmar
