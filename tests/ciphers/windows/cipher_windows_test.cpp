#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QListWidget>
#include <QProgressBar>
#include <QTest>
#include <random>

#include "ciphers/windows/cht.h"
#include "ciphers/windows/confeld.h"
#include "ciphers/windows/rnd_sifra.h"
#include "ciphers/windows/shift.h"
#include "ciphers/windows/shift_kod.h"
#include "ciphers/windows/za_kod.h"
#include "ciphers/xor_cipher.h"
#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct CipherWindowsTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};

  void Document(std::string_view text) { editor.text.SetText(std::string(text)); }
  [[nodiscard]] const std::string& Document() const { return editor.text.Text(); }
};

std::string BoxText(const QWidget& window, const char* name) { return Find<TextBox>(window, name)->Buffer().Text(); }
void SetBox(const QWidget& window, const char* name, std::string_view text) {
  Find<TextBox>(window, name)->Buffer().SetText(std::string(text));
}

struct ZaKodTest : CipherWindowsTest {
  int tab = 1;
  ZaKod dialog{editor.text, platform, [this] { return tab; }, nullptr};
  QLineEdit* key = Find<QLineEdit>(dialog, "Text1");

  ZaKodTest() { dialog.Present(); }
};

TEST_F(ZaKodTest, RewritesTheDocumentThereAndBack) {
  EXPECT_EQ(dialog.objectName(), QStringLiteral("ZaKod"));
  EXPECT_EQ(key->text(), QString());
  Document("ab");
  editor.text.Select(1, 2);  // required: the selection doesn't matter
  Click(dialog, "Command1");
  EXPECT_EQ(Document(), "40");
  EXPECT_EQ(Find<QProgressBar>(dialog, "ProgressBar1")->value(), 2);
  EXPECT_EQ(LineText(dialog, "Txt"), "40");
  Click(dialog, "Command1");
  EXPECT_EQ(Document(), "ab");
  Click(dialog, "Command2");
  EXPECT_FALSE(dialog.isVisible());
  Document("");
  Click(dialog, "Command1");
  EXPECT_EQ(Document(), "");
  EXPECT_TRUE(platform.calls.empty());
}

TEST_F(ZaKodTest, TheKeyIsANumberAndTypingGoesOn) {
  const auto typed = [this](const char* keys) {
    QTest::keyClicks(key, QString::fromLatin1(keys));
    return key->text().toStdString();
  };
  EXPECT_EQ(typed("12ab3"), "123");
  key->setCursorPosition(1);
  EXPECT_EQ(typed("x9,8"), "198");  // what stands behind a sign that is no part of a number is cut off
}

TEST_F(ZaKodTest, CaretStaysWhereTypingGoesOn) {
  const struct {
    const char* before;
    int caret;
    const char* keys;
    const char* after;
    int caret_after;
  } cases[] = {
      {"", 0, "7", "7", 1},
      {"", 0, "a", "0", 1},
      {"0", 1, "7", "7", 1},    // the 0 that stood for nothing goes
      {"12", 0, "0", "12", 0},  // a 0 in front too
      {"12", 2, "3", "123", 3},
      {"12", 1, "5", "152", 2},
      {"12", 2, "a", "12", 2},
      {"-5", 2, "6", "-56", 3},
      {"123456789012345", 3, "6", "123456789012345", 3},  // full
  };
  for (const auto& c : cases) {
    key->clear();
    key->setText(QString::fromLatin1(c.before));
    if (*c.before == '\0') {
      const QSignalBlocker quiet(key);
      key->clear();
    }
    key->setCursorPosition(c.caret);
    QTest::keyClicks(key, QString::fromLatin1(c.keys));
    EXPECT_EQ(key->text().toStdString(), c.after) << c.before << ' ' << c.keys;
    EXPECT_EQ(key->cursorPosition(), c.caret_after) << c.before << ' ' << c.keys;
  }
  key->selectAll();
  QTest::keyClick(key, Qt::Key_Delete);
  EXPECT_EQ(key->text(), QStringLiteral("0"));
  QTest::keyClicks(key, QStringLiteral("42"));
  EXPECT_EQ(key->text(), QStringLiteral("42"));
}

