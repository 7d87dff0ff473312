#include "platform/qt/dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractFileIconProvider>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

#include "platform/qt/convert.h"
#include "support/controls.h"
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
    const auto answer = [&](const std::function<void(Box&)>& act) {
      InDialog<Box>(act);
      return ShowMessage(c.type, text, title);
    };
    EXPECT_EQ(answer([&](Box& box) {
                EXPECT_EQ(box.text(), text);
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                EXPECT_EQ(box.windowTitle(), title);
                EXPECT_EQ(box.standardButtons(), c.buttons);
                EXPECT_EQ(box.icon(), c.icon);
                QTest::keyClick(&box, Qt::Key_Return);
              }),
              c.enter);
    EXPECT_EQ(answer([](Box& box) { QTest::keyClick(&box, Qt::Key_Escape); }), c.escape);
    EXPECT_EQ(answer([](Box& box) { box.close(); }), c.escape);
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
  const QString initial = QStringLiteral("původní"), longest(40000, QLatin1Char('A'));
  const struct {
    QString typed;
    bool accepted;
    std::optional<QString> answer;
  } cases[] = {{initial, true, initial}, {longest, true, longest}, {{}, true, QString()}, {longest, false, {}}};
  for (const auto& c : cases) {
    InDialog<QInputDialog>([&](QInputDialog& box) {
      EXPECT_EQ(box.labelText(), QStringLiteral("Výzva"));
      EXPECT_EQ(box.windowTitle(), QStringLiteral("Titul"));
      EXPECT_EQ(box.textValue(), initial);
      box.findChild<QLineEdit*>()->setText(c.typed);
      c.accepted ? box.accept() : box.reject();
    });
    EXPECT_EQ(AskForText(QStringLiteral("Výzva"), QStringLiteral("Titul"), initial), c.answer);
  }
}

TEST(FileDialog, TurnsFiltersIntoTheToolkits) {
  EXPECT_EQ(NameFilters(QStringLiteral("Všechno (*.*)|*.*|Html (*.htm)|*.htm; *.html|lone")),
            QStringList({QStringLiteral("Všechno (*.*) (*)"), QStringLiteral("Html (*.htm) (*.htm *.html)")}));
  EXPECT_EQ(NameFilters(QString()), QStringList());
}

TEST(FileDialog, StartsWithTheGivenFilterAndRemembersTheFolder) {
  const TempFolder temp;
  const QString wanted = Utf8ToQString(temp.Put("inner/Dopis.TXT", "x"));
  const QString document = Utf8ToQString(temp.Put("inner/leták", "%PDF-1.4\n"));
  const QString picture = Utf8ToQString(temp.Put("inner/obraz", "\x89PNG\r\n\x1a\n"));
  const QString filter = QStringLiteral("Všechno (*.*)|*.*|jen text (*.txt)|*.txt");
  QString folder = Utf8ToQString(temp.Path());
  InDialog<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.directory().path(), Utf8ToQString(temp.Path()));
    auto* types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    ASSERT_NE(types, nullptr);
    EXPECT_EQ(types->currentText().trimmed(), QStringLiteral("jen text (*.txt)"));
    EXPECT_EQ(types->itemText(0).trimmed(), QStringLiteral("Všechno (*.*)"));
    // Kinds go by the names alone: nobody reads the files.
    const QAbstractFileIconProvider* icons = dialog.iconProvider();
    EXPECT_EQ(icons->type(QFileInfo(document)), icons->type(QFileInfo(picture)));
    EXPECT_NE(icons->type(QFileInfo(document)), icons->type(QFileInfo(wanted)));
    EXPECT_FALSE(icons->icon(QFileInfo(document)).isNull());
    dialog.selectFile(wanted);
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(AskForFile(FileDialogKind::kOpen, filter, 2, folder), wanted);
  EXPECT_EQ(folder, QFileInfo(wanted).path());

  InDialog<QFileDialog>([&](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(AskForFile(FileDialogKind::kOpen, filter, 9, folder), std::nullopt);
  EXPECT_EQ(folder, QFileInfo(wanted).path());
}

TEST(FileDialog, SavingOverAFileAsksNothing) {
  const TempFolder temp;
  const QString existing = Utf8ToQString(temp.Put("a.txt", "x"));
  QString folder = Utf8ToQString(temp.Path());
  InDialog<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    dialog.selectFile(existing);
    // A question would stop here until somebody answers.
    QTimer asked;
    asked.callOnTimeout(&asked, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      ADD_FAILURE() << box->text().toStdString();
      box->reject();
    });
    asked.start(0);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(AskForFile(FileDialogKind::kSave, QStringLiteral("Vše|*.*"), 1, folder), existing);
}

}  // namespace
}  // namespace pelmar
