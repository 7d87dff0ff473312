#include "platform/qt/controls/accessible_face.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QVariant>
#include <algorithm>
#include <map>

namespace pelmar {
namespace {

constexpr char kRole[] = "PelmarRole";

class LabelFace : public QAccessibleWidget {
 public:
  LabelFace(QLabel* label, QAccessible::Role role) : QAccessibleWidget(label, role), label_(*label) {}

  [[nodiscard]] QString text(QAccessible::Text part) const override {
    return part == QAccessible::Name ? label_.text() : QAccessibleWidget::text(part);
  }

 private:
  const QLabel& label_;
};

// Whether the widget is a plain frame and the buddy of a label with the same parent.
bool IsHeadedGroup(const QWidget& widget) {
  if (widget.metaObject() != &QFrame::staticMetaObject || widget.isWindow()) return false;
  const auto labels = widget.parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
  return std::ranges::any_of(labels, [&widget](const QLabel* label) { return label->buddy() == &widget; });
}

QAccessibleInterface* MakeFace(const QString&, QObject* object) {
  if (!object->isWidgetType()) return nullptr;
  const QVariant given = object->property(kRole);
  auto* widget = static_cast<QWidget*>(object);
  if (given.isValid()) {
    const auto role = static_cast<QAccessible::Role>(given.toInt());
    auto* label = qobject_cast<QLabel*>(object);
    return label != nullptr ? new LabelFace(label, role) : new QAccessibleWidget(widget, role);
  }
  return IsHeadedGroup(*widget) ? new QAccessibleWidget(widget, QAccessible::Grouping) : nullptr;
}

}  // namespace

void InstallGroupFaces() { QAccessible::installFactory(&MakeFace); }

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
  QAccessible::installFactory(&MakeFace);
  widget.setProperty(kRole, static_cast<int>(role));
}

void Announce(QWidget& window, const QString& text) {
  if (!QAccessible::isActive()) return;
  const QString name = QStringLiteral("Announcement");
  auto* said = window.findChild<QLabel*>(name);
  if (said == nullptr) {
    said = new QLabel(&window);
    said->setObjectName(name);
    said->hide();
    SetAccessibleRole(*said, QAccessible::Notification);
  }
  said->setText(text);
  QAccessibleEvent shown(said, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

void LabelBoxes(QWidget& window) {
  std::map<const QWidget*, const QLabel*> labels;
  for (const QLabel* label : window.findChildren<QLabel*>())
    if (label->buddy() != nullptr) labels[label->buddy()] = label;
  for (QComboBox* box : window.findChildren<QComboBox*>()) {
    const auto label = labels.find(box);
    QString name = box->accessibleName();
    if (name.isEmpty() && label != labels.end()) name = label->second->text().remove(QLatin1Char('&'));
    if (box->isEditable()) box->lineEdit()->setAccessibleName(name);
    if (label != labels.end() || name.isEmpty()) continue;
    auto* hidden = new QLabel(name, box->parentWidget());
    hidden->hide();
    hidden->setBuddy(box);
  }
}

}  // namespace pelmar
