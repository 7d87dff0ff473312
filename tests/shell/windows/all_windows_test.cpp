// What every window of the program owes to a person who works by keyboard, listens to it, or has a small screen: names,
// whole captions, nothing over anything else, and the tabulator key reaching each control.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>
#include <limits>
#include <map>

#include "platform/qt/controls/elided_label.h"
#include "platform/qt/controls/swatch.h"
#include "platform/qt/controls/text_box.h"
#include "program/program.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

// What a screen of 1024 by 600 leaves to a window inside its frame.
constexpr QSize kSmallScreen(1016, 560);

QString Named(const QWidget& widget) {
  return widget.window()->objectName() + QLatin1Char('.') + widget.objectName() + QStringLiteral(" (") +
         QLatin1String(widget.metaObject()->className()) + QLatin1Char(')');
}

bool IsInner(const QWidget& widget) {
  return widget.objectName().isEmpty() || widget.objectName().startsWith(QLatin1String("qt_")) ||
         qobject_cast<QAbstractScrollArea*>(widget.parentWidget()) != nullptr ||
         qobject_cast<QComboBox*>(widget.parentWidget()) != nullptr;
}

// The controls that a person works with, without the toolkit's own parts of them.
QList<QWidget*> Controls(const QWidget& window) {
  QList<QWidget*> controls;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool worked = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QAbstractSlider*>(widget) ||
                        qobject_cast<QLineEdit*>(widget) || qobject_cast<QComboBox*>(widget) ||
                        qobject_cast<QAbstractItemView*>(widget) || qobject_cast<TextBox*>(widget) ||
                        qobject_cast<QTabBar*>(widget) || widget->focusPolicy() != Qt::NoFocus;
    if (worked && widget->isVisible() && !IsInner(*widget)) controls += widget;
  }
  return controls;
}

void ExpectNames(const QWidget& window) {
  EXPECT_NE(QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&window))->role(), QAccessible::Client);
  for (QWidget* control : Controls(window)) {
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
    ASSERT_NE(face, nullptr) << Named(*control).toStdString();
    const QString name = face->text(QAccessible::Name);
    // The name of a box to choose from is what it holds.
    const bool spoken = qobject_cast<QComboBox*>(control)
                            ? !face->relations(QAccessible::Label).isEmpty()
                            : std::any_of(name.begin(), name.end(), [](QChar ch) { return ch.isLetterOrNumber(); });
    EXPECT_TRUE(spoken) << Named(*control).toStdString() << " has no name but \"" << name.toStdString() << '"';
    EXPECT_NE(face->role(), QAccessible::Client) << Named(*control).toStdString() << " has no role";
  }
}

void ExpectWholeCaptions(const QWidget& window) {
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    if (!label->isVisible() || label->wordWrap() || qobject_cast<const ElidedLabel*>(label) != nullptr) continue;
    if (label->text().isEmpty()) continue;
    EXPECT_LE(label->sizeHint().width(), label->width()) << Named(*label).toStdString() << " is cut";
    EXPECT_LE(label->sizeHint().height(), label->height() + 1) << Named(*label).toStdString() << " is cut";
  }
  for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    if (!button->isVisible() || button->text().isEmpty() || IsInner(*button)) continue;
    EXPECT_LE(button->minimumSizeHint().width(), button->width()) << Named(*button).toStdString() << " is cut";
  }
}

void ExpectNoOverlap(const QWidget& window) {
  const QList<QWidget*> all = window.findChildren<QWidget*>();
  for (const QWidget* one : all) {
    if (!one->isVisible() || IsInner(*one)) continue;
    for (const QWidget* other : all) {
      if (other <= one || other->parentWidget() != one->parentWidget() || !other->isVisible() || IsInner(*other))
        continue;
      // The greeting lies over its own shadow.
      if (window.objectName() == QLatin1String("Start") && other->objectName().startsWith(QLatin1String("Label")) &&
          one->objectName().startsWith(QLatin1String("Label")))
        continue;
      // The strip of the notes spans the window, under the text too.
      if (one->inherits("QTabBar") || other->inherits("QTabBar")) continue;
      EXPECT_FALSE(one->geometry().intersects(other->geometry()))
          << Named(*one).toStdString() << " and " << Named(*other).toStdString() << " overlap";
    }
  }
}

// All that is on and can be worked takes part in the round that the tabulator key makes; of a group of options the
// arrow keys reach the others.
void ExpectTabReachesAll(const QWidget& window) {
  for (const QWidget* control : Controls(window)) {
    if (!control->isEnabled()) continue;
    // A swatch that only shows its colour, and a label whose text can be copied by mouse, are no controls.
    if (qobject_cast<const QLabel*>(control)) continue;
    if (qobject_cast<const Swatch*>(control) && control->focusPolicy() == Qt::NoFocus) continue;
    const auto* option = qobject_cast<const QRadioButton*>(control);
    if (option != nullptr && option->autoExclusive() && !option->isChecked()) continue;
    const bool reached = (control->focusPolicy() & Qt::TabFocus) != 0;
    EXPECT_TRUE(reached) << Named(*control).toStdString() << " can't be reached by keyboard";
  }
}

// No field cuts what it is given, but for those that are told to.
void ExpectRoom(const QWidget& window) {
  const std::map<QString, int> limits = {{QStringLiteral("Config.Text3"), 8},   {QStringLiteral("Config.Text4"), 8},
                                         {QStringLiteral("Pass.Text1"), 8},     {QStringLiteral("ZaKod.Text1"), 15},
                                         {QStringLiteral("Confeld.Text1"), 15}, {QStringLiteral("Analytic.Text2"), 1}};
  for (const QLineEdit* field : window.findChildren<QLineEdit*>()) {
    const auto limit = limits.find(window.objectName() + QLatin1Char('.') + field->objectName());
    EXPECT_EQ(field->maxLength(), limit == limits.end() ? std::numeric_limits<int>::max() : limit->second)
        << Named(*field).toStdString();
  }
}

// The wheel in passing chooses nothing.
void ExpectTabsStay(QWidget& window) {
  for (QTabBar* tabs : window.findChildren<QTabBar*>()) {
    const int before = tabs->currentIndex();
    for (const int turn : {-120, 120}) {
      QWheelEvent wheel({5, 5}, tabs->mapToGlobal(QPointF(5, 5)), {}, {0, turn}, {}, {}, Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(tabs, &wheel);
      EXPECT_EQ(tabs->currentIndex(), before) << Named(*tabs).toStdString();
    }
  }
}

void ExpectFits(QWidget& window) {
  EXPECT_LE(window.width(), kSmallScreen.width()) << Named(window).toStdString() << " is too wide";
  EXPECT_LE(window.height(), kSmallScreen.height()) << Named(window).toStdString() << " is too high";
  EXPECT_FALSE(window.windowTitle().isEmpty()) << Named(window).toStdString() << " has no title";
}

TEST(AllWindows, AreWithinEverybodysReach) {
  ScriptedPlatform platform;
  platform.files["/share/pelmar.txt"] = "help";
  Program program(platform);
  int count = 0;
  program.Windows().ForEach([&count](QWidget& window) {
    ++count;
    window.show();
    // A layout inside a layout settles a round later.
    for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
    ExpectNames(window);
    ExpectWholeCaptions(window);
    ExpectNoOverlap(window);
    ExpectTabReachesAll(window);
    ExpectFits(window);
    ExpectRoom(window);
    ExpectTabsStay(window);
    window.hide();
  });
  EXPECT_GE(count, 12);
  ExpectTabsStay(program.Main());
}

}  // namespace
}  // namespace pelmar
