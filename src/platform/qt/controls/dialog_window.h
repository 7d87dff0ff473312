// The base of the program's own dialogs. A dialog is modeless unless exec runs it. Closing only hides a dialog, so its
// fields keep their contents. Each opening starts in the same field, with its text selected. The first opening is in
// the centre of the screen. On a small screen the contents scroll, and the buttons that close the dialog stay visible.
#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>

class QPushButton;

namespace pelmar {

// Forms set these properties: `cancelButton` names the button that Escape presses (otherwise Escape closes the dialog),
// `centredEachTime` centres the dialog at each opening, `sizedByContents` makes the dialog as large as its contents
// need, and `defaultFromFields` changes Enter (see keyPressEvent).
class DialogWindow : public QDialog {
  Q_OBJECT

 public:
  explicit DialogWindow(QWidget* parent);

  // Shows the window in front of the others, with the focus on its first field.
  void Present();

  // Makes the window no larger than `room`, in logical pixels inside the frame. Call before the window is first shown.
  void FitInto(QSize room);

  // Runs the dialog modally on the screen of DialogParent, and activates DialogParent again afterwards.
  int exec() override;

 protected:
  // Enter in this field runs `act` instead of going to the next field or pressing the default button.
  void OnEnter(QWidget* field, std::function<void()> act);
  // Scales the font sizes that the form sets, which fit a desktop font of 9 points. Call after setupUi.
  void ScaleLetters();

  // The mouse wheel changes only a focused combo box or scroll bar, so that nobody changes a value by accident.
  bool eventFilter(QObject* watched, QEvent* event) override;
  // Enter presses the focused button. In a field Enter goes to the next field, so that no half-filled dialog writes
  // into the text. In the last field, outside fields and with `defaultFromFields` Enter presses the default button. On
  // a tab page Enter goes from the last field to the first field, and from a scroll bar to the next control.
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  bool TakesKey(QWidget& receiver, const QKeyEvent& press);
  // Runs before the window is first shown.
  void Prepare();
  void BeginInFirstField();
  bool GoToNextField();
  QList<QPushButton*> EndingButtons() const;

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
