#include "html/dialogs/edi_tag.h"

#include <QComboBox>

#include "html/attributes.h"
#include "html/tag_editor.h"
#include "platform/paths.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "ui_edi_tag.h"

namespace pelmar {

EdiTag::EdiTag(TextBuffer& buffer, Platform& platform, std::function<Color(Color)> pick_color, QWidget* parent)
    : FragmentDialog(buffer, parent, &Ui::EdiTag::Command3, &Ui::EdiTag::Command4), platform_(platform) {
  connect(ui_->Command5, &QPushButton::clicked, this,
          [this, pick = std::move(pick_color)] { SetValue(Utf8ToQString(ColorToHex(pick(0)))); });
  connect(ui_->Command6, &QPushButton::clicked, this, &EdiTag::Command6_Click);
  connect(ui_->HScroll1, &QScrollBar::valueChanged, this,
          [this](int value) { SetValue(QString::number(value) + QLatin1Char('%')); });
}

void EdiTag::Run() {
  const TagAnalysis analysis = OpenTag(buffer_, platform_);
  ui_->Text1->setText(TextToQString(analysis.name));
  ui_->Attributes->Lists().SetRows(analysis.attributes);
  ui_->Attributes->Lists().EditSelectedRows();
  exec();
}

bool EdiTag::Put() {
  buffer_.ReplaceSelection(TagText(FieldText(*ui_->Text1), ui_->Attributes->Lists().Rows()));
  return true;
}

void EdiTag::Command6_Click() {
  if (const auto path = platform_.OpenDialog("Všechno(*.*)|*.*", 1))
    SetValue(TextToQString(PathToFileUrl(LinkText(*path))));
}

void EdiTag::SetValue(const QString& value) { ui_->Attributes->ValueBox()->setEditText(value); }

}  // namespace pelmar
