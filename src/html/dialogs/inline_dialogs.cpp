#include "html/dialogs/inline_dialogs.h"

#include <QLineEdit>

#include "html/blocks.h"
#include "html/dialogs/form_helpers.h"
#include "platform/qt/convert.h"
#include "text/codepage.h"
#include "text/insert.h"
#include "ui_comment.h"
#include "ui_html_ascii.h"
#include "ui_html_id.h"
#include "ui_label.h"
#include "ui_line_label.h"
#include "ui_meta.h"
#include "ui_smajl.h"
#include "ui_zlomek.h"

namespace pelmar {
namespace {

std::string Typed(const QLineEdit* field) { return TextFromQString(field->text()); }
std::string Chosen(const QComboBox* box) { return TextFromQString(box->currentText()); }

}  // namespace

LineLabel::LineLabel(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}
LineLabel::~LineLabel() = default;

bool LineLabel::Put() {
  InsertAtCaret(document_, LinedHeading(Typed(ui_->Text1)));
  return true;
}

Label::Label(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}
Label::~Label() = default;

bool Label::Put() {
  InsertAtCaret(document_, TableHeading(Typed(ui_->Text1)));
  return true;
}

Zlomek::Zlomek(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}
Zlomek::~Zlomek() = default;

bool Zlomek::Put() {
  InsertAtCaret(document_, Fraction(Typed(ui_->Text1), Typed(ui_->Text2)));
  return true;
}

Comment::Comment(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}
Comment::~Comment() = default;

bool Comment::Put() {
  InsertAtCaret(document_, CommentText(Typed(ui_->Text1)));
  return true;
}

Meta::Meta(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) { AcceptFreeText(ui_->Combo1); }
Meta::~Meta() = default;

bool Meta::Put() {
  InsertAtCaret(document_, Chosen(ui_->Combo1));
  return true;
}

HtmlID::HtmlID(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}
HtmlID::~HtmlID() = default;

bool HtmlID::Put() {
  PutDoctype(document_, Chosen(ui_->Combo1));
  return true;
}

HTMLAscii::HTMLAscii(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {
  ShowValue(ui_->HScroll1, ui_->Label1);
  ShowValue(ui_->HScroll1, ui_->Label2, [](int value) { return TextToQString(std::string(1, CharOf(value))); });
}
HTMLAscii::~HTMLAscii() = default;

bool HTMLAscii::Put() {
  InsertAtCaret(document_, CharacterReference(ui_->HScroll1->value()));
  return true;
}

Smajl::Smajl(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {
  const auto parts = {ui_->Combo1, ui_->Combo2, ui_->Combo3, ui_->Combo4, ui_->Combo5};
  // The form can't hold a text of blanks alone.
  for (QComboBox* part : parts)
    if (const int blank = part->findText(QString()); blank >= 0) part->setItemText(blank, QStringLiteral(" "));
  connect(ui_->Command3, &QPushButton::clicked, this, [this] {
    ui_->Text1->setText(TextToQString(Smiley(
        {Chosen(ui_->Combo1), Chosen(ui_->Combo2), Chosen(ui_->Combo3), Chosen(ui_->Combo4), Chosen(ui_->Combo5)})));
  });
}
Smajl::~Smajl() = default;

bool Smajl::Put() {
  InsertAtCaret(document_, Typed(ui_->Text1));
  return true;
}

}  // namespace pelmar
