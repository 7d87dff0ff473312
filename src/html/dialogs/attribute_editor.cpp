#include "html/dialogs/attribute_editor.h"

#include "html/dialogs/form_helpers.h"
#include "ui_attribute_editor.h"

namespace pelmar {

AttributeEditor::AttributeEditor(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::AttributeEditor>()) {
  ui_->setupUi(this);
  ui_->Atribut->setCurrentText(QStringLiteral("Atribut"));
  ui_->Hodnota->setCurrentText(QStringLiteral("Hodnota"));
  AcceptFreeText(ui_->Atribut);
  AcceptFreeText(ui_->Hodnota);
  setFocusProxy(ui_->Atribut);
  lists_ = new PairedLists(
      {ui_->Atribut->lineEdit(), ui_->Hodnota->lineEdit(), ui_->Atributs, ui_->Values, ui_->Command1, ui_->Command2},
      this);
}

AttributeEditor::~AttributeEditor() = default;

QComboBox* AttributeEditor::ValueBox() const { return ui_->Hodnota; }

}  // namespace pelmar
