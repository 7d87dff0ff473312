#include "platform/qt/controls/accessible_face.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QVariant>
#include <map>

namespace pelmar {
namespace {

constexpr char kRole[] = "PelmarRole";

QAccessibleInterface* MakeFace(const QString&, QObject* object) {
  const QVariant role = object->isWidgetType() ? object->property(kRole) : QVariant();
  if (!role.isValid()) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object), static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
  static const bool installed = [] {
    QAccessible::installFactory(&MakeFace);
    return true;
  }();
  Q_UNUSED(installed);
  widget.setProperty(kRole, static_cast<int>(role));
}

void LabelBoxes(QWidget& window) {
  std::map<const QWidget*, const QLabel*> labels;
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    if (label->buddy() == nullptr) continue;
    labels[label->buddy()] = label;
    // The heading of options is the name of the group that they lie in.
    if (label->buddy()->metaObject() == &QWidget::staticMetaObject)
      SetAccessibleRole(*label->buddy(), QAccessible::Grouping);
  }
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
