#include "html/dialogs/vytvor.h"

#include "html/attributes.h"
#include "html/dialogs/form_helpers.h"
#include "platform/qt/convert.h"
#include "platform/qt/filelists/file_browser.h"
#include "shell/insert_commands.h"
#include "texttools/appearance.h"
#include "ui_vytvor.h"

namespace pelmar {

Vytvor::Vytvor(TextBuffer& buffer, MainView& view, const SettingsRecord& settings, Platform& platform,
               const Callbacks& callbacks, QWidget* parent)
    : FragmentDialog(buffer, parent),
      view_(view),
      settings_(settings),
      platform_(platform),
      choice_(FileChoice::Of(*ui_, ui_->Check4, ui_->Label10)) {
  setObjectName(QStringLiteral("Vytvoř"));
  ui_->Text1->SetText(ToBytes(kPreviewText));
  ConnectColors(callbacks.pick_color);
  EnableWith(ui_->Check8, {ui_->HScroll1, ui_->Label14});
  ShowValue(ui_->HScroll1, ui_->Label14);
  choice_.Link(callbacks.show_in_browser);
  EnableWith(ui_->Check3, {ui_->Drive1, ui_->Dir1, ui_->File1, ui_->Combo1, ui_->Check4});
  connect(ui_->Check3, &QCheckBox::toggled, this, &Vytvor::Check3_Click);
}

void Vytvor::ConnectColors(const std::function<Color(Color)>& pick_color) {
  struct Row {
    QCheckBox* box;
    QPushButton* button;
    Swatch* swatch;
    QLabel* hex;
    std::function<void(const QColor&)> preview;
  };
  const Row rows[] = {
      {ui_->Check1, ui_->Command4, ui_->Label1, ui_->Label2,
       [this](const QColor& color) { ui_->Text1->setBackgroundColor(color); }},
      {ui_->Check2, ui_->Command7, ui_->Picture1, ui_->Label4,
       [this](const QColor& color) { ui_->Text1->setTextColor(color); }},
      {ui_->Check7, ui_->Command6, ui_->Picture4, ui_->Label13, {}},
      {ui_->Check5, ui_->Command5, ui_->Picture2, ui_->Label12, {}},
      {ui_->Check6, ui_->Command8, ui_->Picture3, ui_->Label11, {}},
  };
  for (const Row& row : rows) {
    EnableWith(row.box, {row.button, row.hex});
    ConnectColorChoice(row.button, row.swatch, row.hex, pick_color, row.preview);
  }
}

void Vytvor::Check3_Click(bool picture) {
  if (picture) return choice_.Refresh();
  ui_->Command1->setEnabled(true);
  ui_->Command3->setEnabled(false);
}

PageSpec Vytvor::Read() const {
  const LocalTime now = platform_.Now();
  PageSpec spec;
  spec.author = settings_.UserName;
  spec.created = DateText(now) + ' ' + TimeText(now);
  spec.title = FieldText(*ui_->Text2);
  if (ui_->Check3->isChecked()) spec.background = LinkText(PathShownBy(*ui_->Label10));
  spec.bgcolor = TextIfChecked(ui_->Check1, ui_->Label2);
  spec.text = TextIfChecked(ui_->Check2, ui_->Label4);
  spec.link = TextIfChecked(ui_->Check7, ui_->Label13);
  spec.vlink = TextIfChecked(ui_->Check5, ui_->Label12);
  spec.alink = TextIfChecked(ui_->Check6, ui_->Label11);
  if (ui_->Check8->isChecked()) spec.base_font = ui_->HScroll1->value();
  return spec;
}

// required: the main text box gets the colour of a swatch, even where the hex label beside the swatch shows another
// colour. The two may differ until the person picks a colour
void Vytvor::ColorEditor() {
  const EditorLook look = view_.Look();
  view_.SetEditorColors(ui_->Check2->isChecked() ? ColorFromQt(ui_->Picture1->Color()) : look.fore_color,
                        ui_->Check1->isChecked() ? ColorFromQt(ui_->Label1->Color()) : look.back_color);
}

bool Vytvor::Put() {
  ColorEditor();
  WrapInPage(buffer_, Read());
  return true;
}

}  // namespace pelmar
