#include <gtest/gtest.h>

#include "ciphers/windows/rnd_sifra.h"
#include "ciphers/windows/shift.h"
#include "ciphers/xor_cipher.h"
#include "support/program_test.h"
#include "support/random_source.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct ZaKodTest : ProgramTest {
  const QWidget& dialog = Open("mnucode");
  const std::string long_text = std::string(64000, 'a');

  // Enciphers the long text, calls `act` during the run and returns the document after it.
  std::string AfterRun(const std::function<void()>& act) {
    text.SetText(long_text);
    Inside(act);
    Work(dialog, "Command1!");
    return text.Text();
  }
};

TEST_F(ZaKodTest, TwiceTheSameKeyRestoresTheWholeDocument) {
  PutMarked(text, "[a|b");  // required: the selection doesn't matter
  ExpectState(dialog, "Command1!", "Text1= ProgressBar1=2 Txt=40");
  EXPECT_EQ(text.Text(), "40");
  EXPECT_FALSE(text.CanUndo());  // required for a replaced text
  ExpectState(dialog, "Text1=0ab Command1!", "Text1=0 Txt=ab");
  EXPECT_EQ(text.Text(), "ab");
  text.SetText({});
  ExpectState(dialog, "Command1!", "ProgressBar1=0 Txt=");
}

TEST_F(ZaKodTest, DuringARunOkIsIgnoredAndAChangedDocumentIsNotEnciphered) {
  std::string once;
  StreamCipher(0).Append(long_text, once);
  EXPECT_EQ(AfterRun([&] { Work(dialog, "Command1!"); }), once);  // starts no second run
  ExpectState(dialog, "", "ProgressBar1=64000");
  platform.files = {{"/same.txt", long_text}};
  platform.opens = {"/same.txt"};
  EXPECT_EQ(AfterRun([&] { editor.commands.Run("mnu_open_st"); }), long_text);
  EXPECT_EQ(AfterRun([&] { text.SetText("new"); }), "new");
  EXPECT_EQ(AfterRun([&] { Work(main, "FileTab=1"); }), "");
}

