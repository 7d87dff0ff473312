#include "platform/qt/desktop/dialogs.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <filesystem>

#include "platform/qt/controls/dialog_window.h"
#include "platform/qt/controls/field.h"
#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/frames/program_style.h"
#include "platform/qt/frames/svg_icon.h"
#include "support/controls.h"
#include "support/steps.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

using Widgets = std::initializer_list<QWidget*>;

TEST(Message, HasTheButtonsThePictureAndTheDefaultOfItsType) {
  using Box = QMessageBox;
  const std::tuple<MessageType, Box::StandardButtons, Box::Icon, Answer, Answer> cases[] = {
      {MessageType::kOk, Box::Ok, Box::NoIcon, Answer::kOk, Answer::kOk},
      {MessageType::kOkInfo, Box::Ok, Box::Information, Answer::kOk, Answer::kOk},
      {MessageType::kYesNoWarning, Box::Yes | Box::No, Box::Warning, Answer::kYes, Answer::kNone},
      {MessageType::kYesNoStop, Box::Yes | Box::No, Box::Critical, Answer::kNo, Answer::kNone}};
  const QString text = QStringLiteral("Opravdu uložit <b>a&b</b>?\r\n\"x\""), title = QStringLiteral("Soubor");
  for (const auto& [type, buttons, icon, enter, escape] : cases) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
      const auto expected = std::tuple(text, title, Qt::PlainText, buttons, icon);
      InDialog<Box>([&](Box& box) {
        EXPECT_EQ(std::tuple(box.text(), box.windowTitle(), box.textFormat(), box.standardButtons(), box.icon()),
                  expected);
        QTest::keyClick(&box, key);
      });
      EXPECT_EQ(ShowMessage(type, text, title), key == Qt::Key_Return ? enter : escape);
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
      auto* field = box.findChild<QLineEdit*>();
      QGuiApplication::clipboard()->setText(QStringLiteral("a\nb"));
      QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);  // over what is selected there
      EXPECT_EQ(field->text(), QStringLiteral("a\r\nb"));
      field->setText(answer.value_or(initial));
      answer ? box.accept() : box.reject();
    });
    EXPECT_EQ(AskForText(prompt, title, initial), answer);
  }
}

TEST(Field, TakesPastedAndDroppedLinesAsADocumentHasThemOrWithoutTheirBreaks) {
  QWidget window;
  FieldBox box(&window);
  Field line(&window);
  window.show();
  for (QLineEdit* field : {static_cast<QLineEdit*>(&line), box.lineEdit()}) {
    QWidget* receiver = field == &line ? field : static_cast<QWidget*>(&box);
    const auto paste = [&](QMimeData* mime) {
      QGuiApplication::clipboard()->setMimeData(mime);
      QTest::keyClick(receiver, Qt::Key_V, Qt::ControlModifier);
    };
    const auto choose = [&](QMimeData* mime) {
      QGuiApplication::clipboard()->setMimeData(mime);
      QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
      QApplication::sendEvent(receiver, &event);
      auto* menu = QApplication::activePopupWidget();
      menu->actions().value(5)->trigger();  // behind Undo, Redo, a line, Cut and Copy
      menu->close();
    };
    const auto drop = [&](QMimeData* mime) {
      QDropEvent event(QPointF(1, 1), Qt::CopyAction, mime, Qt::LeftButton, {});
      field->event(&event);  // the toolkit sends none behind no drag
      delete mime;
    };
    for (const auto& road : std::initializer_list<std::function<void(QMimeData*)>>{paste, choose, drop}) {
      for (const bool holds_lines : {false, true}) {
        field->setProperty("holdsLines", holds_lines);
        auto* theirs = new QMimeData;
        theirs->setText(QStringLiteral("→\nb\r\nc"));
        for (const auto& [mime, lines] : {std::pair{theirs, "→\r\nb\r\nc"}, {MimeFromText("a\nb\r\nc"), "a\nb\r\nc"}}) {
          field->setText(QStringLiteral("x\ny"));  // what the program sets keeps its breaks
          field->home(false);
          road(mime);
          QString pasted = QString::fromUtf8(lines);
          if (!holds_lines) pasted.remove(u'\r').remove(u'\n');
          EXPECT_EQ(field->text(), pasted + QStringLiteral("x\ny"));
        }
      }
    }
  }
}

