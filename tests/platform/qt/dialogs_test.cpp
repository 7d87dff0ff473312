#include "platform/qt/dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractFileIconProvider>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QWindow>

#include "platform/qt/controls/dialog_window.h"
#include "platform/qt/convert.h"
#include "platform/qt/outer_geometry.h"
#include "platform/twips.h"
#include "support/controls.h"
#include "support/steps.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

TEST(Message, HasTheButtonsThePictureAndTheDefaultOfItsType) {
  using Box = QMessageBox;
  const struct {
    MessageType type;
    Box::StandardButtons buttons;
    Box::Icon icon;
    Answer enter, escape;
  } cases[] = {
      {MessageType::kOk, Box::Ok, Box::NoIcon, Answer::kOk, Answer::kOk},
      {MessageType::kOkInfo, Box::Ok, Box::Information, Answer::kOk, Answer::kOk},
      {MessageType::kYesNoWarning, Box::Yes | Box::No, Box::Warning, Answer::kYes, Answer::kNone},
      {MessageType::kYesNoStop, Box::Yes | Box::No, Box::Critical, Answer::kNo, Answer::kNone},
  };
  const QString text = QStringLiteral("Opravdu uložit <b>a&b</b>?\r\n\"x\""), title = QStringLiteral("Soubor");
  for (const auto& c : cases) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
      InDialog<Box>([&](Box& box) {
        EXPECT_EQ(std::tuple(box.text(), box.windowTitle(), box.textFormat()), std::tuple(text, title, Qt::PlainText));
        EXPECT_EQ(std::pair(box.standardButtons(), box.icon()), std::pair(c.buttons, c.icon));
        QTest::keyClick(&box, key);
      });
      EXPECT_EQ(ShowMessage(c.type, text, title), key == Qt::Key_Return ? c.enter : c.escape);
    }
  }
}

TEST(Message, StandsAboveItsWindowAndOutlivesIt) {
  auto* window = new QWidget(nullptr, Qt::WindowStaysOnTopHint);
  window->show();
  QApplication::setActiveWindow(window);
  InDialog<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(box.parent(), window);
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    delete window;
  });
  EXPECT_EQ(ShowMessage(MessageType::kYesNoWarning, QStringLiteral("?"), QString()), Answer::kNone);
}

TEST(InputBox, GivesTheTextOrNothing) {
  const QString prompt = QStringLiteral("Výzva"), title = QStringLiteral("Titul"), initial = QStringLiteral("původní");
  const std::optional<QString> answers[] = {initial, QString(40000, u'A'), QString(), std::nullopt};
  for (const auto& answer : answers) {
    InDialog<QInputDialog>([&](QInputDialog& box) {
      EXPECT_EQ(std::tuple(box.labelText(), box.windowTitle(), box.textValue()), std::tuple(prompt, title, initial));
      box.findChild<QLineEdit*>()->setText(answer.value_or(initial));
      answer ? box.accept() : box.reject();
    });
    EXPECT_EQ(AskForText(prompt, title, initial), answer);
  }
}

TEST(FileDialog, StartsWithTheGivenFilterAndRemembersTheFolder) {
  const TempFolder temp;
  const QString wanted = Utf8ToQString(temp.Put("inner/Dopis.TXT", "x"));
  const QFileInfo letter(wanted), document(Utf8ToQString(temp.Put("inner/leták", "%PDF-1.4\n"))),
      picture(Utf8ToQString(temp.Put("inner/obraz", "\x89PNG\r\n\x1a\n")));
  const QString filter = QStringLiteral("Všechno (*.*)|*.*|jen text (*.txt)|*.txt; *.me|lone");
  QString folder = Utf8ToQString(temp.Path());
  const auto ask = [&](FileDialogKind kind, int index, const std::function<void(QFileDialog&)>& act) {
    InDialog<QFileDialog>([&](QFileDialog& dialog) {
      EXPECT_EQ(dialog.acceptMode() == QFileDialog::AcceptSave, kind == FileDialogKind::kSave);
      EXPECT_EQ(dialog.directory().path(), folder);
      act(dialog);
    });
    return AskForFile(kind, filter, index, folder).value_or(QStringLiteral("none"));
  };
  EXPECT_EQ(ask(FileDialogKind::kOpen, 2,
                [&](QFileDialog& dialog) {
                  EXPECT_EQ(dialog.nameFilters().join(u'|').toStdString(),
                            "Všechno (*.*) (*)|jen text (*.txt) (*.txt *.me)");
                  EXPECT_EQ(dialog.selectedNameFilter(), QStringLiteral("jen text (*.txt)"));
                  // Kinds go by the names alone: nobody reads the files.
                  const QAbstractFileIconProvider& icons = *dialog.iconProvider();
                  EXPECT_EQ(icons.type(document), icons.type(picture));
                  EXPECT_NE(icons.type(document), icons.type(letter));
                  EXPECT_FALSE(icons.icon(document).isNull());
                  dialog.selectFile(wanted);
                  static_cast<QDialog&>(dialog).accept();
                }),
            wanted);
  EXPECT_EQ(folder, letter.path());
  EXPECT_EQ(ask(FileDialogKind::kOpen, 9, [&](QFileDialog& dialog) { dialog.reject(); }), QStringLiteral("none"));
  EXPECT_EQ(ask(FileDialogKind::kSave, 1,
                [&](QFileDialog& dialog) {
                  dialog.selectFile(wanted);
                  // A question before the old file is written over would stop here until somebody answers.
                  Inside([] {
                    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                    EXPECT_EQ(box, nullptr);
                    if (box != nullptr) box->reject();
                  });
                  QTest::keyClick(&dialog, Qt::Key_Return);
                }),
            wanted);
}

