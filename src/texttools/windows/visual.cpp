#include "texttools/windows/visual.h"

#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "texttools/appearance.h"
#include "ui_visual.h"

namespace pelmar {

Visual::Visual(MainView& view, SettingsRecord& settings, Callbacks callbacks, QWidget* parent)
    : FormDialog(parent), view_(view), settings_(settings), callbacks_(std::move(callbacks)) {
  ConnectPreview();
  connect(ui_->Check1, &QCheckBox::clicked, this, [this](bool checked) { settings_.LineCounting = checked; });
  connect(ui_->VScroll7, &QScrollBar::valueChanged, this, &Visual::VScroll7_Change);
  connect(ui_->Command5, &QPushButton::clicked, this, [this] { settings_.AutosnapDistance = ui_->VScroll7->value(); });
  // required: Command6 resets the scroll bar, but doesn't store the value as Command5 does
  connect(ui_->Command6, &QPushButton::clicked, this, [this] { ui_->VScroll7->setValue(kDefaultAutosnapDistance); });
  connect(ui_->Command1, &QPushButton::clicked, this, &Visual::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Visual::hide);
  connect(ui_->Command3, &QPushButton::clicked, this, &Visual::Command3_Click);
  connect(ui_->Command4, &QPushButton::clicked, this, [this] { ApplyDosLook(view_); });
  connect(ui_->Command7, &QPushButton::clicked, this, [this] { callbacks_.show_pos(); });
  Load();
}

std::array<std::pair<QRadioButton*, std::string_view>, 3> Visual::Fonts() const {
  return {{{ui_->Option1, kSansSerif}, {ui_->Option2, kCourier}, {ui_->Option3, kTerminal}}};
}

void Visual::ConnectPreview() {
  connect(ui_->Check2, &QCheckBox::toggled, this,
          [this](bool bold) { SetPreviewFont([bold](QFont& font) { font.setBold(bold); }); });
  connect(ui_->Check3, &QCheckBox::toggled, this,
          [this](bool italic) { SetPreviewFont([italic](QFont& font) { font.setItalic(italic); }); });
  for (const auto& [option, name] : Fonts())
    connect(option, &QRadioButton::toggled, this, [this, family = Utf8ToQString(name)](bool on) {
      if (on) SetPreviewFont([&family](QFont& font) { font.setFamily(family); });
    });
  OnEnter(ui_->Label1, [this] { ui_->Command1->click(); });
  ui_->Combo1->setCompleter(nullptr);  // Qt would complete a typed "2" to "24"
  connect(ui_->Combo1, &QComboBox::editTextChanged, this, &Visual::Combo1_Change);
  connect(ui_->Command8, &QPushButton::clicked, this, [this] {
    ui_->Label1->setTextColor(ColorToQt(callbacks_.pick_color(ColorFromQt(ui_->Label1->TextColor()))));
  });
  connect(ui_->Command9, &QPushButton::clicked, this, [this] {
    ui_->Label1->setBackgroundColor(ColorToQt(callbacks_.pick_color(ColorFromQt(ui_->Label1->BackgroundColor()))));
  });
}

void Visual::Load() {
  const EditorLook look = view_.Look();
  ui_->Label1->SetText(ToBytes(kPreviewText));
  ui_->Label1->setTextColor(ColorToQt(look.fore_color));
  ui_->Label1->setBackgroundColor(ColorToQt(look.back_color));
  ui_->Check2->setChecked(look.bold);
  ui_->Check3->setChecked(look.italic);
  FollowLineCounting();
  for (const auto& [option, name] : Fonts()) option->setChecked(look.font_name == name);
  FollowFontSize();
  ui_->VScroll7->setValue(settings_.AutosnapDistance);
  VScroll7_Change(ui_->VScroll7->value());
}

void Visual::FollowFontSize() {
  // A size outside the list selects no row.
  const int row = ui_->Combo1->findText(QString::number(view_.Look().font_size));
  ui_->Combo1->setCurrentIndex(row);
  if (row >= 0) Combo1_Change();  // no event updates the preview if the box already shows the size
}

void Visual::FollowLineCounting() { ui_->Check1->setChecked(settings_.LineCounting); }

void Visual::SetPreviewFont(const std::function<void(QFont&)>& change) {
  QFont font = ui_->Label1->font();
  change(font);
  ui_->Label1->setFont(font);
}

void Visual::Combo1_Change() {
  const SizeField field = NormalizeSize(FieldText(*ui_->Combo1));
  SetPreviewFont([&field](QFont& font) { font.setPointSize(field.size); });
  const QString text = Utf8ToQString(field.text);
  if (ui_->Combo1->currentText() != text) ui_->Combo1->setEditText(text);
}

void Visual::VScroll7_Change(int value) {
  ui_->Picture1->SetTwips(value);
  ui_->Label12->setText(QString::number(value));
}

void Visual::Command3_Click() {
  ui_->Check2->setChecked(false);
  ui_->Check3->setChecked(false);
  ui_->Option2->setChecked(true);
  ui_->Combo1->setEditText(QStringLiteral("8"));
  ui_->Label1->setBackgroundColor(Qt::white);
  ui_->Label1->setTextColor(Qt::black);
}

void Visual::Command1_Click() {
  EditorLook look;
  for (const auto& [option, name] : Fonts())
    if (option->isChecked()) look.font_name = name;
  look.fore_color = ColorFromQt(ui_->Label1->TextColor());
  look.back_color = ColorFromQt(ui_->Label1->BackgroundColor());
  look.font_size = NormalizeSize(FieldText(*ui_->Combo1)).size;
  look.bold = ui_->Check2->isChecked();
  look.italic = ui_->Check3->isChecked();
  ApplyLook(view_, look);
}

}  // namespace pelmar