TEST(FileDialog, StartsWithTheGivenFilterAndRemembersTheFolder) {
  const TempFolder temp;
  const QFileInfo letter(Utf8ToQString(temp.Put("inner/Dopis.TXT", "x"))),
      document(Utf8ToQString(temp.Put("inner/leták", "%PDF-1.4\n"))),
      picture(Utf8ToQString(temp.Put("inner/obraz", "\x89PNG\r\n\x1a\n")));
  QString folder = Utf8ToQString(temp.Path());
  const auto ask = [&](FileDialogKind kind, int index, const std::function<void(QFileDialog&)>& act) {
    InDialog<QFileDialog>([&](QFileDialog& dialog) {
      EXPECT_EQ(dialog.acceptMode() == QFileDialog::AcceptSave, kind == FileDialogKind::kSave);
      EXPECT_EQ(dialog.directory().path(), folder);
      dialog.selectFile(letter.filePath());
      act(dialog);
    });
    const QString filter = QStringLiteral("Všechno (*.*)|*.*|jen text (*.txt)|*.txt; *.me|lone");
    return AskForFile(kind, filter, index, folder).value_or(QStringLiteral("none"));
  };
  const auto open = [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters().join(u'|').toStdString(), "Všechno (*.*) (*)|jen text (*.txt) (*.txt *.me)");
    EXPECT_EQ(dialog.selectedNameFilter(), QStringLiteral("jen text (*.txt)"));
    // Kinds go by the names alone: nobody reads the files.
    const QAbstractFileIconProvider& icons = *dialog.iconProvider();
    EXPECT_EQ(icons.type(document), icons.type(picture));
    EXPECT_NE(icons.type(document), icons.type(letter));
    EXPECT_FALSE(icons.icon(document).isNull());
    static_cast<QDialog&>(dialog).accept();
  };
  const auto save = [&](QFileDialog& dialog) {
    // A question before the old file is written over would stop here until somebody answers.
    Inside([] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      EXPECT_EQ(box, nullptr);
      if (box != nullptr) box->reject();
    });
    QTest::keyClick(&dialog, Qt::Key_Return);
  };
  // The name is taken as it was typed, whatever kind of files is chosen.
  const auto save_nameless = [](QFileDialog& dialog) {
    dialog.selectFile(QStringLiteral("README"));
    QTest::keyClick(&dialog, Qt::Key_Return);
  };
  EXPECT_EQ(ask(FileDialogKind::kOpen, 2, open), letter.filePath());
  EXPECT_EQ(folder, letter.path());
  EXPECT_EQ(ask(FileDialogKind::kOpen, 9, [](QFileDialog& dialog) { dialog.reject(); }), QStringLiteral("none"));
  EXPECT_EQ(ask(FileDialogKind::kSave, 1, save), letter.filePath());
  for (const int index : {1, 2})
    EXPECT_EQ(ask(FileDialogKind::kSave, index, save_nameless).toStdString(), letter.path().toStdString() + "/README");
}

TEST(DialogWindow, IsCentredOnceAndKeepsItsPlaceOrEachTime) {
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
  dialog.setProperty("centredEachTime", true);
  dialog.hide();
  dialog.Present();
  EXPECT_LE((dialog.frameGeometry().center() - screen.center()).manhattanLength(), 12);
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
  for (QWidget* widget : Widgets{&bar, &show}) widget->setFocusPolicy(Qt::StrongFocus);
  QString told;
  for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>())
    QObject::connect(button, &QAbstractButton::clicked, [&, button] { told += button->text() + u' '; });
  for (int opened = 0; opened < 2; ++opened) {
    dialog.Present();
    EXPECT_EQ(dialog.focusWidget(), &field);
    EXPECT_EQ(field.selectedText(), field.text());
    field.deselect();
    EXPECT_TRUE(opened > 0 || QTest::qWaitForWindowActive(&dialog));
    for (QWidget* focus : Widgets{&box, &storno, &show, &ok, &bar, &field}) {
      focus->setFocus();
      if (focus != &field && focus != &box) QTest::keyClick(focus, Qt::Key_Return);
      for (QWidget* turned : Widgets{&box, &bar}) RollWheel(*turned, {}, {0, -120});
      told += Shown(&box) + Shown(&bar) + u' ';
    }
    dialog.hide();
  }
  EXPECT_TRUE(told.startsWith(QStringLiteral("b0 storno b0 show b0 ok b0 ok b3 b3 b3 storno"))) << told.toStdString();
}

int Difference(const QColor& one, const QColor& other) { return std::abs(qGray(one.rgb()) - qGray(other.rgb())); }

TEST(ProgramStyle, ShowsWhatIsOffOnLightAndDarkGround) {
  ProgramStyle style(QStringLiteral("fusion"));
  for (const QColor& ground : {QColor(239, 239, 239), QColor(53, 53, 53), QColor(30, 30, 34)}) {
    QPalette palette(ground);
    palette.setColor(QPalette::PlaceholderText, Qt::black);
    style.polish(palette);
    const auto off = [&](QPalette::ColorRole role) { return palette.color(QPalette::Disabled, role); };
    EXPECT_GE(Difference(off(QPalette::Text), off(QPalette::Base)), 90);
    EXPECT_GE(Difference(off(QPalette::HighlightedText), off(QPalette::Highlight)), 90);
    EXPECT_GE(Difference(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)), 90);
    EXPECT_GE(Difference(off(QPalette::WindowText), ground), 70);
    EXPECT_GE(Difference(palette.color(QPalette::Mid), ground), 40);
    QCheckBox check;
    QRadioButton option;
    for (QWidget* box : Widgets{&check, &option}) {
      box->setStyle(&style);
      box->setPalette(palette);
      box->resize(box->sizeHint());
      for (const bool on : {true, false}) {
        box->setEnabled(on);
        const QImage picture = box->grab().toImage();
        int rim = 0;  // on the row through the middle of the box
        for (int x = 0; x < 4; ++x)
          rim = std::max(rim, Difference(picture.pixelColor(x, picture.height() / 2), ground));
        EXPECT_GE(rim, 60) << box->metaObject()->className() << ground.red() << on;
      }
    }
  }
}

