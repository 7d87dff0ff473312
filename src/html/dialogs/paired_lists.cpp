#include "html/dialogs/paired_lists.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>

#include "platform/qt/controls/list_rows.h"
#include "platform/qt/convert.h"

namespace pelmar {
namespace {

QString RowText(const QListWidget& list, int row) {
  const QListWidgetItem* item = list.item(row);
  return item == nullptr ? QString() : item->text();
}

}  // namespace

int SelectedRow(const QListWidget& list) {
  const QList<QListWidgetItem*> selected = list.selectedItems();
  return selected.isEmpty() ? -1 : list.row(selected.first());
}

void AddRow(QListWidget& list, const QString& text) {
  const QSignalBlocker quiet(list);
  const int row = SelectedRow(list);
  list.insertItem(row < 0 ? list.count() : row, text);
}

void RemoveRow(QListWidget& list) {
  const QSignalBlocker quiet(list);
  const int row = SelectedRow(list);
  delete list.takeItem(row < 0 ? list.count() - 1 : row);
  list.setCurrentRow(-1);
}

void RemoveByKey(QListWidget& list, QAbstractButton& remove) {
  auto* key = new QShortcut(QKeySequence(Qt::Key_Delete), &list);
  key->setContext(Qt::WidgetShortcut);
  QObject::connect(key, &QShortcut::activated, &remove, [&list, &remove] {
    if (SelectedRow(list) >= 0) remove.click();  // without a selected row the button would remove the last row
  });
}

std::vector<std::string> RowTexts(const QListWidget& list) {
  std::vector<std::string> texts;
  texts.reserve(static_cast<std::size_t>(list.count()));
  for (int row = 0; row < list.count(); ++row) texts.push_back(TextFromQString(list.item(row)->text()));
  return texts;
}

PairedLists::PairedLists(const Parts& parts, QObject* parent) : QObject(parent), parts_(parts) {
  for (const auto& [list, other] : {std::pair{parts_.names, parts_.values}, {parts_.values, parts_.names}}) {
    ShowRowsOnOneLine(*list);
    RemoveByKey(*list, *parts_.remove);
    OnRowPicked(*list, [this, o = other](int row) { Follow(o, row); });
    connect(list, &QListWidget::itemSelectionChanged, this, [l = list, o = other] {
      if (SelectedRow(*l) < 0) o->setCurrentRow(-1);
    });
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, other->verticalScrollBar(),
            [bar = other->verticalScrollBar()](int value) {
              if (value <= bar->maximum()) bar->setValue(value);  // otherwise the shorter list stays where it is
            });
  }
  connect(parts_.name, &QLineEdit::textChanged, this,
          [this](const QString& text) { FieldChanged(text, parts_.names); });
  connect(parts_.value, &QLineEdit::textChanged, this,
          [this](const QString& text) { FieldChanged(text, parts_.values); });
  connect(parts_.add, &QAbstractButton::clicked, this, &PairedLists::Add);
  connect(parts_.remove, &QAbstractButton::clicked, this, &PairedLists::Remove);
}

void PairedLists::Follow(QListWidget* other, int row) {
  {
    const QSignalBlocker quiet(other);
    other->setCurrentRow(row);  // selects nothing if `other` has no such row
  }
  if (!edits_rows_) return;
  const QScopedValueRollback<bool> following(following_, true);
  parts_.name->setText(RowText(*parts_.names, row));
  parts_.value->setText(RowText(*parts_.values, row));
}

void PairedLists::FieldChanged(const QString& text, QListWidget* list) {
  // required: only the field that changed last decides whether `add` is enabled
  parts_.add->setEnabled(!text.isEmpty());
  // The texts that Follow() puts into the fields come from the rows, so they aren't written back.
  if (!edits_rows_ || following_) return;
  if (const int row = SelectedRow(*list); row >= 0) list->item(row)->setText(text);
}

void PairedLists::Add() {
  if (!parts_.add->isEnabled()) return;
  AddRow(*parts_.names, parts_.name->text());
  AddRow(*parts_.values, parts_.value->text());
  parts_.remove->setEnabled(true);
  parts_.name->setFocus();
  parts_.name->selectAll();
}

void PairedLists::Remove() {
  RemoveRow(*parts_.names);
  RemoveRow(*parts_.values);
  if (parts_.names->count() == 0 || parts_.values->count() == 0) parts_.remove->setEnabled(false);
}

AttributeLists PairedLists::Rows() const { return {RowTexts(*parts_.names), RowTexts(*parts_.values)}; }

void PairedLists::SetRows(const AttributeLists& rows) {
  for (const std::string& name : rows.names) parts_.names->addItem(TextToQString(name));
  for (const std::string& value : rows.values) parts_.values->addItem(TextToQString(value));
  parts_.remove->setEnabled(!rows.names.empty());
}

}  // namespace pelmar
