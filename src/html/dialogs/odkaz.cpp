#include "html/dialogs/odkaz.h"

#include "html/dialogs/form_helpers.h"
#include "html/link.h"
#include "platform/qt/convert.h"
#include "text/insert.h"
#include "ui_odkaz.h"

namespace pelmar {

Odkaz::Odkaz(TextBuffer& document, QWidget* parent)
    : DialogWindow(parent), document_(document), ui_(std::make_unique<Ui::Odkaz>()) {
  ui_->setupUi(this);
  AcceptFreeText(ui_->Combo1);  // the toolkit would make "Kotva10" of a typed "Kotva1"
  connect(ui_->Command1, &QPushButton::clicked, this, &Odkaz::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Odkaz::hide);
}

Odkaz::~Odkaz() = default;

void Odkaz::AddAnchor(const QString& name) {
  const QString typed = ui_->Combo1->currentText();  // which the first row of a list takes the place of
  ui_->Combo1->addItem(name);
  ui_->Combo1->setEditText(typed);
  AcceptFreeText(ui_->Combo1);
}

void Odkaz::Command1_Click() {
  const QString name = ui_->Combo1->currentText();
  if (name.isEmpty()) return;
  InsertLink(document_, LinkToAnchor(TextFromQString(name)));
  hide();
}

}  // namespace pelmar
