#include "html/dialogs/template.h"

#include <QHeaderView>

#include "html/samples/templaty.h"
#include "platform/qt/controls/list_rows.h"
#include "platform/qt/convert.h"
#include "platform/qt/frames/svg_icon.h"
#include "ui_template.h"

namespace pelmar {

Template::Template(TextBuffer& buffer, const SettingsRecord& settings, QWidget* parent)
    : FragmentDialog(buffer, parent), settings_(settings) {
  FillList();
  ui_->Text1->SetText(ToBytes("Vyber dokument\r\n"));
  ChooseFirstByArrows(ui_->ListView1);
  connect(ui_->ListView1, &QTreeWidget::itemSelectionChanged, this, &Template::ListView1_Click);
  connect(ui_->ListView1, &QTreeWidget::itemClicked, this, &Template::ListView1_Click);
}

void Template::FillList() {
  for (const Sample& sample : Samples()) {
    auto* row = new QTreeWidgetItem(ui_->ListView1, {TextToQString(sample.text), TextToQString(sample.file_name)});
    row->setData(0, Qt::UserRole, Utf8ToQString(sample.key));
    row->setIcon(0, SvgIcon(QStringLiteral(":/icons/%1.svg").arg(Utf8ToQString(sample.picture))));
  }
  ui_->ListView1->header()->setSectionsMovable(false);
  ui_->ListView1->resizeColumnToContents(0);
  ui_->ListView1->setColumnWidth(0, ui_->ListView1->columnWidth(0) + 12);
}

void Template::ListView1_Click() {
  const QList<QTreeWidgetItem*> chosen = ui_->ListView1->selectedItems();
  if (chosen.isEmpty()) return;
  ui_->Label1->setText(QStringLiteral("Zobrazení dokumentu :") + chosen.first()->text(0));
  const std::string key = Utf8FromQString(chosen.first()->data(0, Qt::UserRole).toString());
  ui_->Text1->SetText(ToBytes(SampleText(key, settings_)));
}

bool Template::Put() {
  buffer_.SetText(ui_->Text1->Buffer().Text());
  return true;
}

}  // namespace pelmar
