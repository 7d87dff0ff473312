#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>

#include "ciphers/table_file.h"
#include "ciphers/windows/cht.h"
#include "ciphers/windows/confeld.h"
#include "ciphers/windows/rnd_sifra.h"
#include "ciphers/windows/shift_kod.h"
#include "ciphers/windows/za_kod.h"
#include "ciphers/xor_cipher.h"
#include "program/program.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct RandomPlatform : ScriptedPlatform {
  RandomSource source{7};
  double Random() override { return draws.empty() ? source.Next() : ScriptedPlatform::Random(); }
};

struct CipherWindowsTest : testing::Test {
  RandomPlatform platform;
  WholeEditor editor{platform};
  ZaKod stream{editor, [] { return false; }, nullptr};
};

TEST_F(CipherWindowsTest, DialogsRewriteTheWholeDocumentOrQuickText) {
  const ShiftKod shift(editor.text, platform, nullptr);
  const Confeld cronfeld(editor.text, platform, nullptr);
  const CHT hacker(editor.text, platform, nullptr);
  platform.draws = {0.5, 0.99, 0.9, 0.9, 0.999, 0.0};
  platform.draws.resize(21, 0.999);
  platform.answers = {Answer::kOk, Answer::kYes};
  const struct {
    const QWidget& dialog;
    const char *text, *steps, *document, *state;
  } cases[] = {
      {stream, "ab", "Command1!", "40", "Text1= ProgressBar1=2 Txt=40"},
      {stream, "40", "Text1=0 Command1!", "ab", "Txt=ab"},
      {stream, "ab\bc", "Command1!", "ab\bc", "ProgressBar1=3 Txt=40"},  // ended by the person
      {hacker, "aQ\r\n", "Command1!", "@q\r\n",
       "Text1='ABCDEFGHIJKLMNOPQRSTUVWXYZ\r\nabcdefghijklmnopqrstuvwxyz\r\n&8(>3[6#1?<7~%09  5+ ^M*/2\r\n"
       "@  )    !  4w     $   m\r\n        |   W'"},
      // The quick text is shown as it is typed, but by the bar only when that is ticked.
      {shift, "Az", "Text1=abc HScroll1=5", "Az", "Label4=5 Label2=FGHIJKLMNOPQRSTUVWXYZABCDE Text2=abc"},
      {shift, "Az", "Command1!", "Fe", "Text2=abc"},
      {shift, "Fe", "Command2! Check1!", "Az", "Text2=fgh"},
      {shift, "Az", "HScroll1=6", "Az", "Text2=ghi"},
      {shift, "Az", "Command2!", "Az", "Text1=abc Text2=uvw"},
      {shift, "Az", "Command1!", "Az", "Text2=ghi"},
      {shift, "Az", "Command2! Check1!", "Az", "Text2=uvw"},
      {shift, "", "Command4!", "", "Label4=26"},
      {shift, "", "Command4!", "", "Label4=0"},
      {cronfeld, "aa aa", "Command1!", "aa aa", "Text1=0"},
      {cronfeld, "aa aa", "Text1=012 Command1!", "bc cb", "Text1=12"},
      {cronfeld, "bc cb", "Command2! Check1! Text3=Zb", "aa aa", "Text2="},  // nothing as one types
      {cronfeld, "aa", "Command1!", "aa", "Text2=Ad"},
      {cronfeld, "aa", "Command2!", "aa", "Text2=Yz"},
      {cronfeld, "", "Command4!", "", "Text1=999999999999999"},
  };
  for (const auto& c : cases) {
    editor.text.SetText(c.text);
    editor.text.Select(0, editor.text.Size() / 2);  // required: the selection doesn't matter
    ExpectState(c.dialog, c.steps, c.state);
    EXPECT_EQ(editor.text.Text(), c.document) << c.steps;
  }
  EXPECT_EQ(platform.reseeds, 3);  // for a shift or a password, not for look-alikes
  EXPECT_EQ(Find<QProgressBar>(stream, "ProgressBar1")->maximum(), 4);
}

