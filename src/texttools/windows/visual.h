// `Visual`: sets the look of the main text box, with a preview. Also sets the line counting and the snap distance. The
// constructor reads the present look and settings.
#pragma once

#include <array>
#include <functional>
#include <string_view>
#include <utility>

#include "platform/qt/controls/dialog_window.h"
#include "shell/main_view.h"
#include "shell/settings_record.h"

class QRadioButton;

namespace Ui {
class Visual;
}

namespace pelmar {

class Visual : public FormDialog<Ui::Visual> {
  Q_OBJECT

 public:
  struct Callbacks {
    std::function<Color(Color)> pick_color;
    std::function<void()> show_pos;
  };
  Visual(MainView& view, SettingsRecord& settings, Callbacks callbacks, QWidget* parent);

  // Call when the font size of the main text box has changed.
  void FollowFontSize();
  // Call when the status bar has switched the line counting.
  void FollowLineCounting();

 private:
  [[nodiscard]] std::array<std::pair<QRadioButton*, std::string_view>, 3> Fonts() const;
  void Load();
  void ConnectPreview();
  void SetPreviewFont(const std::function<void(QFont&)>& change);
  void Combo1_Change();
  void VScroll7_Change(int value);
  void Command1_Click();
  void Command3_Click();

  MainView& view_;
  SettingsRecord& settings_;
  Callbacks callbacks_;
};

}  // namespace pelmar
