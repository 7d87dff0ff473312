#include "html/dialogs/inline_dialogs.h"

#include "html/blocks.h"
#include "html/dialogs/form_helpers.h"
#include "platform/qt/convert.h"
#include "text/codepage.h"
#include "ui_comment.h"
#include "ui_html_ascii.h"
#include "ui_html_id.h"
#include "ui_label.h"
#include "ui_line_label.h"
#include "ui_meta.h"
#include "ui_smajl.h"
#include "ui_zlomek.h"

namespace pelmar {

LineLabel::LineLabel(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}

bool LineLabel::Put() { return Insert(LinedHeading(FieldText(*ui_->Text1))); }

Label::Label(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}

bool Label::Put() { return Insert(TableHeading(FieldText(*ui_->Text1))); }

Zlomek::Zlomek(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}

bool Zlomek::Put() { return Insert(Fraction(FieldText(*ui_->Text1), FieldText(*ui_->Text2))); }

Comment::Comment(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}

bool Comment::Put() { return Insert(CommentText(FieldText(*ui_->Text1))); }

Meta::Meta(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {
  ui_->Combo1->setCurrentText(QStringLiteral("Vyber meta-tag"));
  AcceptFreeText(ui_->Combo1);
}

bool Meta::Put() { return Insert(FieldText(*ui_->Combo1)); }

HtmlID::HtmlID(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}

bool HtmlID::Put() {
  PutDoctype(document_, FieldText(*ui_->Combo1));
  return true;
}

HTMLAscii::HTMLAscii(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {
  ShowValue(ui_->HScroll1, ui_->Label1);
  ShowValue(ui_->HScroll1, ui_->Label2, [](int value) { return TextToQString(std::string(1, CharOf(value))); });
}

bool HTMLAscii::Put() { return Insert(CharacterReference(ui_->HScroll1->value())); }

Smajl::Smajl(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {
  // The form can't hold a text of blanks alone.
  for (QComboBox* part : {ui_->Combo1, ui_->Combo2, ui_->Combo3, ui_->Combo4, ui_->Combo5})
    if (const int blank = part->findText(QString()); blank >= 0) part->setItemText(blank, QStringLiteral(" "));
  connect(ui_->Command3, &QPushButton::clicked, this, [this] {
    ui_->Text1->setText(TextToQString(Smiley({FieldText(*ui_->Combo1), FieldText(*ui_->Combo2), FieldText(*ui_->Combo3),
                                              FieldText(*ui_->Combo4), FieldText(*ui_->Combo5)})));
  });
}

bool Smajl::Put() { return Insert(FieldText(*ui_->Text1)); }

}  // namespace pelmar