TEST_F(CipherWindowsTest, CaretStaysWhereTypingGoesOn) {
  auto* key = Find<QLineEdit>(stream, "Text1");
  // The 0 that stood for nothing goes, a 0 in front too, and what stands behind a sign that is no part of a number.
  const std::tuple<const char*, int, const char*, const char*> cases[] = {
      {"0", 1, "12ab3", "123|"}, {"12", 0, "0", "|12"}, {"123", 1, "x9,8", "198|"},
      {"-5", 2, "6", "-56|"},    {"1", 1, "\b", "0|"},  {"123456789012345", 3, "6", "123|456789012345"}};
  for (const auto& [text, caret, typed, shown] : cases) {
    key->setText(QLatin1String(text));
    key->setCursorPosition(caret);
    QTest::keyClicks(key, QLatin1String(typed));
    EXPECT_EQ(key->text().insert(key->cursorPosition(), u'|').toStdString(), shown) << text << " and " << typed;
  }
}

TEST_F(CipherWindowsTest, TheStreamCipherIsSafeFromWhatHappensMeanwhile) {
  Program program(platform);
  auto& dialog = program.Windows().Get<ZaKod>();
  const std::string plain(64000, 'a');
  std::string once;
  StreamCipher(0).Append(plain, once);
  const auto after = [&](const std::function<void()>& act) {
    program.Main().Box().Buffer().SetText(plain);
    bool handled = false;
    Inside([&] { handled = (act(), true); });
    Work(dialog, "Command1!");
    EXPECT_TRUE(handled);
    return program.Main().Box().Buffer().Text();
  };
  EXPECT_EQ(after([&] { Work(dialog, "Command1!"); }), once);
  EXPECT_EQ(after([&] { Find<QTabBar>(program.Main(), "FileTab")->setCurrentIndex(1); }), "");
  // A file that comes into the same tab, also one that holds the same text.
  platform.files = {{"/other.txt", "other"}, {"/same.txt", plain}};
  platform.opens = {"/other.txt", "/same.txt"};
  for (const std::string& text : {std::string("other"), plain})
    EXPECT_EQ(after([&] { Work(program.Main(), "mnu_open_st!"); }), text);
  platform.answers = {Answer::kYes, Answer::kYes};
  Inside([&] { EXPECT_EQ(after([&] { program.Main().close(); }), plain); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(CipherWindowsTest, ShiftRotatesTheSelection) {
  Program program(platform);
  TextBuffer& text = program.Main().Box().Buffer();
  text.SetText("xabcdx");
  platform.answers = {Answer::kOk};
  Work(program.Main(), "MnuSelTextPosun!");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Vyber text!\" \"Posun\"");
  const char* const cases[][3] = {
      {"", "xabcdx", "HScroll1=1 Label2=1 Text1=abcd Orig=abcd"},  // required: not rotated yet
      {"HScroll1=3 Command2!", "xabcdx", "Label2=3 Text1=dabc Orig=abcd"},
      {"HScroll1=9 HScroll1=1 Command1!", "xbcdax", "Label2=1 Text1=bcda"},
      {"HScroll1=9 Command1!", "xbcdax", "Label2=4 Text1=bcda"},
  };
  for (const auto& [steps, document, state] : cases) {
    text.Select(1, 5);
    InDialog<QDialog>([s = steps, shown = state](QDialog& dialog) {
      ExpectState(dialog, s, shown);
      dialog.close();
    });
    Work(program.Main(), "MnuSelTextPosun!");
    EXPECT_EQ(text.Text(), document) << steps;
  }
  EXPECT_EQ(text.SelStart(), 5u);
  EXPECT_FALSE(text.HasSelection());
}

struct RndSifraTest : CipherWindowsTest {
  RND_Sifra dialog{editor, nullptr};

  // What another dialog shows that has loaded the table.
  std::string Reloaded(const char* names) {
    platform.files.clear();
    platform.saves = platform.opens = {"/a.pvt"};
    Work(dialog, "Command4!");
    const RND_Sifra other(editor, nullptr);
    Work(other, "Command3!");
    return State(other, names);
  }
};

TEST_F(RndSifraTest, MakesATableAndGoesThereAndBack) {
  const char* buttons = "Command1 Command2 Command3 Command4 Command5 Command6 Command7 Command8 Command9";
  const QString off = QString::fromStdString(State(dialog, buttons));
  EXPECT_EQ(off.count(u'('), 5);
  editor.text.SetText(std::string("Příliš\r\nkůň!"_w));
  Work(dialog, "Text2='old note' HScroll1=40 Command2!");
  EXPECT_EQ(QString::fromStdString(State(dialog, buttons)), QString(off).remove(u'(').remove(u')'));
  ExpectState(dialog, "Command1!", "Label9=40 Text2= Text1='PRILIS\r\nKUN'");
  ExpectState(dialog, "Command5!", "Cnt=11");
  EXPECT_EQ(editor.text.Size(), 11u * 40);
  ExpectState(dialog, "Command1! Command6!", "Cnt=440");
  EXPECT_EQ(editor.text.Text(), "PRILIS\r\nKUN");
  ExpectState(dialog, "Text1= Command5!", "Cnt=0");
  EXPECT_EQ(editor.text.Text(), "");
  EXPECT_EQ(platform.reseeds, 3);       // deciphering draws nothing
  EXPECT_TRUE(platform.calls.empty());  // required: nor does it ask
}

TEST_F(RndSifraTest, MakesThePartsOfATableAnewAndKeepsItInAFile) {
  const char* all = "List1 List2 Text2 Label6";
  Work(dialog, "HScroll1=32 Command2! Text2='two\r\nlines'");
  const std::string codes = State(dialog, "List1"), letters = State(dialog, "List2");
  EXPECT_EQ(Reloaded("List1 List2 Text2 Command5"), State(dialog, "List1 List2 Text2 Command5"));
  EXPECT_EQ(Reloaded("HScroll1 Label9"), "HScroll1=8 Label9=8");  // required: the bar isn't touched
  EXPECT_NE(Reloaded("Label6"), State(dialog, "Label6"));         // required: only here all digits count
  Work(dialog, "HScroll1=9 Command9!");
  EXPECT_EQ(State(dialog, "List1"), codes);
  EXPECT_NE(State(dialog, "List2"), letters);
  EXPECT_EQ(Reloaded(all), State(dialog, all));
  const std::string new_letters = State(dialog, "List2");
  Work(dialog, "Command8!");
  EXPECT_TRUE(State(dialog, "List1").starts_with("List1=Hloubka: 9|A       "));
  EXPECT_EQ(State(dialog, "List2"), new_letters);
  EXPECT_EQ(Reloaded(all), State(dialog, all));
  EXPECT_EQ(platform.reseeds, 3);
}

TEST_F(RndSifraTest, ALoadThatFailsSaysSo) {
  const std::string message = "message 0 \"Nepodařilo se otevřít ...\" \"Open RND\"";
  CipherTable other;
  other.symbol_codes[0] = "\r\n\r\n";
  platform.files["/other"] = TableBytes(other);
  platform.opens = {std::nullopt, "/new.pvt", "/other"};
  platform.answers = {Answer::kOk, Answer::kOk, Answer::kOk};
  editor.text.SetText("keep");
  ExpectState(dialog, "Command3!", "List1= Command5=(Zašifruj)");  // the table stays
  EXPECT_EQ(platform.calls.back(), message);
  // The table is the empty one now, the buttons are as they were, and nothing falls over it.
  Work(dialog, "Command2! Command3!");
  EXPECT_TRUE(State(dialog, "List1").starts_with("List1=Hloubka: 0|A       |B"));
  ExpectState(dialog, "Text1=KEEP Command6!", "Command5=Zašifruj");
  ExpectState(dialog, "Command8!", "Label6='Koeficienty nelze spočítat (dělení nulou)'");
  EXPECT_EQ(editor.text.Text(), "keep");
  // Any file is taken as a table and keeps its rows low.
  Work(dialog, "Command3!");
  const auto* list = Find<QListWidget>(dialog, "List1");
  EXPECT_EQ(list->item(1)->text(), QStringLiteral("A       \r\n\r\n"));
  EXPECT_EQ(list->visualItemRect(list->item(1)).height(), list->visualItemRect(list->item(2)).height());
  Find<TextBox>(dialog, "Text2")->Buffer().SetText(std::string(70000, 'n'));
  EXPECT_EQ(Find<TextBox>(dialog, "Text2")->Buffer().Size(), kLongestField);
}

}  // namespace
}  // namespace pelmar
