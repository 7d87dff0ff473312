// What every window of the program owes to a person who works by keyboard, listens to it, or has a small screen: names,
// whole captions, nothing over anything else, and the tabulator key reaching each control. What is wrong comes as a
// text, a line for each fault.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <limits>
#include <map>

#include "platform/qt/controls/dialog_window.h"
#include "program/program.h"
#include "support/controls.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

// What a screen of 1024 by 600 leaves to a window inside its frame, at 100% and at 150%.
constexpr QSize kSmallScreen(1016, 560), kTinyScreen(675, 368);

bool Is(const QWidget* widget, std::initializer_list<const char*> classes) {
  return widget != nullptr && std::ranges::any_of(classes, [&](const char* name) { return widget->inherits(name); });
}

std::string Named(const QWidget* widget) {
  return (widget->window()->objectName() + QLatin1Char('.') + widget->objectName()).toStdString();
}

std::string Fault(bool found, const QWidget* widget, const std::string& what) {
  return found ? Named(widget) + ' ' + what + '\n' : "";
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

bool IsControl(const QWidget* widget) {
  return widget->focusPolicy() != Qt::NoFocus || Is(widget, {"QAbstractButton", "QAbstractSlider", "QTabBar"});
}

std::string CutCaptions(const QWidget& window) {
  std::string faults;
  for (const QWidget* widget : Widgets(window)) {
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label != nullptr && !label->wordWrap() && !label->text().isEmpty() && !Is(label, {"pelmar::ElidedLabel"}))
      faults += Fault(label->sizeHint().boundedTo(label->size() + QSize(0, 1)) != label->sizeHint(), label, "is cut");
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    if (button != nullptr && !button->text().isEmpty())
      faults += Fault(button->minimumSizeHint().width() > button->width(), button, "is cut");
  }
  return faults;
}

// All that is on and can be worked has a name and takes part in the round that the tabulator key makes; of a group of
// options the arrow keys reach the others.
std::string FaultsOfControl(QWidget* control) {
  const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
  const QString name = face->text(QAccessible::Name);
  // The name of a box to choose from is what it holds.
  const bool spoken = control->inherits("QComboBox")
                          ? !face->relations(QAccessible::Label).isEmpty()
                          : std::ranges::any_of(name, [](QChar ch) { return ch.isLetterOrNumber(); });
  const auto* option = qobject_cast<const QRadioButton*>(control);
  const bool of_group = option != nullptr && option->autoExclusive() && !option->isChecked();
  // A swatch that only shows its colour, and a label whose text can be copied by mouse, are no controls.
  const bool shows = control->focusPolicy() == Qt::NoFocus ? Is(control, {"pelmar::Swatch"}) : Is(control, {"QLabel"});
  const bool reached = (control->focusPolicy() & Qt::TabFocus) != 0;
  return Fault(!spoken || face->role() == QAccessible::Client, control, "has no name or no role") +
         Fault(control->isEnabled() && !of_group && !shows && !reached, control, "can't be reached by keyboard");
}

std::string Overlaps(const QWidget& window) {
  std::string faults;
  const QList<QWidget*> widgets = Widgets(window);
  for (const QWidget* one : widgets) {
    // The greeting lies over its own shadow, and the strip of the notes spans the window, under the text too.
    if (Is(one, {"QTabBar"}) || (window.objectName() == QLatin1String("Start") && Is(one, {"QLabel"}))) continue;
    for (const QWidget* other : widgets)
      if (other != one && other->parentWidget() == one->parentWidget() && !Is(other, {"QTabBar"}))
        faults += Fault(one->geometry().intersects(other->geometry()), one, "lies over " + Named(other));
  }
  return faults;
}

