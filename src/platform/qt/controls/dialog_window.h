// The base of the program's own dialogs. A dialog is modeless unless exec runs it. Closing hides a dialog, so its
// fields usually keep their contents. Each opening puts the focus on the same control, or on the next one that the Tab
// key reaches, and selects its text. The first opening is in the centre of the screen. On a small screen the contents
// scroll (see ScrollContents).
#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>

namespace pelmar {

// Properties of forms. `cancelButton`: the button that Escape presses; without it Escape closes the dialog.
// `centredEachTime`: each opening is in the centre of the screen. `sizedByContents`: the contents, not the form,
// determine the size at the first opening. `defaultFromFields`: see keyPressEvent.
class DialogWindow : public QDialog {
  Q_OBJECT

 public:
  explicit DialogWindow(QWidget* parent);

  // Shows the window in front of the others, with the focus on its first field.
  void Present();

  // Runs the dialog modally, on the screen of the window that DialogParent returns. Activates that window afterwards.
  int exec() override;

 protected:
  // Enter in this field runs `act` instead of going to the next field or pressing the default button.
  void OnEnter(QWidget* field, std::function<void()> act);
  // The font sizes in the form fit a desktop font of 9 points. Scales these sizes to the present desktop font. Call
  // after setupUi.
  void ScaleLetters();

  // The mouse wheel changes the value of a combo box or scroll bar only if this control has the focus, so that nobody
  // changes a value by accident.
  bool eventFilter(QObject* watched, QEvent* event) override;
  // Enter presses the focused button. In a field, Enter goes to the next field, so that no half-filled dialog writes
  // into the text. In the last field and in other controls, Enter presses the default button. With `defaultFromFields`,
  // Enter presses the default button from each field. GoToNextField has other rules for tab pages.
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  bool TakesKey(QWidget& receiver, const QKeyEvent& press);
  // Runs before the window is first shown.
  void Prepare();
  // Makes the window no larger than `room`, in logical pixels inside the frame. Larger contents then scroll.
  void FitInto(QSize room);
  void BeginInFirstField();
  bool GoToNextField();

  std::map<QObject*, std::function<void()>> on_enter_;
  QPointer<QWidget> first_field_;
  bool prepared_ = false;
};

// A dialog with its form. The form has only this owner. With a unique_ptr in place of the shared_ptr, each subclass
// would need a destructor in a file that includes the form.
template <class Form>
class FormDialog : public DialogWindow {
 protected:
  explicit FormDialog(QWidget* parent) : DialogWindow(parent), ui_(std::make_shared<Form>()) {
    ui_->setupUi(this);
    ScaleLetters();
  }

  const std::shared_ptr<Form> ui_;
};

}  // namespace pelmar