TEST(OuterGeometry, CountsTheFrameOnceTheWindowIsThere) {
  QWidget window;
  for (const bool shown : {false, true}) {
    const TwipsRect place{shown ? 3000 : 1500, 900, 6000, 4500};
    window.setVisible(shown);
    ASSERT_TRUE(!shown || QTest::qWaitForWindowExposed(&window));
    SetOuterWidth(window, place.width);
    SetOuterHeight(window, place.height);
    SetOuterPosition(window, place.left, place.top);
    QCoreApplication::processEvents();
    EXPECT_EQ(OuterGeometry(window), place);
    const QMargins frame = shown ? window.windowHandle()->frameMargins() : QMargins();
    EXPECT_EQ(window.size().grownBy(frame), QSize(400, 300));
  }
  EXPECT_EQ(ScreenTwips(window), window.screen()->size() * 15);
}

TEST(DialogWindow, IsCentredOnceAndKeepsItsPlace) {
  DialogWindow dialog(nullptr);
  dialog.resize(300, 9000);
  dialog.Present();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  const QRect screen = dialog.screen()->availableGeometry();
  EXPECT_LE((dialog.frameGeometry().center() - screen.center()).manhattanLength(), 12);
  EXPECT_TRUE(screen.contains(dialog.geometry()));
  dialog.move(5, 6);
  dialog.hide();
  dialog.Present();
  EXPECT_EQ(dialog.pos(), QPoint(5, 6));
  dialog.showMinimized();
  dialog.Present();
  EXPECT_FALSE(dialog.isMinimized());
}

TEST(DialogWindow, BeginsInItsFirstFieldSparesValuesFromTheWheelAndEnterPressesTheButtonInFocus) {
  DialogWindow dialog(nullptr);
  QLineEdit field(QStringLiteral("typed before"), &dialog);
  QComboBox box(&dialog);
  QScrollBar bar(&dialog);
  QPushButton ok(QStringLiteral("ok"), &dialog), storno(QStringLiteral("storno"), &dialog);
  QToolButton show(&dialog);
  box.addItems({QStringLiteral("a"), QStringLiteral("b")});
  ok.setDefault(true);
  storno.setAutoDefault(false);
  show.setText(QStringLiteral("show"));
  for (QWidget* widget : {static_cast<QWidget*>(&bar), static_cast<QWidget*>(&show)})
    widget->setFocusPolicy(Qt::StrongFocus);
  std::string told;
  for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>())
    QObject::connect(button, &QAbstractButton::clicked, [&, button] { told += button->text().toStdString() + " "; });
  dialog.Present();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_EQ(field.selectedText(), field.text());
  for (QWidget* focus : {static_cast<QWidget*>(&field), static_cast<QWidget*>(&storno), static_cast<QWidget*>(&show),
                         static_cast<QWidget*>(&ok), static_cast<QWidget*>(&bar)}) {
    focus->setFocus();
    if (focus != &field) QTest::keyClick(focus, Qt::Key_Return);
    for (QWidget* turned : {static_cast<QWidget*>(&box), static_cast<QWidget*>(&bar)})
      RollWheel(*turned, {}, {0, -120});
    told += (Shown(&box) + Shown(&bar)).toStdString() + " ";
  }
  EXPECT_EQ(told, "a0 storno a0 show a0 ok a0 ok a3 ");
  dialog.hide();
  field.deselect();
  dialog.Present();
  EXPECT_EQ(dialog.focusWidget(), &field);
  EXPECT_EQ(field.selectedText(), field.text());
}

}  // namespace
}  // namespace pelmar
