// The dialog `Vytvoř` puts a whole page around the document. If the box for the background colour is checked, Ok also
// sets the background of the main text box to the colour of the swatch beside the box. The same holds for the text
// colour.
#pragma once

#include "html/dialogs/file_choice.h"
#include "html/page.h"
#include "platform/platform.h"
#include "platform/qt/controls/fragment_dialog.h"
#include "shell/main_view.h"
#include "shell/settings_record.h"

namespace Ui {
class Vytvor;
}

namespace pelmar {

class Vytvor : public FragmentDialog<Ui::Vytvor> {
  Q_OBJECT

 public:
  struct Callbacks {
    std::function<Color(Color)> pick_color;
    std::function<void(const std::string& path)> show_in_browser;
  };
  Vytvor(TextBuffer& buffer, MainView& view, const SettingsRecord& settings, Platform& platform,
         const Callbacks& callbacks, QWidget* parent);

 private:
  void ConnectColors(const std::function<Color(Color)>& pick_color);
  void Check3_Click(bool picture);
  [[nodiscard]] PageSpec Read() const;
  void ColorEditor();
  bool Put() override;

  MainView& view_;
  const SettingsRecord& settings_;
  Platform& platform_;
  FileChoice choice_;
};

}  // namespace pelmar
