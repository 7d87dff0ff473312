#include "platform/qt/controls/dialog_window.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShowEvent>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolButton>
#include <algorithm>

#include "platform/qt/controls/accessible_face.h"
#include "platform/qt/controls/scrolled_contents.h"
#include "platform/qt/frames/dialog_parent.h"
#include "platform/qt/frames/outer_geometry.h"
#include "platform/qt/frames/placement.h"
#include "platform/qt/frames/program_style.h"
#include "platform/qt/frames/svg_icon.h"
#include "platform/qt/key_router.h"
#include "platform/qt/textbox/text_box.h"

namespace pelmar {
namespace {

// Moves a scroll bar by the Left or Right key. Qt would move the bar the wrong way. False for other keys.
bool MoveByArrow(QScrollBar& bar, int key) {
  if (key != Qt::Key_Left && key != Qt::Key_Right) return false;
  bar.triggerAction(key == Qt::Key_Left ? QAbstractSlider::SliderSingleStepSub : QAbstractSlider::SliderSingleStepAdd);
  return true;
}

// Whether the widget is a combo box or a scroll bar with a value of its own. The scroll bars of lists and texts don't
// count.
bool WheelChangesValue(const QWidget& widget) {
  return qobject_cast<const QComboBox*>(&widget) ||
         (qobject_cast<const QScrollBar*>(&widget) && widget.focusPolicy() != Qt::NoFocus);
}

// Selects the text of a field as the Tab key does.
void SelectText(QWidget& field) {
  if (auto* line = qobject_cast<QLineEdit*>(&field)) line->selectAll();
  if (auto* box = qobject_cast<QComboBox*>(&field); box != nullptr && box->isEditable()) box->lineEdit()->selectAll();
  if (auto* text = qobject_cast<TextBox*>(&field); text != nullptr && text->TabSelectsAll())
    text->Buffer().Select(0, text->Buffer().Size());
}

bool IsPlainEnter(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
         (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool IsAltCharacter(const QKeyEvent& event) {
  return event.modifiers() == Qt::AltModifier && !event.text().isEmpty() && event.text().front().isPrint();
}

// Lets the Tab key enter a group of radio buttons at `option`, the checked button. Qt does so only after a button of
// the group had the focus.
void GatherTabStops(QRadioButton& option) {
  for (auto* other : option.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
    if (other->group() == option.group()) other->setFocusPolicy(other == &option ? Qt::StrongFocus : Qt::ClickFocus);
}

// Whether the person can fill in the widget or choose from it. The inner field of a combo box doesn't count.
bool IsField(const QWidget& widget) {
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
    return !line->isReadOnly() && !qobject_cast<const QComboBox*>(widget.parentWidget());
  if (const auto* text = qobject_cast<const TextBox*>(&widget)) return !text->IsReadOnly();
  return qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget);
}

bool TakesTab(const QWidget& widget, const QWidget& window) {
  return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isVisibleTo(&window) && widget.isEnabled();
}

// The fields that the Tab key reaches, in tab order.
QList<QWidget*> FieldsInOrder(QWidget& window) {
  QList<QWidget*> fields;
  for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain())
    if (IsField(*next) && TakesTab(*next, window)) fields += next;
  return fields;
}

// Whether the widget is on a tab page. There Enter in the last field goes to the first field and doesn't press the
// default button. The person then fills in the same fields for the next row or cell, or goes on to another page.
bool IsOnTabPage(const QWidget* widget) {
  while (widget != nullptr && !qobject_cast<const QStackedWidget*>(widget)) widget = widget->parentWidget();
  return widget != nullptr;
}

}  // namespace

void DialogWindow::ScaleLetters() {
  constexpr double kPlain = 9;
  const double scale = QFontInfo(QApplication::font()).pointSizeF() / kPlain;
  for (QWidget* widget : findChildren<QWidget*>()) {
    QFont letters = widget->font();
    if (!widget->testAttribute(Qt::WA_SetFont) || (letters.resolveMask() & QFont::SizeResolved) == 0) continue;
    letters.setPointSizeF(letters.pointSizeF() * scale);
    widget->setFont(letters);
  }
}

DialogWindow::DialogWindow(QWidget* parent) : QDialog(parent) {
  InstallGroupFaces();
  setProperty(kRoomProperty, true);
  KeyRouter::Get().Add(KeyTurn::kField, *this,
                       [this](QWidget& receiver, const QKeyEvent& press) { return TakesKey(receiver, press); });
  KeyRouter::Get().Add(KeyTurn::kDialog, *this, [this](QWidget& receiver, QKeyEvent& press) {
    const bool ticks =
        qobject_cast<QCheckBox*>(&receiver) != nullptr || qobject_cast<QRadioButton*>(&receiver) != nullptr;
    if (!ticks || !IsPlainEnter(press)) return false;
    keyPressEvent(&press);
    return true;
  });
}

void DialogWindow::Present() {
  const bool was_visible = isVisible();
  BringToFront(*this);
  // While the first field of a visible dialog is disabled, the focus stays where the dialog has put it.
  if (was_visible && first_field_ && first_field_->isEnabled()) BeginInFirstField();
}

int DialogWindow::exec() {
  const QPointer<QWidget> parent = DialogParent();
  if (prepared_ && parent && parent->screen() != screen()) {
    ShowOnParentsScreen(*this);
    CentreOnScreen(*this);
  }
  const int result = QDialog::exec();
  ExpectActive(parent);
  return result;
}

void DialogWindow::OnEnter(QWidget* field, std::function<void()> act) { on_enter_[field] = std::move(act); }

bool DialogWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (widget != nullptr && WheelChangesValue(*widget) && !widget->hasFocus()) {
      event->ignore();  // lets the parents scroll
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

bool DialogWindow::TakesKey(QWidget& receiver, const QKeyEvent& press) {
  // Alt with a character that is no access key neither types into a field nor chooses a row of a combo box.
  if ((qobject_cast<QLineEdit*>(&receiver) || qobject_cast<QComboBox*>(&receiver)) && IsAltCharacter(press))
    return true;
  if (const auto act = on_enter_.find(&receiver); act != on_enter_.end() && IsPlainEnter(press)) {
    act->second();
    return true;
  }
  auto* bar = qobject_cast<QScrollBar*>(&receiver);
  return bar != nullptr && MoveByArrow(*bar, press.key());
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
  const QString name = property("cancelButton").toString();
  auto* cancel = name.isEmpty() ? nullptr : findChild<QAbstractButton*>(name);
  if (cancel != nullptr && event->matches(QKeySequence::Cancel)) return cancel->click();
  // The forms turn autoDefault off. So Qt would press the default button even if another button has the focus.
  QWidget* focus = focusWidget();
  if (IsPlainEnter(*event) && (qobject_cast<QPushButton*>(focus) || qobject_cast<QToolButton*>(focus)))
    return static_cast<QAbstractButton*>(focus)->click();
  if (IsPlainEnter(*event) && GoToNextField()) return;
  QDialog::keyPressEvent(event);
}

// Goes to the next field after Enter. False if Enter should press the default button. IsOnTabPage tells the rule for
// the last field on a tab page.
bool DialogWindow::GoToNextField() {
  if (property("defaultFromFields").toBool()) return false;
  const QList<QWidget*> fields = FieldsInOrder(*this);
  const auto at = fields.indexOf(focusWidget());
  // Enter in a scroll bar on a tab page goes to the next control.
  if (at < 0 && IsOnTabPage(focusWidget()) && qobject_cast<QScrollBar*>(focusWidget())) {
    focusNextChild();
    return true;
  }
  if (at < 0) return false;
  const bool last = at + 1 == fields.size();
  if (last && !IsOnTabPage(fields[at])) return false;
  fields[last ? 0 : at + 1]->setFocus(Qt::TabFocusReason);
  return true;
}

void DialogWindow::showEvent(QShowEvent* event) {
  if (event->spontaneous()) return QDialog::showEvent(event);
  if (!prepared_)
    Prepare();
  else if (property("centredEachTime").toBool())
    CentreOnScreen(*this);
  PutAboveAll(*this);
  setAttribute(Qt::WA_KeyboardFocusChange);  // shows the focus frame at once
  QDialog::showEvent(event);
  BeginInFirstField();
}

void DialogWindow::BeginInFirstField() {
  if (!first_field_) return;
  QWidget* field = first_field_;
  // Passes over a disabled field, an option that isn't checked any more and a field of a hidden page.
  while (!TakesTab(*field, *this)) {
    field = field->nextInFocusChain();
    if (field == first_field_) return;
  }
  field->setFocus(Qt::TabFocusReason);
  if (auto* view = findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly)) view->ensureWidgetVisible(field);
  // If the window isn't active yet, the field gets the focus later, without the reason Tab. Then Qt selects no text, so
  // the text is selected here.
  SelectText(*field);
}

void DialogWindow::Prepare() {
  prepared_ = true;
  ShowProgramIcon();
  first_field_ = focusWidget();
  for (QWidget* next = this; !first_field_ && (next = next->nextInFocusChain()) != this;)
    if (TakesTab(*next, *this) && !qobject_cast<QTabBar*>(next)) first_field_ = next;
  ShowOnParentsScreen(*this);
  FitInto(RoomOnScreen(*this));
  CentreOnScreen(*this);
  LabelBoxes(*this);
  for (auto* option : findChildren<QRadioButton*>()) {
    const auto gather = [option] {
      if (option->isChecked()) GatherTabStops(*option);
    };
    connect(option, &QRadioButton::toggled, this, gather);
    gather();
  }
  KeepAboveAll(*this);  // a window on top may appear or vanish while this dialog is open
  // Repaints the default button: it is drawn as default only while no other button has the focus.
  connect(qApp, &QApplication::focusChanged, this, [this] {
    if (!isVisible()) return;  // the dialog is hidden or is being destroyed
    for (QPushButton* button : findChildren<QPushButton*>())
      if (button->isDefault()) button->update();
  });
  for (QWidget* widget : findChildren<QWidget*>()) {
    if (!WheelChangesValue(*widget)) continue;
    widget->installEventFilter(this);
    if (widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
  }
}

void DialogWindow::FitInto(QSize room) {
  ensurePolished();
  for (QWidget* widget : findChildren<QWidget*>()) widget->ensurePolished();  // determines their fonts
  if (property("sizedByContents").toBool()) adjustSize();
  const QSize least = layout() != nullptr ? layout()->totalMinimumSize() : QSize();
  if (least.width() > room.width() || least.height() > room.height()) ScrollContents(*this);
  resize(QSize(std::max(width(), WidthOfTitle(*this)), height()).boundedTo(room));
}

}  // namespace pelmar
