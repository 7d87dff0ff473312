// What every window of the program owes to a person who works by keyboard, listens to it, or has a small screen: names,
// whole captions, and the tabulator key reaching each control.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "platform/qt/controls/dialog_window.h"
#include "support/program_test.h"

namespace pelmar {
namespace {

// What a screen of 1024 by 600 leaves to a window inside its frame, at 100% and at 150%.
constexpr QSize kSmallScreen(1016, 560), kTinyScreen(675, 368);

bool Is(const QWidget* widget, std::initializer_list<const char*> classes) {
  return widget != nullptr && std::ranges::any_of(classes, [&](const char* name) { return widget->inherits(name); });
}

std::string DescriptionOf(const QWidget* widget) {
  return (widget->window()->objectName() + QLatin1Char('.') + widget->objectName()).toStdString();
}

// All on show, without the toolkit's own parts of controls.
QList<QWidget*> Widgets(const QWidget& window) {
  QList<QWidget*> widgets = window.findChildren<QWidget*>();
  widgets.removeIf([](const QWidget* widget) {
    return !widget->isVisible() || widget->objectName().isEmpty() ||
           widget->objectName().startsWith(QLatin1String("qt_")) ||
           Is(widget->parentWidget(), {"QAbstractScrollArea", "QComboBox"});
  });
  return widgets;
}

void ExpectWholeCaptions(const QWidget& window) {
  for (const QWidget* widget : Widgets(window)) {
    const bool button = Is(widget, {"QAbstractButton"});
    if (!button && (!Is(widget, {"QLabel"}) || Is(widget, {"pelmar::ElidedLabel"}))) continue;
    if (widget->property("text").toString().isEmpty() || widget->property("wordWrap").toBool()) continue;
    const QSize needed = button ? QSize(widget->minimumSizeHint().width(), 0) : widget->sizeHint() - QSize(0, 1);
    EXPECT_EQ(needed.boundedTo(widget->size()), needed) << DescriptionOf(widget) << " is cut";
  }
}

// A name, and a place in the round that the tabulator key makes; of a group of options the arrow keys reach the others.
void ExpectReach(QWidget* control) {
  const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
  const QString name = face->text(QAccessible::Name);
  // The name of a box to choose from is what it holds.
  const bool spoken = control->inherits("QComboBox")
                          ? !face->relations(QAccessible::Label).isEmpty()
                          : std::ranges::any_of(name, [](QChar ch) { return ch.isLetterOrNumber(); });
  EXPECT_TRUE(spoken && face->role() != QAccessible::Client) << DescriptionOf(control) << " has no name or no role";
  const auto* option = qobject_cast<const QRadioButton*>(control);
  const bool of_group = option != nullptr && option->autoExclusive() && !option->isChecked();
  // A swatch that only shows its colour, and a label whose text can be copied by mouse, are no controls.
  const bool shows = control->focusPolicy() == Qt::NoFocus ? Is(control, {"pelmar::Swatch"}) : Is(control, {"QLabel"});
  EXPECT_TRUE((control->focusPolicy() & Qt::TabFocus) || !control->isEnabled() || of_group || shows)
      << DescriptionOf(control) << " can't be reached by keyboard";
}

// Enter in one field of several doesn't end the dialog, unless all of them lead to its default button.
void ExpectEnterGoesOn(QWidget& window) {
  const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
  const auto found = std::ranges::find_if(buttons, &QPushButton::isDefault);
  if (found == buttons.end() || window.property("defaultFromFields").toBool()) return;
  int pressed = 0;
  QPushButton trap(&window);  // in the place of the default button, so that nothing is put into the text
  trap.setDefault(true);
  trap.show();
  QObject::connect(&trap, &QPushButton::clicked, [&] { ++pressed; });
  for (QWidget* field : Widgets(window)) {
    const auto* line = qobject_cast<const QLineEdit*>(field);
    if (!field->isEnabled() || !Is(field, {"QLineEdit", "QComboBox"}) || (line && line->isReadOnly())) continue;
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
  }
  EXPECT_LE(pressed, 1) << DescriptionOf(&window);
  (*found)->setDefault(true);
}

// The buttons that end a dialog, and the whole of it.
void ExpectButtonsInSight(const QWidget& window) {
  EXPECT_EQ(window.size().boundedTo(kTinyScreen), window.size()) << DescriptionOf(&window);
  const QString cancel = window.property("cancelButton").toString();
  for (const QPushButton* button : window.findChildren<QPushButton*>()) {
    if (Is(button, {"pelmar::KeyCap"}) || (!button->isDefault() && button->objectName() != cancel)) continue;
    EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect()) << DescriptionOf(button);
  }
}

struct AllWindows : ProgramTest {
  AllWindows() { platform.files["/share/pelmar.txt"] = "help"; }
  ~AllWindows() override { QApplication::setFont(font); }
  const QFont font = QApplication::font();

  static void Show(QWidget& window) {
    window.show();
    // A layout inside a layout settles a round later.
    for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
  }
  // Each window on show.
  void ForEach(const std::function<void(QWidget&)>& act) {
    parts.windows.ForEach([&](QWidget& window) {
      Show(window);
      act(window);
      window.hide();
    });
  }
};

TEST_F(AllWindows, FitASmallScreenWithLargeLetters) {
  QFont large = font;
  large.setPointSize(14);
  QApplication::setFont(large);
  parts.windows.ForEach([](QWidget& window) {
    auto* dialog = qobject_cast<DialogWindow*>(&window);
    if (dialog == nullptr) return;
    dialog->FitInto(kTinyScreen);
    Show(window);
    ExpectButtonsInSight(window);
    window.hide();
  });
}

TEST_F(AllWindows, HaveATitleAndFitAScreenOf1024By600) {
  ForEach([](QWidget& window) {
    EXPECT_FALSE(window.windowTitle().isEmpty()) << DescriptionOf(&window);
    EXPECT_EQ(window.size().boundedTo(kSmallScreen), window.size()) << DescriptionOf(&window);
  });
}

TEST_F(AllWindows, CutNoCaption) { ForEach(ExpectWholeCaptions); }

TEST_F(AllWindows, HaveOnlyControlsWithANameThatTabReaches) {
  ForEach([](QWidget& window) {
    EXPECT_NE(QAccessible::queryAccessibleInterface(&window)->role(), QAccessible::Client) << DescriptionOf(&window);
    for (QWidget* widget : Widgets(window))
      if (widget->focusPolicy() != Qt::NoFocus || Is(widget, {"QAbstractButton", "QAbstractSlider", "QTabBar"}))
        ExpectReach(widget);
  });
}

TEST_F(AllWindows, StayOpenAtEnterInAField) { ForEach(ExpectEnterGoesOn); }

}  // namespace
}  // namespace pelmar