TEST_F(ZaKodTest, CodeEightAsksAndMayEndTheRun) {
  const std::string text("ab\bcd", 5);
  Document(text);
  platform.answers = {Answer::kOk, Answer::kYes};
  Click(dialog, "Command1");
  EXPECT_EQ(Document(), text);
  EXPECT_EQ(LineText(dialog, "Txt"), "40");
  EXPECT_EQ(Find<QProgressBar>(dialog, "ProgressBar1")->value(), 3);
  EXPECT_EQ(platform.calls.size(), 2u);
  platform.answers = {Answer::kOk, Answer::kNo};
  Click(dialog, "Command1");
  EXPECT_EQ(Document().size(), 5u);
  EXPECT_NE(Document(), text);
}

TEST_F(ZaKodTest, WhatIsPressedMeanwhileIsSafe) {
  const std::string text(64000, 'a');
  std::string once;
  StreamCipher(0).Append(text, once);
  Document(text);
  int handled = 0;
  // The rewrite handles these while it works.
  QTimer::singleShot(0, &dialog, [&] {
    ++handled;
    Click(dialog, "Command1");
    Click(dialog, "Command2");
  });
  Click(dialog, "Command1");
  EXPECT_EQ(handled, 1);
  EXPECT_EQ(Document(), once);
  EXPECT_FALSE(dialog.isVisible());

  // Another document came into the box: it isn't overwritten.
  QTimer::singleShot(0, &dialog, [&] {
    tab = 2;
    Document("other");
  });
  Click(dialog, "Command1");
  EXPECT_EQ(Document(), "other");
}

TEST_F(CipherWindowsTest, QuittingEndsTheRunOfTheStreamCipher) {
  Program program(platform);
  TextBuffer& text = Find<TextBox>(program.Main(), "Text1")->Buffer();
  text.SetText(std::string(64000, 'a'));
  platform.answers = {Answer::kYes};
  Inside([&] {
    Inside([&] { program.Main().close(); });  // handled while the run goes on
    Click(program.Windows().Get<ZaKod>(), "Command1");
  });
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_EQ(text.Text(), platform.files["/install/autosave_pelmar_vex.txt"]);
  EXPECT_EQ(text.Text().front(), 'a');
}

TEST_F(CipherWindowsTest, ShiftKodWorksOnTheDocumentOrOnQuickText) {
  ShiftKod dialog(editor.text, platform, nullptr);
  dialog.Present();
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Posunová šifra"));
  Document("Ahoj, Čecho!\r\n"_w);
  SetBar(dialog, "HScroll1", 5);
  EXPECT_EQ(LabelText(dialog, "Label4"), "5");
  EXPECT_EQ(LabelText(dialog, "Label2"), "FGHIJKLMNOPQRSTUVWXYZABCDE");
  Click(dialog, "Command1");
  EXPECT_EQ(Document(), "Fmto, Čjhmt!\r\n"_w);
  Click(dialog, "Command2");
  EXPECT_EQ(Document(), "Ahoj, Čecho!\r\n"_w);

  SetBox(dialog, "Text1", "abc");  // shown at once, ticked or not
  EXPECT_EQ(BoxText(dialog, "Text2"), "fgh");
  SetBar(dialog, "HScroll1", 1);
  EXPECT_EQ(BoxText(dialog, "Text2"), "fgh");  // but the bar only when ticked
  Click(dialog, "Check1");
  EXPECT_EQ(BoxText(dialog, "Text2"), "bcd");
  SetBar(dialog, "HScroll1", 2);
  EXPECT_EQ(BoxText(dialog, "Text2"), "cde");
  Click(dialog, "Command2");
  EXPECT_EQ(BoxText(dialog, "Text2"), "yza");
  EXPECT_EQ(BoxText(dialog, "Text1"), "abc");
  Click(dialog, "Command1");
  EXPECT_EQ(BoxText(dialog, "Text2"), "cde");
  EXPECT_EQ(Document(), "Ahoj, Čecho!\r\n"_w);

  auto* bar = Find<QScrollBar>(dialog, "HScroll1");
  for (const auto key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_PageDown})
    QTest::keyClick(bar, key);
  EXPECT_EQ(LabelText(dialog, "Label4"), "6");

  platform.draws = {0.999, 0.0};
  Click(dialog, "Command4");
  EXPECT_EQ(LabelText(dialog, "Label4"), "26");
  Click(dialog, "Command4");
  EXPECT_EQ(LabelText(dialog, "Label4"), "0");
  EXPECT_EQ(platform.reseeds, 2);
}

