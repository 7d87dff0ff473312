// What every window of the program owes to a person who works by keyboard, listens to it, or has a small screen: names,
// whole captions, nothing over anything else, and the tabulator key reaching each control.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
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
#include "platform/qt/controls/drive_list.h"
#include "platform/qt/controls/elided_label.h"
#include "platform/qt/controls/key_cap.h"
#include "platform/qt/controls/swatch.h"
#include "platform/qt/controls/text_box.h"
#include "program/program.h"
#include "support/controls.h"
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
      RollWheel(*tabs, {}, {0, turn});
      EXPECT_EQ(tabs->currentIndex(), before) << Named(*tabs).toStdString();
    }
  }
}

void ExpectFits(QWidget& window) {
  EXPECT_LE(window.width(), kSmallScreen.width()) << Named(window).toStdString() << " is too wide";
  EXPECT_LE(window.height(), kSmallScreen.height()) << Named(window).toStdString() << " is too high";
  EXPECT_FALSE(window.windowTitle().isEmpty()) << Named(window).toStdString() << " has no title";
}

// Down on a list of places would lose the folder, and on a strip of tabs nothing can be typed.
void ExpectAGoodBeginning(const QWidget& window) {
  const QWidget* first = window.focusWidget();
  EXPECT_FALSE(qobject_cast<const DriveList*>(first) || qobject_cast<const QTabBar*>(first))
      << Named(*first).toStdString() << " is where the keyboard begins";
}

// What a bar says beside it is as grey as the bar.
void ExpectGreyTogether(const QWidget& window) {
  static const QRegularExpression number(QStringLiteral("^ ?\\d+%?$"));
  for (const QScrollBar* bar : window.findChildren<QScrollBar*>()) {
    if (!bar->isVisible() || IsInner(*bar)) continue;
    for (const QLabel* label : bar->parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
      const QRect beside(bar->geometry().right(), bar->y(), 80, bar->height());
      if (label->isVisible() && number.match(label->text()).hasMatch() && label->geometry().intersects(beside)) {
        EXPECT_EQ(label->isEnabled(), bar->isEnabled()) << Named(*label).toStdString();
      }
    }
  }
}

// Enter in one field of several doesn't end the dialog, unless all of them lead to its default button.
void ExpectEnterGoesOn(QWidget& window) {
  auto* dialog = qobject_cast<DialogWindow*>(&window);
  const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
  const auto found = std::find_if(buttons.begin(), buttons.end(), [](auto* button) { return button->isDefault(); });
  if (dialog == nullptr || found == buttons.end() || window.property("defaultFromFields").toBool()) return;
  int pressed = 0;
  QPushButton trap(&window);  // in the place of the default button, so that nothing is put into the text
  trap.setDefault(true);
  trap.show();
  QObject::connect(&trap, &QPushButton::clicked, [&] { ++pressed; });
  for (QWidget* field : Controls(window)) {
    const auto* line = qobject_cast<QLineEdit*>(field);
    if ((line == nullptr || line->isReadOnly()) && !qobject_cast<QComboBox*>(field)) continue;
    if (!field->isEnabled()) continue;
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
  }
  EXPECT_LE(pressed, 1) << window.objectName().toStdString();
  (*found)->setDefault(true);
}

// The buttons that end a dialog, and the whole of a window, on a screen of 1024 by 600 at 150%.
void ExpectButtonsInSight(DialogWindow& window) {
  constexpr QSize kTinyScreen(675, 368);
  window.FitInto(kTinyScreen);
  window.show();
  for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
  EXPECT_EQ(window.size().boundedTo(kTinyScreen), window.size()) << window.objectName().toStdString();
  const QString cancel = window.property("cancelButton").toString();
  for (const QPushButton* button : window.findChildren<QPushButton*>()) {
    if (qobject_cast<const KeyCap*>(button) || (!button->isDefault() && button->objectName() != cancel)) continue;
    EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect()) << Named(*button).toStdString();
  }
  window.hide();
}

TEST(AllWindows, FitASmallScreenWithLargeLetters) {
  const QFont font = QApplication::font();
  QFont large = font;
  large.setPointSize(14);
  QApplication::setFont(large);
  ScriptedPlatform platform;
  platform.files["/share/pelmar.txt"] = "help";
  Program program(platform);
  program.Main().resize(660, 330);
  program.Main().show();
  for (int panel = 5; panel <= kPanelCount; ++panel) {
    const StatusPanel* shown = program.Main().Bar().Panel(panel);
    EXPECT_GE(shown->width(), shown->fontMetrics().horizontalAdvance(shown->text())) << panel;
    EXPECT_EQ(shown->visibleRegion().boundingRect(), shown->rect()) << panel;
  }
  program.Windows().ForEach([](QWidget& window) {
    if (auto* dialog = qobject_cast<DialogWindow*>(&window)) ExpectButtonsInSight(*dialog);
    window.show();
    ExpectWholeCaptions(window);
    window.hide();
  });
  QApplication::setFont(font);
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
    ExpectAGoodBeginning(window);
    ExpectGreyTogether(window);
    ExpectEnterGoesOn(window);
    window.hide();
  });
  EXPECT_GE(count, 12);
  ExpectTabsStay(program.Main());
}

}  // namespace
}  // namespace pelmar
