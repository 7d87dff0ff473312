// `Template`: the sample documents with a preview; the chosen one becomes the whole document.
#pragma once

#include <functional>
#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "shell/settings_record.h"
#include "text/text_buffer.h"

namespace Ui {
class Template;
}

namespace pelmar {

class Template : public DialogWindow {
  Q_OBJECT

 public:
  Template(TextBuffer& document, const SettingsRecord& settings, QWidget* parent);
  ~Template() override;

 private:
  void FillList();
  void ListView1_Click();
  void Command1_Click();

  TextBuffer& document_;
  const SettingsRecord& settings_;
  std::unique_ptr<Ui::Template> ui_;
};

}  // namespace pelmar