TEST_F(CipherWindowsTest, ShiftRotatesTheSelection) {
  Document("xabcdx");
  editor.text.Select(1, 5);
  {
    Shift dialog(editor.text, nullptr);
    dialog.show();
    auto* bar = Find<QScrollBar>(dialog, "HScroll1");
    EXPECT_EQ(bar->value(), 1);
    EXPECT_EQ(bar->maximum(), 4);
    EXPECT_EQ(LabelText(dialog, "Label2"), "1");
    EXPECT_EQ(BoxText(dialog, "Text1"), "abcd");  // required: not rotated yet
    bar->setValue(3);
    EXPECT_EQ(BoxText(dialog, "Text1"), "dabc");
    EXPECT_EQ(BoxText(dialog, "Orig"), "abcd");
    bar->setValue(4);
    EXPECT_EQ(BoxText(dialog, "Text1"), "abcd");
    bar->setValue(1);
    EXPECT_EQ(LabelText(dialog, "Label2"), "1");
    Click(dialog, "Command2");
    EXPECT_EQ(Document(), "xabcdx");
    EXPECT_FALSE(dialog.isVisible());
    Click(dialog, "Command1");
  }
  EXPECT_EQ(Document(), "xbcdax");
  EXPECT_EQ(editor.text.SelStart(), 5u);
  EXPECT_FALSE(editor.text.HasSelection());
  editor.text.Select(0, 1);
  Shift single(editor.text, nullptr);
  EXPECT_EQ(Find<QScrollBar>(single, "HScroll1")->maximum(), 1);
}

TEST_F(CipherWindowsTest, TheGateOfShiftWantsASelection) {
  Program program(platform);
  TextBuffer& text = Find<TextBox>(program.Main(), "Text1")->Buffer();
  auto* gate = Find<QAction>(program.Main(), "MnuSelTextPosun");
  text.SetText("abcd");
  platform.answers = {Answer::kOk};
  gate->trigger();
  EXPECT_EQ(platform.calls.back(), "message 0 \"Vyber text!\" \"Posun\"");
  // Each opening begins with the selection of its time.
  for (const auto& [length, rotated] : {std::pair{3, "bcad"}, std::pair{2, "cbad"}}) {
    text.Select(0, static_cast<std::size_t>(length));
    Inside([selected = length] {
      const QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      auto* bar = Find<QScrollBar>(*dialog, "HScroll1");
      EXPECT_EQ(bar->value(), 1);
      EXPECT_EQ(bar->maximum(), selected);
      bar->setValue(selected);
      bar->setValue(1);
      Click(*dialog, "Command1");
    });
    gate->trigger();
    EXPECT_EQ(text.Text(), rotated);
  }
}

TEST_F(CipherWindowsTest, ConfeldWorksOnTheDocumentOrOnQuickText) {
  Confeld dialog(editor.text, platform, nullptr);
  dialog.Present();
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Cronfeldův systém"));
  EXPECT_EQ(LineText(dialog, "Text1"), "0");
  Document("aa aa");
  Click(dialog, "Command1");
  EXPECT_EQ(Document(), "aa aa");  // the password 0 changes nothing
  SetField(dialog, "Text1", QStringLiteral("012"));
  EXPECT_EQ(LineText(dialog, "Text1"), "12");
  Click(dialog, "Command1");
  EXPECT_EQ(Document(), "bc cb");
  Click(dialog, "Command2");
  EXPECT_EQ(Document(), "aa aa");
  Click(dialog, "Check1");
  SetBox(dialog, "Text3", "Zb");
  EXPECT_EQ(BoxText(dialog, "Text2"), "");  // nothing as one types
  Click(dialog, "Command1");
  EXPECT_EQ(BoxText(dialog, "Text2"), "Ad");
  Click(dialog, "Command2");
  EXPECT_EQ(BoxText(dialog, "Text2"), "Yz");
  EXPECT_EQ(Document(), "aa aa");
  platform.draws = std::deque<double>(15, 0.999);
  Click(dialog, "Command4");
  EXPECT_EQ(LineText(dialog, "Text1"), "999999999999999");
  EXPECT_EQ(platform.reseeds, 1);
}

