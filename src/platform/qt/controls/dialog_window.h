// The base of the program's own dialogs: modeless unless executed, centred on the screen when first shown, and only
// hidden on closing, so that the fields keep what they hold for the whole run. Each opening begins in the same field,
// with its text selected. Boxes and bars that don't have the keyboard leave the mouse wheel alone, so that nobody
// changes a value in passing. The form's property `cancelButton` names the button that Escape presses; without one
// Escape closes the window as its system button does. Enter presses the button that has the focus; in a field it goes
// on to the next one, so that nothing half-filled is put into the text; from the last field, and from all that isn't a
// field, it presses the default button. The form's property `defaultFromFields` lets it do so from every field.
// One with `centredEachTime` is centred at each opening; `sizedByContents` opens it as large as its contents need.
// On a screen too small for the form its contents scroll, and the buttons that end the dialog stay in sight.
#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>

class QPushButton;

namespace pelmar {

class DialogWindow : public QDialog {
  Q_OBJECT

 public:
  explicit DialogWindow(QWidget* parent);

  // Shows the window, or brings it to the front where it is on show already. Begins in its first field.
  void Present();

  // Before the first showing: no larger than `room`, in logical pixels inside the frame.
  void FitInto(QSize room);

  // Waits like a dialog of the window that asks, which is the active one again afterwards.
  int exec() override;

 protected:
  // Enter in this field runs `act` and goes no further, so not to the default button either.
  void OnEnter(QWidget* field, std::function<void()> act);
  // Of the form that was just set up, which gives its own sizes as beside plain letters of 9 points.
  void ScaleLetters();

  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  bool TakesKey(QWidget& receiver, const QKeyEvent& press);
  // What the first opening needs only.
  void Prepare();
  void BeginInFirstField();
  bool GoToNextField();
  QList<QPushButton*> EndingButtons() const;

  std::map<QObject*, std::function<void()>> on_enter_;
  QPointer<QWidget> first_field_;
  bool prepared_ = false;
};

// A window with its form. Sharing lets the windows do without destructors of their own, which would have to know the
// form: nobody else holds it.
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