TEST_F(ZaKodTest, AProgramThatEndsDuringARunKeepsTheDocument) {
  platform.answers = {Answer::kYes, Answer::kYes};
  Inside([&] { EXPECT_EQ(AfterRun([&] { main.close(); }), long_text); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(ProgramTest, ShiftKodEnciphersAndDeciphersTheDocumentOrTheQuickText) {
  const QWidget& dialog = Open("mnu_encrypt_shift");
  platform.draws = {0.5};
  ExpectState(dialog, "Command4!", "Label4=13");
  EXPECT_EQ(platform.reseeds, 1);
  PutMarked(text, "[A|z");  // required: the selection doesn't matter
  ExpectState(dialog, "HScroll1=5 Command1!", "Label4=5 Label2=FGHIJKLMNOPQRSTUVWXYZABCDE");
  EXPECT_EQ(text.Text(), "Fe");
  EXPECT_FALSE(text.CanUndo());  // required for a replaced text
  Work(dialog, "Command2!");
  EXPECT_EQ(text.Text(), "Az");
  ExpectState(dialog, "Text1=abc", "Text2=fgh");  // shifted as it is typed
  ExpectState(dialog, "HScroll1=6", "Text2=fgh");
  ExpectState(dialog, "Check1!", "Text2=ghi");
  ExpectState(dialog, "HScroll1=7", "Text2=hij");
  ExpectState(dialog, "Command2!", "Text1=abc Text2=tuv");
  ExpectState(dialog, "Command1!", "Text2=hij");
  EXPECT_EQ(text.Text(), "Az");
}

TEST_F(ProgramTest, CronfeldEnciphersAndDeciphersTheDocumentOrTheQuickText) {
  const QWidget& dialog = Open("Mnu_Encrypt_Confeld");
  platform.draws.assign(15, 0.999);
  ExpectState(dialog, "Command4!", "Text1=999999999999999");
  EXPECT_EQ(platform.reseeds, 1);
  PutMarked(text, "[aa| aa");  // required: the selection doesn't matter
  ExpectState(dialog, "Text1= Text1:012 Command1!", "Text1=12");
  EXPECT_EQ(text.Text(), "bc cb");
  EXPECT_FALSE(text.CanUndo());  // required for a replaced text
  Work(dialog, "Command2!");
  EXPECT_EQ(text.Text(), "aa aa");
  ExpectState(dialog, "Check1! Text3=Zb", "Text2=");  // only the buttons change Text2
  ExpectState(dialog, "Command1!", "Text2=Ad");
  ExpectState(dialog, "Command2!", "Text2=Yz");
  EXPECT_EQ(text.Text(), "aa aa");
}

TEST_F(ProgramTest, TheCaretOfAKeyFieldStaysWhereThePersonTypes) {
  const QWidget& dialog = Open("Mnu_Encrypt_Confeld");
  Work(dialog, "Text1=123");
  Find<QLineEdit>(dialog, "Text1")->setCursorPosition(0);
  ExpectState(dialog, "Text1:04", "Text1=4123");  // the field drops the 0
  ExpectState(dialog, "Text1:a5", "Text1=45");    // the field drops the text from the letter on
}

TEST_F(ProgramTest, ChtTranscribesTheDocumentAndShowsTheLookAlikes) {
  text.SetText("aQ\r\n");
  platform.draws = {0.5, 0.99, 0.9, 0.9};
  const QWidget& dialog = Open("Mnu_Hack_cry");
  EXPECT_EQ(dialog.focusWidget(), Named(dialog, "Command1"));
  ExpectState(dialog, "Command1!",
              "Text1='ABCDEFGHIJKLMNOPQRSTUVWXYZ\r\nabcdefghijklmnopqrstuvwxyz\r\n&8(>3[6#1?<7~%09  5+ ^M*/2\r\n"
              "@  )    !  4w     $   m\r\n        |   W'");
  EXPECT_EQ(text.Text(), "@q\r\n");
  EXPECT_FALSE(text.CanUndo());  // required for a replaced text
}

struct ShiftTest : ProgramTest {
  // Runs the command with "abcd" selected and the steps in the dialog, expects the state and closes the dialog.
  void ExpectRotation(const char* steps, const char* state) {
    PutMarked(text, "x[abcd|x");
    InDialog<Shift>([&](Shift& dialog) {
      ExpectState(dialog, steps, state);
      EXPECT_EQ(dialog.isVisible(), !QByteArray(steps).contains("Command1!")) << steps;
      dialog.close();
    });
    editor.commands.Run("MnuSelTextPosun");
  }
};

TEST_F(ShiftTest, OkWritesTheRotatedText) {
  ExpectRotation("HScroll1=3 HScroll1=1 Command1!", "Label2=1 Text1=bcda");
  EXPECT_EQ(Marked(text), "xbcda|x");
}

TEST_F(ShiftTest, TheCommandNeedsASelection) {
  platform.answers = {Answer::kOk};
  editor.commands.Run("MnuSelTextPosun");
  EXPECT_EQ(platform.TakeCallsInOneLine(), "message 0 \"Vyber text!\" \"Posun\"; ");
}

TEST_F(ShiftTest, TheBarGoesFrom1ToTheLengthOfTheSelection) {
  ExpectRotation("", "HScroll1=1 Label2=1 Text1=abcd Orig=abcd");  // required: Text1 isn't rotated yet
  ExpectRotation("HScroll1=9", "HScroll1=4 Label2=4 Text1=abcd");
}

struct RndSifraTest : ProgramTest {
  const QWidget& dialog = Open("mnu_rnd_encrypt");

  RndSifraTest() {
    RandomSource source(7);
    while (platform.draws.size() < 9000) platform.draws.push_back(source.Next());
  }
  [[nodiscard]] QString ShownIn(const char* control) const { return Shown(Named(dialog, control)); }
};

TEST_F(RndSifraTest, EnciphersAndDeciphersThePreparedText) {
  text.SetText(std::string("Příliš\r\nkůň!"_w));
  ExpectState(dialog, "", "Command4='(Ulož šifrovací tabulku)' Command5=(Zašifruj)");
  ExpectState(dialog, "Text2=note HScroll1=40 Command2!", "Label9=40 Text2= Command5=Zašifruj");
  ExpectState(dialog, "Command1!", "Text1='PRILIS\r\nKUN'");
  ExpectState(dialog, "Command5!", "Cnt=11");
  EXPECT_EQ(text.Size(), 11u * 40);
  ExpectState(dialog, "Command1! Command6!", "Cnt=440");
  EXPECT_EQ(text.Text(), "PRILIS\r\nKUN");
  EXPECT_FALSE(text.CanUndo());    // required for a replaced text
  EXPECT_EQ(platform.reseeds, 2);  // deciphering draws nothing
  ExpectState(dialog, "Text1= Command5!", "Cnt=0");
  EXPECT_EQ(text.Text(), "");  // required: without a question
  EXPECT_EQ(platform.TakeCallsInOneLine(), "");
}

TEST_F(RndSifraTest, ASavedTableLoadsWithItsCodesLettersAndNote) {
  Work(dialog, "HScroll1=32 Command2! Command8! Text2='two\r\nlines'");
  platform.saves = platform.opens = {"/a.pvt"};
  Work(dialog, "Command4!");
  const RND_Sifra other(editor, nullptr);
  ExpectState(other, "HScroll1=9 Command3!", "HScroll1=9 Label9=9");  // required: the bar of the depth stays
  for (const char* control : {"List1", "List2", "Text2", "Label6", "Command5"})
    EXPECT_EQ(Shown(Named(other, control)), ShownIn(control)) << control;
}

TEST_F(RndSifraTest, NewCodesKeepTheLettersAndNewLettersTheCodes) {
  Work(dialog, "HScroll1=32 Command2!");
  const QString letters = ShownIn("List2");
  Work(dialog, "HScroll1=9 Command8!");
  EXPECT_EQ(ShownIn("List2"), letters);
  const QString codes = ShownIn("List1");
  EXPECT_TRUE(codes.startsWith(QStringLiteral("Hloubka: 9|"))) << codes.toStdString();
  Work(dialog, "Command9!");
  EXPECT_EQ(ShownIn("List1"), codes);
  EXPECT_NE(ShownIn("List2"), letters);
  EXPECT_EQ(platform.reseeds, 3);
}

TEST_F(RndSifraTest, AFailedLoadIsReportedAndAnEmptyTableWritesNothing) {
  platform.opens = {std::nullopt, "/new.pvt"};
  platform.answers = {Answer::kOk, Answer::kOk};
  ExpectState(dialog, "Command3!", "List1= Command5=(Zašifruj)");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Nepodařilo se otevřít ...\" \"Open RND\"");
  text.SetText("keep");
  Work(dialog, "Command2! Command3!");
  EXPECT_EQ(platform.files.at("/new.pvt"), "");  // required: a missing file is created and read as empty
  ExpectState(dialog, "Text1=KEEP Command6! Command8!", "Label6='Koeficienty nelze spočítat (dělení nulou)'");
  EXPECT_EQ(text.Text(), "keep");
}

}  // namespace
}  // namespace pelmar