TEST_F(CipherWindowsTest, ChtRewritesAgainAndAgain) {
  CHT dialog(editor.text, platform, nullptr);
  dialog.Present();
  EXPECT_EQ(BoxText(dialog, "Text1").substr(0, 28), "ABCDEFGHIJKLMNOPQRSTUVWXYZ\r\n");
  Document("aQ\r\n");
  platform.draws = {0.5, 0.99, 0.9, 0.9};
  Click(dialog, "Command1");
  EXPECT_EQ(Document(), "@q\r\n");
  EXPECT_EQ(editor.text.Caret(), 0u);
  EXPECT_TRUE(editor.text.Undo());
  EXPECT_EQ(Document(), "aQ\r\n");
  EXPECT_TRUE(editor.text.Redo());
  Click(dialog, "Command1");
  EXPECT_EQ(Document().substr(0, 1), "@");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(platform.reseeds, 0);
}

struct RndSifraTest : CipherWindowsTest {
  RND_Sifra dialog{editor, nullptr};
  std::mt19937 random{7};

  RndSifraTest() { dialog.Present(); }
  void Draws(std::size_t count) {
    platform.draws.clear();
    for (; count > 0; --count) platform.draws.push_back(static_cast<double>(random()) / 4294967296.0);
  }
  // A table of the depth that the bar says.
  void Generate() {
    Draws(static_cast<std::size_t>(29 * 2 * Find<QScrollBar>(dialog, "HScroll1")->value() + 52));
    Click(dialog, "Command2");
    EXPECT_TRUE(platform.draws.empty());
  }
  [[nodiscard]] std::string Enabled() const {
    std::string names;
    for (const char* name :
         {"Command1", "Command2", "Command3", "Command4", "Command5", "Command6", "Command7", "Command8", "Command9"})
      if (Find<QAbstractButton>(dialog, name)->isEnabled()) names += name[7];
    return names;
  }
  [[nodiscard]] std::string Row(const char* list, int row) const {
    return Find<QListWidget>(dialog, list)->item(row)->text().toStdString();
  }
};

TEST_F(RndSifraTest, GeneratesATableAndGoesThereAndBack) {
  EXPECT_EQ(dialog.objectName(), QStringLiteral("RND_Sifra"));
  EXPECT_EQ(Enabled(), "1237");
  SetBox(dialog, "Text2", "old note");
  SetBar(dialog, "HScroll1", 20);
  EXPECT_EQ(LabelText(dialog, "Label9"), "20");
  Generate();
  EXPECT_EQ(Enabled(), "123456789");
  EXPECT_EQ(Row("List1", 0), "Hloubka: 20");
  EXPECT_EQ(Find<QListWidget>(dialog, "List1")->count(), 30);
  EXPECT_EQ(Find<QListWidget>(dialog, "List2")->count(), 27);
  EXPECT_EQ(BoxText(dialog, "Text2"), "");
  EXPECT_EQ(LabelText(dialog, "Label6").substr(0, 13), "Koeficient A:");

  Document("Příliš žluťoučký\r\nkůň!"_w);
  Click(dialog, "Command1");
  EXPECT_EQ(BoxText(dialog, "Text1"), "PRILIS ZLUTOUCKY\r\nKUN");
  Click(dialog, "Command5");
  EXPECT_EQ(Document().size(), 21u * 20);
  EXPECT_EQ(Document().find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), std::string::npos);
  EXPECT_EQ(Find<QProgressBar>(dialog, "Cnt")->value(), 21);
  EXPECT_EQ(Find<QProgressBar>(dialog, "Cnt")->maximum(), 22);
  Click(dialog, "Command1");
  Click(dialog, "Command6");
  EXPECT_EQ(Document(), "PRILIS ZLUTOUCKY\r\nKUN");
  EXPECT_EQ(platform.reseeds, 2);  // deciphering draws nothing

  SetBox(dialog, "Text1", "");
  Click(dialog, "Command5");
  EXPECT_EQ(Document(), "");  // required: without a question
  EXPECT_TRUE(platform.calls.empty());
}

