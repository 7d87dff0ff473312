// Checks of every window: its command, its cancel button, names for screen readers, whole captions, controls that Tab
// reaches, and the size on a small screen.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QRadioButton>
#include <QTest>

#include "support/program_test.h"

namespace pelmar {
namespace {

// The space for a window inside its frame on a screen of 1024 by 600.
constexpr QSize kSmallScreen(1016, 560);

bool IsA(const QWidget* widget, std::initializer_list<const char*> classes) {
  return widget != nullptr && std::ranges::any_of(classes, [&](const char* name) { return widget->inherits(name); });
}

std::string DescriptionOf(const QWidget* widget) {
  return (widget->window()->objectName() + QLatin1Char('.') + widget->objectName()).toStdString();
}

// The visible widgets, without the inner parts of the toolkit's controls.
QList<QWidget*> Widgets(const QWidget& window) {
  QList<QWidget*> widgets = window.findChildren<QWidget*>();
  widgets.removeIf([](const QWidget* widget) {
    return !widget->isVisible() || widget->objectName().isEmpty() ||
           widget->objectName().startsWith(QLatin1String("qt_")) ||
           IsA(widget->parentWidget(), {"QAbstractScrollArea", "QComboBox"});
  });
  return widgets;
}

void ExpectWholeCaptions(const QWidget& window) {
  for (const QWidget* widget : Widgets(window)) {
    const bool button = IsA(widget, {"QAbstractButton"});
    if (!button && (!IsA(widget, {"QLabel"}) || IsA(widget, {"pelmar::ElidedLabel"}))) continue;
    if (widget->property("text").toString().isEmpty() || widget->property("wordWrap").toBool()) continue;
    const QSize needed = button ? QSize(widget->minimumSizeHint().width(), 0) : widget->sizeHint() - QSize(0, 1);
    EXPECT_EQ(needed.boundedTo(widget->size()), needed) << DescriptionOf(widget) << " is cut";
  }
}

// The control needs a name, and Tab has to reach it. In a group of options the arrow keys reach the unchecked ones.
void ExpectNameAndTab(QWidget* control) {
  const QAccessibleInterface* info = QAccessible::queryAccessibleInterface(control);
  const QString name = info->text(QAccessible::Name);
  // The accessible name of a combo box is its content, so it needs a label.
  const bool named = control->inherits("QComboBox")
                         ? !info->relations(QAccessible::Label).isEmpty()
                         : std::ranges::any_of(name, [](QChar ch) { return ch.isLetterOrNumber(); });
  EXPECT_TRUE(named && info->role() != QAccessible::Client) << DescriptionOf(control) << " has no name or no role";
  const auto* option = qobject_cast<const QRadioButton*>(control);
  const bool in_group = option != nullptr && option->autoExclusive() && !option->isChecked();
  // A swatch that only shows a colour is no control, nor is a label whose text can be copied by mouse.
  const bool only_shows =
      control->focusPolicy() == Qt::NoFocus ? IsA(control, {"pelmar::Swatch"}) : IsA(control, {"QLabel"});
  EXPECT_TRUE((control->focusPolicy() & Qt::TabFocus) || !control->isEnabled() || in_group || only_shows)
      << DescriptionOf(control) << " can't be reached by keyboard";
}

TEST_F(ProgramTest, CommandsOfAccessoriesShowTheirWindows) {
  const std::pair<const char*, const char*> cases[] = {{"mnumorse", "Morse"}, {"mnu_analysis", "Analytic"}};
  for (const auto& [command, window] : cases) EXPECT_EQ(Open(command).objectName().toStdString(), window) << command;
}

struct AllWindows : ProgramTest {
  AllWindows() { platform.files["/share/pelmar.txt"] = "help"; }

  // Acts on each window while it is visible.
  void ForEach(const std::function<void(QWidget&)>& act) {
    parts.windows.ForEach([&](QWidget& window) {
      window.show();
      // A nested layout settles one round later.
      for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
      act(window);
      window.hide();
    });
  }
};

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
      if (widget->focusPolicy() != Qt::NoFocus || IsA(widget, {"QAbstractButton", "QAbstractSlider", "QTabBar"}))
        ExpectNameAndTab(widget);
  });
}

TEST_F(AllWindows, AreHiddenByTheirCancelButton) {
  ForEach([](QWidget& window) {
    const std::string cancel = window.property("cancelButton").toString().toStdString();
    if (cancel.empty() || window.objectName() == QLatin1String("Config")) return;  // there the button stores the fields
    Work(window, (cancel + '!').c_str());
    EXPECT_FALSE(window.isVisible()) << DescriptionOf(&window) << ", " << cancel;
  });
}

}  // namespace
}  // namespace pelmar
