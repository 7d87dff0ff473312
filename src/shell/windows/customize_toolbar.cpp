#include "shell/windows/customize_toolbar.h"

#include <QAction>
#include <QSignalBlocker>

#include "ui_customize_toolbar.h"

namespace pelmar {
namespace {

constexpr int kActionRole = Qt::UserRole;

QAction* ActionOf(const QListWidgetItem* item) { return item->data(kActionRole).value<QAction*>(); }

}  // namespace

CustomizeToolbar::CustomizeToolbar(MainToolbar& toolbar, QWidget* parent) : FormDialog(parent), toolbar_(toolbar) {
  connect(ui_->Buttons, &QListWidget::itemChanged, this, &CustomizeToolbar::Apply);
  connect(ui_->Buttons->model(), &QAbstractItemModel::rowsMoved, this, &CustomizeToolbar::Apply);
  connect(ui_->Up, &QPushButton::clicked, this, [this] { Move(-1); });
  connect(ui_->Down, &QPushButton::clicked, this, [this] { Move(1); });
  connect(ui_->Initial, &QPushButton::clicked, this, &CustomizeToolbar::Reset);
  connect(ui_->Close, &QPushButton::clicked, this, &CustomizeToolbar::hide);
}

void CustomizeToolbar::showEvent(QShowEvent* event) {
  Fill();
  DialogWindow::showEvent(event);
}

void CustomizeToolbar::Fill() {
  const QSignalBlocker quiet(ui_->Buttons);
  ui_->Buttons->clear();
  const QList<QAction*> actions = toolbar_.actions();
  for (QAction* action : actions) {
    const QString caption = action->isSeparator() ? QStringLiteral("──────") : action->text();
    auto* item = new QListWidgetItem(action->icon(), caption, ui_->Buttons);
    item->setData(kActionRole, QVariant::fromValue(action));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsDragEnabled);
    item->setCheckState(action->isVisible() ? Qt::Checked : Qt::Unchecked);
  }
  ui_->Buttons->setCurrentRow(0);
}

void CustomizeToolbar::Apply() {
  QList<QAction*> order;
  for (int row = 0; row < ui_->Buttons->count(); ++row) {
    const QListWidgetItem* item = ui_->Buttons->item(row);
    QAction* action = ActionOf(item);
    action->setVisible(item->checkState() == Qt::Checked);
    order.append(action);
  }
  toolbar_.Arrange(order);
}

void CustomizeToolbar::Move(int by) {
  const int row = ui_->Buttons->currentRow();
  const int to = row + by;
  if (row < 0 || to < 0 || to >= ui_->Buttons->count()) return;
  {
    const QSignalBlocker quiet(ui_->Buttons);
    ui_->Buttons->insertItem(to, ui_->Buttons->takeItem(row));
    ui_->Buttons->setCurrentRow(to);
  }
  Apply();
}

void CustomizeToolbar::Reset() {
  toolbar_.Reset();
  Fill();
}

}  // namespace pelmar
