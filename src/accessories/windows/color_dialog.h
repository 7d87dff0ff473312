// `ColorDialog`: a colour from three sliders, with transformations and a history.
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

  // Shows the dialog and returns the colour that the person accepts with Ok. required: if the person closes the dialog
  // without Ok, returns the colour of the last Ok in this run, or black if there was no Ok.
  Color PickColor(Color color);

 private:
  void ConnectCommands();
  void SliderChanged(QLabel* value_label, int value);
  void RefreshColor();
  void Set(const Channels& channels);
  void Command1_Click();
  [[nodiscard]] Channels Now() const;

  Platform& platform_;
  Color picked_color_ = 0;  // the colour of the last Ok
};

}  // namespace pelmar