// What a bar says beside it is as grey as the bar.
std::string OtherGreys(const QWidget* bar) {
  static const QRegularExpression number(QStringLiteral("^ ?\\d+%?$"));
  std::string faults;
  const QRect beside(bar->geometry().right(), bar->y(), 80, bar->height());
  for (const QLabel* label : bar->parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
    if (label->isVisible() && number.match(label->text()).hasMatch() && label->geometry().intersects(beside))
      faults += Fault(label->isEnabled() != bar->isEnabled(), label, "isn't as grey as its bar");
  return faults;
}

// No field cuts what it is given, but for those that are told to.
std::string OtherLengths(const QWidget& window) {
  static const std::map<std::string, int> limits = {{"Config.Text3", 8}, {"Config.Text4", 8},   {"Pass.Text1", 8},
                                                    {"ZaKod.Text1", 15}, {"Confeld.Text1", 15}, {"Analytic.Text2", 1}};
  std::string faults;
  for (const QLineEdit* field : window.findChildren<QLineEdit*>()) {
    const auto limit = limits.find(Named(field));
    const int most = limit == limits.end() ? std::numeric_limits<int>::max() : limit->second;
    faults += Fault(field->maxLength() != most, field, "has another length");
  }
  return faults;
}

// The wheel in passing chooses nothing.
std::string RollingTabs(const QWidget& window) {
  std::string faults;
  for (QTabBar* tabs : window.findChildren<QTabBar*>()) {
    const int before = tabs->currentIndex();
    for (const int turn : {-120, 240}) RollWheel(*tabs, {}, {0, turn});
    faults += Fault(tabs->currentIndex() != before, tabs, "follows the wheel");
  }
  return faults;
}

// Enter in one field of several doesn't end the dialog, unless all of them lead to its default button.
std::string EndsByEnter(QWidget& window) {
  const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
  const auto found = std::ranges::find_if(buttons, &QPushButton::isDefault);
  if (found == buttons.end() || window.property("defaultFromFields").toBool()) return {};
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
  (*found)->setDefault(true);
  return Fault(pressed > 1, &window, "ends by Enter in a field");
}

// The buttons that end a dialog, and the whole of it.
std::string OutOfSight(const QWidget& window) {
  std::string faults = Fault(window.size().boundedTo(kTinyScreen) != window.size(), &window, "is too large");
  const QString cancel = window.property("cancelButton").toString();
  for (const QPushButton* button : window.findChildren<QPushButton*>())
    if (!Is(button, {"pelmar::KeyCap"}) && (button->isDefault() || button->objectName() == cancel))
      faults += Fault(button->visibleRegion().boundingRect() != button->rect(), button, "is out of sight");
  return faults;
}

std::string FaultsOf(QWidget& window) {
  const int role = QAccessible::queryAccessibleInterface(&window)->role();
  std::string faults = Fault(role == QAccessible::Client, &window, "has no role") +
                       Fault(window.size().boundedTo(kSmallScreen) != window.size(), &window, "is too large") +
                       Fault(window.windowTitle().isEmpty(), &window, "has no title");
  for (QWidget* widget : Widgets(window)) {
    if (IsControl(widget)) faults += FaultsOfControl(widget);
    if (widget->inherits("QScrollBar")) faults += OtherGreys(widget);
  }
  // Down on a list of places would lose the folder, and on a strip of tabs nothing can be typed.
  const QWidget* first = window.focusWidget();
  faults += Fault(Is(first, {"pelmar::DriveList", "QTabBar"}), first, "is where the keyboard begins");
  return faults + CutCaptions(window) + Overlaps(window) + OtherLengths(window) + RollingTabs(window) +
         EndsByEnter(window);
}

struct AllWindows : testing::Test {
  AllWindows() { platform.files["/share/pelmar.txt"] = "help"; }
  ~AllWindows() override { QApplication::setFont(font); }
  const QFont font = QApplication::font();
  ScriptedPlatform platform;

  static void Show(QWidget& window) {
    window.show();
    // A layout inside a layout settles a round later.
    for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
  }
};

TEST_F(AllWindows, FitASmallScreenWithLargeLetters) {
  QFont large = font;
  large.setPointSize(14);
  QApplication::setFont(large);
  Program program(platform);
  program.Main().resize(660, 330);
  program.Main().show();
  for (int panel = 5; panel <= kPanelCount; ++panel) {
    const StatusPanel* shown = program.Main().Bar().Panel(panel);
    EXPECT_GE(shown->width(), shown->fontMetrics().horizontalAdvance(shown->text())) << panel;
    EXPECT_EQ(shown->visibleRegion().boundingRect(), shown->rect()) << panel;
  }
  program.Windows().ForEach([](QWidget& window) {
    if (auto* dialog = qobject_cast<DialogWindow*>(&window)) {
      dialog->FitInto(kTinyScreen);
      Show(window);
      EXPECT_EQ(OutOfSight(window), "");
      window.hide();
    }
    window.show();
    EXPECT_EQ(CutCaptions(window), "");
    window.hide();
  });
}

TEST_F(AllWindows, AreWithinEverybodysReach) {
  Program program(platform);
  int count = 0;
  program.Windows().ForEach([&](QWidget& window) {
    ++count;
    Show(window);
    EXPECT_EQ(FaultsOf(window), "");
    window.hide();
  });
  EXPECT_GE(count, 12);
  EXPECT_EQ(RollingTabs(program.Main()), "");
}

}  // namespace
}  // namespace pelmar
