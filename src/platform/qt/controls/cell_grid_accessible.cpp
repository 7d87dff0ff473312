#include "platform/qt/controls/cell_grid_accessible.h"

#include <QPointer>

namespace pelmar {
namespace {

class CellAccessible : public QAccessibleInterface,
                       public QAccessibleValueInterface,
                       public QAccessibleActionInterface {
 public:
  CellAccessible(CellGrid& grid, int number) : grid_(&grid), number_(number) {}

  [[nodiscard]] int Number() const { return number_; }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
  }

  [[nodiscard]] bool isValid() const override { return !grid_.isNull(); }
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QWindow* window() const override { return grid_->window()->windowHandle(); }
  [[nodiscard]] QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(grid_); }
  [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  [[nodiscard]] int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
  [[nodiscard]] QString text(QAccessible::Text part) const override {
    return part == QAccessible::Name ? grid_->CellName(number_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  [[nodiscard]] QRect rect() const override {
    const QRect cell = grid_->CellRect(number_ / grid_->Cells() + 1, number_ % grid_->Cells() + 1);
    return {grid_->mapToGlobal(cell.topLeft()), cell.size()};
  }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = state.selectable = true;
    state.selected = grid_->Marked() == number_;
    state.focused = state.selected && grid_->hasFocus();
    state.active = state.focused;
    state.invisible = !grid_->isVisible();
    return state;
  }

  [[nodiscard]] QVariant currentValue() const override { return number_; }
  void setCurrentValue(const QVariant&) override {}
  [[nodiscard]] QVariant minimumValue() const override { return 0; }
  [[nodiscard]] QVariant maximumValue() const override { return grid_->Cells() * grid_->Cells() - 1; }
  [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

  [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (name == pressAction() && grid_->isEnabled()) grid_->Choose(number_);
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  const QPointer<CellGrid> grid_;
  const int number_;
};

}  // namespace

CellGridAccessible::~CellGridAccessible() {
  for (const QAccessible::Id cell : cells_)
    if (cell != 0) QAccessible::deleteAccessibleInterface(cell);
}

QAccessibleInterface* CellGridAccessible::child(int number) const {
  if (number < 0 || number >= childCount()) return nullptr;
  cells_.resize(static_cast<std::size_t>(childCount()));
  QAccessible::Id& cell = cells_[static_cast<std::size_t>(number)];
  if (cell == 0) cell = QAccessible::registerAccessibleInterface(new CellAccessible(grid_, number));
  return QAccessible::accessibleInterface(cell);
}

QAccessibleInterface* CellGridAccessible::childAt(int x, int y) const {
  const QPoint at = grid_.mapFromGlobal(QPoint(x, y));
  if (!grid_.rect().contains(at)) return nullptr;
  const QPoint cell = grid_.CellAt(at);
  return child((cell.y() - 1) * grid_.Cells() + cell.x() - 1);
}

QAccessibleInterface* CellGridAccessible::focusChild() const {
  return grid_.hasFocus() && grid_.Marked() >= 0 ? child(grid_.Marked()) : QAccessibleWidget::focusChild();
}

int CellGridAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* cell = dynamic_cast<const CellAccessible*>(child);
  return cell == nullptr ? -1 : cell->Number();
}

}  // namespace pelmar
