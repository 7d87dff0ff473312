#include "platform/qt/desktop/dialogs.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "platform/qt/controls/dialog_window.h"
#include "platform/qt/convert.h"
#include "support/steps.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

TEST(Message, HasTheButtonsThePictureAndTheDefaultOfItsType) {
  using Box = QMessageBox;
  const std::tuple<MessageType, Box::StandardButtons, Box::Icon, Answer, Answer> cases[] = {
      {MessageType::kOk, Box::Ok, Box::NoIcon, Answer::kOk, Answer::kOk},
      {MessageType::kOkInfo, Box::Ok, Box::Information, Answer::kOk, Answer::kOk},
      {MessageType::kYesNoWarning, Box::Yes | Box::No, Box::Warning, Answer::kYes, Answer::kNone},
      {MessageType::kYesNoStop, Box::Yes | Box::No, Box::Critical, Answer::kNo, Answer::kNone}};
  const QString text = QStringLiteral("Opravdu uložit <b>a&b</b>?\r\n\"x\""), title = QStringLiteral("Soubor");
  for (const auto& [type, buttons, icon, enter, escape] : cases) {
    SCOPED_TRACE(static_cast<int>(type));
    InDialog<Box>([&, expected = buttons, picture = icon](Box& box) {
      EXPECT_EQ(box.text(), text);
      EXPECT_EQ(box.windowTitle(), title);
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.standardButtons(), expected);
      EXPECT_EQ(box.icon(), picture);
      QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(ShowMessage(type, text, title), enter);
    InDialog<Box>([](Box& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(ShowMessage(type, text, title), escape);
    InDialog<Box>([](Box& box) { box.close(); });
    EXPECT_EQ(ShowMessage(type, text, title), escape);
  }
}

TEST(InputBox, ReturnsTheTextOrNothing) {
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

struct FileDialogTest : testing::Test {
  const TempFolder temp;
  const QFileInfo letter{Utf8ToQString(temp.Put("inner/Dopis.TXT", "x"))};
  QString folder = Utf8ToQString(temp.Path());

  // Opens the dialog and runs `act` in it. Returns the chosen path, or "none".
  std::string Ask(FileDialogKind kind, int filter_index, const std::function<void(QFileDialog&)>& act) {
    InDialog<QFileDialog>([&](QFileDialog& dialog) {
      EXPECT_EQ(dialog.acceptMode() == QFileDialog::AcceptSave, kind == FileDialogKind::kSave);
      EXPECT_EQ(dialog.directory().path(), folder);
      dialog.selectFile(letter.filePath());
      act(dialog);
    });
    const QString filter = QStringLiteral("Všechno (*.*)|*.*|jen text (*.txt)|*.txt; *.me|lone");
    return Utf8FromQString(AskForFile(kind, filter, filter_index, folder).value_or(QStringLiteral("none")));
  }
};

TEST_F(FileDialogTest, OpensWithTheGivenFilterAndRemembersTheFolder) {
  const std::string opened = Ask(FileDialogKind::kOpen, 2, [](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters().join(u'|').toStdString(), "Všechno (*.*) (*)|jen text (*.txt) (*.txt *.me)");
    // Qt 6.8 adds the patterns.
    EXPECT_TRUE(dialog.selectedNameFilter().startsWith(QStringLiteral("jen text (*.txt)")));
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(opened, Utf8FromQString(letter.filePath()));
  EXPECT_EQ(folder, letter.path());
  EXPECT_EQ(Ask(FileDialogKind::kOpen, 9, [](QFileDialog& dialog) { dialog.reject(); }), "none");
}

TEST_F(FileDialogTest, ChoosesAnExistingFileForSavingWithoutAsking) {
  const std::string saved = Ask(FileDialogKind::kSave, 1, [](QFileDialog& dialog) {
    Inside([] {
      auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      EXPECT_EQ(question, nullptr);
      if (question != nullptr) question->reject();
    });
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(saved, Utf8FromQString(letter.filePath()));
}

TEST_F(FileDialogTest, ReturnsATypedNameWithoutAFileAndAddsNoExtension) {
  for (const FileDialogKind kind : {FileDialogKind::kSave, FileDialogKind::kOpen}) {
    const std::string chosen = Ask(kind, 2, [](QFileDialog& dialog) {
      dialog.selectFile(QStringLiteral("README"));
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(chosen, Utf8FromQString(letter.path()) + "/README");
  }
}

TEST(DialogWindow, IsCentredWithinTheScreenAtTheFirstOpening) {
  DialogWindow dialog(nullptr);
  dialog.resize(300, 9000);
  dialog.Present();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  const QRect screen = dialog.screen()->availableGeometry();
  EXPECT_LE((dialog.frameGeometry().center() - screen.center()).manhattanLength(), 12);
  EXPECT_TRUE(screen.contains(dialog.geometry()));
}

struct DialogWindowTest : testing::Test {
  DialogWindow dialog{nullptr};
  QLineEdit field{QStringLiteral("typed before"), &dialog};
  QPushButton cancel{&dialog};
};

TEST_F(DialogWindowTest, EachOpeningFocusesTheFirstFieldAndSelectsItsText) {
  for (int opened = 0; opened < 2; ++opened) {
    dialog.Present();
    EXPECT_EQ(dialog.focusWidget(), &field);
    EXPECT_EQ(field.selectedText(), field.text());
    cancel.setFocus();
    field.deselect();
    dialog.hide();
  }
}

TEST_F(DialogWindowTest, OnlyEnterGoesToTheNextFieldAndScrollsToIt) {
  auto* column = new QVBoxLayout(&dialog);
  QComboBox next(&dialog);
  column->addWidget(&field);
  column->addSpacing(9000);
  column->addWidget(&next);
  dialog.Present();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
  field.setFocus();
  QTest::keyClick(&field, Qt::Key_Down);
  EXPECT_EQ(dialog.focusWidget(), &field);
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(dialog.focusWidget(), &next);
  EXPECT_TRUE(dialog.rect().contains(next.mapTo(&dialog, next.rect().center())));
}

}  // namespace
}  // namespace pelmar
