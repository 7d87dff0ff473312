#include "html/dialogs/kotva.h"

#include "html/link.h"
#include "platform/qt/convert.h"
#include "text/insert.h"
#include "ui_kotva.h"

namespace pelmar {

Kotva::Kotva(TextBuffer& document, std::function<void(const QString&)> remember, QWidget* parent)
    : DialogWindow(parent), document_(document), remember_(std::move(remember)), ui_(std::make_unique<Ui::Kotva>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, &Kotva::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Kotva::hide);
}

Kotva::~Kotva() = default;

void Kotva::Command1_Click() {
  const QString name = ui_->Text1->text();
  if (name.isEmpty()) return;
  remember_(name);
  InsertAtCaret(document_, AnchorTag(TextFromQString(name)));
  hide();
}

}  // namespace pelmar
