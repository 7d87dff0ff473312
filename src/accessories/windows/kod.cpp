#include "accessories/windows/kod.h"

#include <QKeyEvent>

#include "html/blocks.h"
#include "platform/color.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "platform/qt/glyph_table.h"
#include "text/codepage.h"
#include "text/insert.h"
#include "ui_kod.h"

namespace pelmar {
namespace {

QString Character(int code) { return TextToQString(std::string(1, CharOf(code))); }
QString Readable(int code) { return ReadableText(std::string(1, CharOf(code))); }

QString SpokenName(int code) { return QStringLiteral("%1, kód %2").arg(Readable(code)).arg(code); }

// Inserts before the selected text and keeps the selected text, as InsertAtCaret does in the document.
void InsertInto(QLineEdit& field, const QString& text) {
  if (field.hasSelectedText()) field.setCursorPosition(field.selectionStart());
  field.insert(text);
}

void SetFamily(QWidget& widget, const QString& family) {
  QFont font = widget.font();
  font.setFamily(family);
  widget.setFont(font);
}

}  // namespace

Kod::Kod(TextBuffer& buffer, std::function<void(const QKeyEvent&)> stroke_main, QWidget* parent)
    : FormDialog(parent), buffer_(buffer), stroke_main_(std::move(stroke_main)) {
  // The grid's smallest size in the form fits letters of 10 points. The size grows or shrinks with the letters.
  ui_->Picture1->setMinimumSize(ui_->Picture1->minimumSize() * (ui_->Picture1->font().pointSizeF() / 10));
  ui_->Combo1->setCompleter(nullptr);  // Qt would complete a typed "Courier" to "Courier New"
  connect(ui_->Combo1, &QComboBox::currentTextChanged, this, &Kod::Combo1_Change);
  connect(ui_->HScroll1, &QScrollBar::valueChanged, this, &Kod::HScroll1_Change);
  connect(ui_->Command3, &QPushButton::clicked, this, &Kod::Command3_Click);
  connect(ui_->Command4, &QPushButton::clicked, this, &Kod::Command4_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Kod::hide);
  connect(ui_->Picture1, &CellGrid::CellEntered, this,
          [this](int row, int column) { Point(CodeGrid::CodeAt(row, column)); });
  connect(ui_->Picture1, &CellGrid::CellChosen, this,
          [this](int row, int column) { Choose(CodeGrid::CodeAt(row, column)); });
  ui_->Picture1->NameCells([](int row, int column) { return SpokenName(CodeGrid::CodeAt(row, column)); });
  new KeyPreview(*this, [this](const QKeyEvent& event) { return TypedKey(event); });
}

void Kod::Combo1_Change(const QString& font_name) {
  SetFamily(*ui_->Picture1, font_name);
  SetFamily(*ui_->Label2, font_name);
  SetFamily(*ui_->Text1, font_name);
  SetFamily(*ui_->Picture2, font_name);
}

void Kod::HScroll1_Change(int code) {
  ui_->Label1->setText(QString::number(code));
  // Code 0 can't be inserted, so its caption is empty.
  ui_->Label2->setText(code == 0 ? QString() : Readable(code));
}

void Kod::Command3_Click() {
  if (const int code = ui_->HScroll1->value(); code != 0) InsertInto(*ui_->Text1, Character(code));
}

void Kod::Command4_Click() {
  const std::string text = FieldText(*ui_->Text1);
  if (!text.empty()) InsertAtCaret(buffer_, text);
  ui_->Text1->clear();
}

void Kod::Point(int code) {
  ui_->Label6->setText(QString::number(code));
  ui_->Label7->setText(Utf8ToQString(HexByte(code)));
  ui_->Label8->setText(Utf8ToQString(CharacterReference(code)));
  ui_->Picture2->SetCode(code);
  ui_->Picture2->setAccessibleDescription(SpokenName(code));
}

void Kod::Choose(int code) {
  if (code == 0) return;
  if (ui_->Option1->isChecked()) return InsertAtCaret(buffer_, std::string(1, CharOf(code)));
  if (ui_->Option2->isChecked()) return InsertAtCaret(buffer_, CharacterReference(code));
  InsertInto(*ui_->Text1, Character(code));
}

Preview Kod::TypedKey(const QKeyEvent& event) {
  const auto character = TypedCharacter(event);
  if (!character || !ui_->Option1->isChecked()) return Preview::kPass;
  const QWidget* focus = focusWidget();
  // These keys operate a control of this window: the space bar on buttons and on the other options, Enter on buttons.
  if (*character == ' ' && focus != ui_->Option1 && qobject_cast<const QAbstractButton*>(focus)) return Preview::kPass;
  if (*character == '\r' && qobject_cast<const QPushButton*>(focus)) return Preview::kPass;
  stroke_main_(event);
  // required: a focused field gets the key too
  return focus == ui_->Text1 || focus == ui_->Combo1 ? Preview::kShare : Preview::kTake;
}

}  // namespace pelmar
