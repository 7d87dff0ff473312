// The dialog `Template` offers sample documents with a preview. Ok replaces the whole document by the text of the
// preview, even before a sample is chosen.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"
#include "shell/settings_record.h"

namespace Ui {
class Template;
}

namespace pelmar {

class Template : public FragmentDialog<Ui::Template> {
  Q_OBJECT

 public:
  Template(TextBuffer& buffer, const SettingsRecord& settings, QWidget* parent);

 private:
  void FillList();
  void ListView1_Click();
  bool Put() override;

  const SettingsRecord& settings_;
};

}  // namespace pelmar
