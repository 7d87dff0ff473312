#include "ciphers/windows/za_kod.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <algorithm>

#include "ciphers/windows/rewriting_field.h"
#include "ciphers/xor_cipher.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "text/number_text.h"
#include "ui_za_kod.h"

namespace pelmar {

ZaKod::ZaKod(TextBuffer& document, Platform& platform, std::function<int()> selected_tab, QWidget* parent)
    : FormDialog(parent), document_(document), platform_(platform), selected_tab_(std::move(selected_tab)) {
  RewriteOnChange(ui_->Text1, KeyText);
  connect(ui_->Command1, &QPushButton::clicked, this, &ZaKod::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &ZaKod::hide);
  ui_->Text1->setFocus();
}

void ZaKod::Command1_Click() {
  if (running_) return;  // pressed again while the rewrite below lets the windows live
  const QScopedValueRollback<bool> running(running_, true);
  ui_->Txt->clear();
  const double key = LeadingNumber(FieldText(*ui_->Text1));
  const int tab = selected_tab_();
  ui_->ProgressBar1->setMaximum(std::max(1, static_cast<int>(document_.Size())));  // a maximum of 0 means another thing
  ui_->ProgressBar1->setValue(0);
  std::string output;
  RewriteStream(document_, key, output, platform_, [this, tab](std::size_t done) {
    ui_->ProgressBar1->setValue(static_cast<int>(done));
    QCoreApplication::processEvents();
    return selected_tab_() == tab;
  });
  ui_->Txt->setText(TextToQString(output));
}

}  // namespace pelmar