TEST(ProgramStyle, FramesTheBarOrTheListThatHasTheKeyboard) {
  QWidget window;
  window.resize(300, 300);
  QScrollBar bar(&window);
  QListWidget list(&window);
  QComboBox box(&window);
  bar.setFocusPolicy(Qt::StrongFocus);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (QWidget* focus : Widgets{&bar, &list, &box}) {
    focus->setFocus();
    for (QWidget* widget : Widgets{&bar, &list, &box}) {
      const QColor corner = widget->grab().toImage().pixelColor(0, 0);
      EXPECT_EQ(corner == widget->palette().color(QPalette::Highlight), widget == focus && widget != &box);
    }
  }
}

TEST(ProgramStyle, ShowsWhichButtonEnterPresses) {
  QWidget window;
  window.resize(300, 300);
  QPushButton standing(&window), focused(&window), plain(&window);
  for (QPushButton* button : {&standing, &focused, &plain}) button->move(100, 200);  // not under the pointer
  standing.setDefault(true);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto picture = [](QWidget& button) { return button.grab().toImage(); };
  EXPECT_NE(picture(standing), picture(plain));
  window.setAttribute(Qt::WA_KeyboardFocusChange);
  focused.setFocus();
  EXPECT_EQ(picture(standing), picture(plain));
  EXPECT_NE(picture(focused), picture(plain));
}

// A picture whose left half is orange and whose right half is empty.
constexpr const char* kHalf =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24"><path d="M0 0h12v24H0z" fill="#ff8000"/></svg>)";

TEST(SvgIcon, IsReadOnceSharpAtAnyScaleAndFaintWhenDisabled) {
  const TempFolder folder;
  const QIcon icon = SvgIcon(Utf8ToQString(folder.File("half.svg")));
  for (const qreal ratio : {1.0, 1.5, 3.0}) {
    const int middle = qRound(12 * ratio);
    const std::string path = folder.Put("half.svg", kHalf);
    const QImage taken = icon.pixmap(QSize(24, 24), ratio).toImage();
    const QColor disabled = icon.pixmap(QSize(24, 24), ratio, QIcon::Disabled).toImage().pixelColor(0, 0);
    std::filesystem::remove(path);
    // A wide rectangle has the square in its middle.
    QImage painted(6 * middle, 2 * middle, QImage::Format_ARGB32_Premultiplied);
    painted.setDevicePixelRatio(ratio);
    painted.fill(Qt::transparent);
    QPainter painter(&painted);
    icon.paint(&painter, 0, 0, 72, 24);
    painter.end();
    EXPECT_EQ(taken.devicePixelRatio(), ratio);
    ASSERT_EQ(taken.size(), QSize(2 * middle, 2 * middle));
    EXPECT_EQ(painted.pixelColor(2 * middle - 1, middle).alpha(), 0) << ratio;
    for (const QImage& image : {taken, painted.copy(2 * middle, 0, 2 * middle, 2 * middle)})
      for (const int x : {0, middle - 1, middle, 2 * middle - 1})
        EXPECT_EQ(image.pixelColor(x, middle), x < middle ? QColor(0xff8000) : QColor(Qt::transparent)) << ratio << x;
    EXPECT_NEAR(disabled.red(), disabled.blue(), 2);
    EXPECT_NEAR(disabled.alpha(), 96, 32);
  }
}

TEST(SvgIcon, OfADamagedOrMissingPictureIsEmptyAndEachOfTheProgramDraws) {
  const TempFolder folder;
  for (const char* svg : {"<svg", "not a picture", ""}) folder.Put("bad " + std::string(svg), svg);
  std::filesystem::create_symlink("nowhere", folder.File("missing"));
  const QDir bad(Utf8ToQString(folder.Path())), icons(QStringLiteral(":/icons"), QStringLiteral("*.svg"));
  EXPECT_GT(icons.count(), 28u);
  for (const QDir& dir : {bad, icons}) {
    for (const QString& name : dir.entryList(QDir::Files | QDir::System)) {
      const QImage image = SvgIcon(dir.filePath(name)).pixmap(24, 24).toImage();
      int drawn = 0;
      for (int at = 0; at < 24 * 24; ++at) drawn += image.pixelColor(at % 24, at / 24).alpha() > 128;
      EXPECT_TRUE(dir == bad ? drawn == 0 : drawn > 24) << name.toStdString();
    }
  }
}

}  // namespace
}  // namespace pelmar
