#include "ciphers/windows/za_kod.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <algorithm>

#include "ciphers/windows/rewriting_field.h"
#include "ciphers/xor_cipher.h"
#include "platform/qt/controls/field_helpers.h"
#include "shell/editor.h"
#include "text/number_text.h"
#include "ui_za_kod.h"

namespace pelmar {

ZaKod::ZaKod(Editor& editor, std::function<bool()> closed, QWidget* parent)
    : FormDialog(parent), editor_(editor), closed_(std::move(closed)) {
  RewriteOnChange(ui_->Text1, KeyText);
  connect(ui_->Command1, &QPushButton::clicked, this, &ZaKod::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &ZaKod::hide);
}

void ZaKod::Command1_Click() {
  if (running_) return;  // pressed again while RewriteStream below handles events
  const QScopedValueRollback<bool> running(running_, true);
  const double key = LeadingNumber(FieldText(*ui_->Text1));
  const auto length = static_cast<int>(editor_.text.Size());
  ui_->ProgressBar1->setMaximum(std::max(1, length));  // a maximum of 0 would show a busy bar
  ui_->ProgressBar1->setValue(0);
  // The result belongs only to the document that was read. So the run stops if another tab is selected, the path of the
  // document changes or the whole text is replaced.
  const Documents& documents = editor_.documents;
  const auto same_document = [&documents, tab = documents.SelectedTab(), path = documents.CurrentPath()] {
    return documents.SelectedTab() == tab && documents.CurrentPath() == path;
  };
  bool replaced = false;
  const Listening changes = editor_.text.OnChange([&replaced](const TextChange& change) { replaced |= change.whole; });
  std::string output;
  RewriteStream(editor_.text, key, output, editor_.platform, [&](std::size_t done) {
    ui_->ProgressBar1->setValue(static_cast<int>(done));
    QCoreApplication::processEvents();
    return same_document() && !replaced && !closed_();
  });
  ui_->Txt->Buffer().SetText(std::move(output));
}

}  // namespace pelmar