TEST_F(RndSifraTest, RegeneratesTheTwoPartsOnTheirOwn) {
  SetBar(dialog, "HScroll1", 16);
  Generate();
  SetBox(dialog, "Text2", "note");
  const std::string codes = Row("List1", 1);
  const std::string letters = LabelText(dialog, "Label6");
  SetBar(dialog, "HScroll1", 8);
  Draws(52);
  Click(dialog, "Command9");
  EXPECT_EQ(Row("List1", 0), "Hloubka: 16");
  EXPECT_EQ(Row("List1", 1), codes);
  EXPECT_NE(LabelText(dialog, "Label6"), letters);
  const QString zero = Find<QListWidget>(dialog, "List2")->item(0)->text();
  Draws(29 * 16);
  Click(dialog, "Command8");
  EXPECT_EQ(Row("List1", 0), "Hloubka: 8");
  EXPECT_EQ(Find<QListWidget>(dialog, "List2")->item(0)->text(), zero);
  EXPECT_EQ(BoxText(dialog, "Text2"), "note");
  EXPECT_EQ(platform.reseeds, 3);
}

TEST_F(RndSifraTest, SavesAndLoadsTheTable) {
  SetBar(dialog, "HScroll1", 32);
  Generate();
  SetBox(dialog, "Text2", "two\r\nlines");
  platform.saves = {"/a.pvt"};
  Click(dialog, "Command4");
  EXPECT_EQ(platform.files["/a.pvt"].size(), 29u * 34 + 33 + 10);
  const std::string made = LabelText(dialog, "Label6");
  const std::string codes = Row("List1", 5);

  RND_Sifra other(editor, nullptr);
  other.Present();
  platform.opens = {"/a.pvt"};
  Click(other, "Command3");
  EXPECT_EQ(Find<QListWidget>(other, "List1")->item(5)->text().toStdString(), codes);
  EXPECT_EQ(BoxText(other, "Text2"), "two\r\nlines");
  EXPECT_TRUE(Find<QAbstractButton>(other, "Command6")->isEnabled());
  EXPECT_EQ(LabelText(other, "Label9"), "8");   // required: the bar isn't touched
  EXPECT_NE(LabelText(other, "Label6"), made);  // required: the first 8 digits alone count now
  SetBox(other, "Text1", "AB");
  Click(other, "Command5");
  EXPECT_EQ(Document().size(), 64u);
}

TEST_F(RndSifraTest, ALoadThatFailsSaysSo) {
  const std::string message = "message 0 \"Nepodařilo se otevřít ...\" \"Open RND\"";
  platform.opens = {std::nullopt, "/new.pvt"};
  platform.answers = {Answer::kOk, Answer::kOk};
  Click(dialog, "Command3");
  EXPECT_EQ(platform.calls.back(), message);
  EXPECT_EQ(Find<QListWidget>(dialog, "List1")->count(), 0);  // the table stays
  Generate();
  Click(dialog, "Command3");
  EXPECT_EQ(platform.calls.back(), message);
  EXPECT_EQ(platform.files.at("/new.pvt"), "");
  // The table is the empty one now, the buttons are as they were, and nothing falls over it.
  EXPECT_EQ(Row("List1", 0), "Hloubka: 0");
  EXPECT_EQ(Enabled(), "123456789");
  Document("keep");
  SetBox(dialog, "Text1", "KEEP");
  Click(dialog, "Command6");
  EXPECT_EQ(Document(), "keep");
  Draws(29 * 16);
  Click(dialog, "Command8");
  EXPECT_EQ(LabelText(dialog, "Label6"), "Koeficienty nelze spočítat (dělení nulou)");
}

TEST_F(RndSifraTest, AnyFileIsTakenAsATableAndKeepsItsRowsLow) {
  CipherTable other;
  other.SymbolCodes[0] = "\r\n\r\n";
  platform.files["/other"] = TableBytes(other);
  platform.opens = {"/other"};
  platform.answers = {Answer::kOk};
  Click(dialog, "Command3");
  const auto* list = Find<QListWidget>(dialog, "List1");
  EXPECT_EQ(Row("List1", 1), "A       \r\n\r\n");
  EXPECT_EQ(list->visualItemRect(list->item(1)).height(), list->visualItemRect(list->item(2)).height());
}

TEST_F(RndSifraTest, TheNoteIsNoLongerThanTheFileTakes) {
  SetBox(dialog, "Text2", std::string(70000, 'n'));
  EXPECT_EQ(BoxText(dialog, "Text2").size(), 65535u);
}

}  // namespace
}  // namespace pelmar
