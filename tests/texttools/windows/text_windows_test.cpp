#include <gtest/gtest.h>

#include "accessories/windows/color_dialog.h"
#include "shell/windows/pos.h"
#include "support/plain_view.h"
#include "support/program_test.h"
#include "texttools/appearance.h"
#include "texttools/windows/formatuj.h"

namespace pelmar {
namespace {

void Enter(const QWidget& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); }

// The main window is visible, since a search selects its match there.
struct SearchTest : ProgramTest {
  SearchTest() { main.show(); }
  QWidget& OpenFor(const char* command, const char* marked) {
    PutMarked(text, marked);
    return Open(command);
  }
};

TEST_F(SearchTest, AStartAllowsOnlyTheNextMatch) {
  const auto& dialog = OpenFor("mnufind", "|jedna dvě jedna");
  ExpectState(dialog, "", "Find=Text Command2='(&Další vyhledaný)' Rozlisovat=1 Label3=");
  ExpectState(dialog, "Find=jedna Command1!",
              "Find=(jedna) Command1='(&Start hledání)' Rozlisovat=(1) Command2='&Další vyhledaný' History=(jedna) "
              "Label3=1 Label5=0 Text1='jedna dvě jedna'");
  EXPECT_EQ(Marked(text), "[jedna| dvě jedna");
  EXPECT_EQ(dialog.focusWidget(), Named(dialog, "Command2"));
}

TEST_F(SearchTest, TheDialogMovesOffTheMatch) {
  QWidget& dialog = OpenFor("mnufind", "|jedna");
  dialog.move(main.pos());
  const QPoint match = main.Box().viewport()->mapToGlobal(main.Box().CharRect(0).center());
  ASSERT_TRUE(dialog.frameGeometry().contains(match));
  Work(dialog, "Find=jedna Command1!");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.frameGeometry().contains(match); })) << dialog.y();
}

TEST_F(SearchTest, AChosenRowOfTheHistoryBecomesTheTerm) {
  ExpectState(OpenFor("mnufind", "|jedna dvě"),
              "Rozlisovat! Find=jedna Command1! Command4! Find=dvě Command1! Command4! Find=x History=0",
              "Find=JEDNA History=>JEDNA|DVĚ");
}

TEST_F(SearchTest, ALongSelectionOfSeveralLinesIsTheTerm) {
  const std::string lines = std::string(40'000, 'x') + "\r\ny";
  Work(OpenFor("mnufind", ("x[" + lines + "|\r\n" + lines).c_str()), "Command1! Command2!");
  EXPECT_EQ(text.SelText(), lines);
  EXPECT_EQ(text.SelEnd(), text.Size());
}

struct ZamenaTest : SearchTest {
  QWidget& dialog = OpenFor("mnuchange", "|a¶b a¶b");
};

TEST_F(ZamenaTest, AStartAllowsOnlyNextAndTheReplacements) {
  ExpectState(dialog, "", "Find=Text Chage=Zaměň");
  ExpectState(dialog, "Find='a\r\nb' Chage=c Command1!",
              "Find='(a\r\nb)' Chage=(c) Command1=(&Start) Rozlisovat=(1) History='(a\r\nb)' List1=(c) "
              "Command2=&Další Command5=&Zaměnit Command6='zaměnit &Vše' Label3=1 Label5= Text1='a\r\nb a\r\nb'");
  ExpectState(dialog, "Command2!", "Label3=2 Label5=");
}

TEST_F(ZamenaTest, EnterReplacesMatchByMatchButNeverAll) {
  ExpectState(dialog, "Rozlisovat! Find=B Chage=c Command1!", "Label3=1");
  Enter(dialog);
  platform.on_message = [&] { ExpectState(dialog, "", "Label3=2 Label5=2 Find=(B)"); };
  platform.answers = {Answer::kOk};
  Enter(dialog);
  EXPECT_TRUE(platform.answers.empty());
  Enter(dialog);  // one too many
  EXPECT_EQ(Marked(text), "a¶c a¶c|");
  EXPECT_EQ(dialog.focusWidget(), Named(dialog, "Find"));
}

TEST_F(ZamenaTest, AllIsReplacedAtOnce) {
  ExpectState(dialog, "Find='a\r\nb' Chage=c Command1! Command6!",
              "Command6='(zaměnit &Vše)' Rozlisovat=(1) Label3= Label5=");
  EXPECT_EQ(Marked(text), "|c c");
  EXPECT_FALSE(text.CanUndo());  // required for a replaced text
}

TEST_F(ZamenaTest, ARowOfEitherListPicksTheWholePair) {
  Work(dialog, "Find=a Chage=c Command1! Command4! Find=b Chage=d Command1! Command4!");
  ExpectState(dialog, "Find=x Chage=y List1=0", "Find=a Chage=c History=>a|b List1=>c|d Command6='zaměnit &Vše'");
  ExpectState(dialog, "Find=x Chage=y History=1", "Find=b Chage=d History=a|>b List1=c|>d");
}

TEST_F(ProgramTest, VyberShowsTheSelectionAndSetsItWithinTheText) {
  PutMarked(text, "[01|234");
  const QWidget& dialog = Open("mnupresnvyb");
  ExpectState(dialog, "", "Start=0 Delka=2 Label5=01");
  PutMarked(text, "012345[6|7");
  editor.commands.Run("mnupresnvyb");  // while the window is open
  ExpectState(dialog, "", "Start=6 Delka=1 Label5=6");
  EXPECT_EQ(Marked(text), "012345[6|7");
  ExpectState(dialog, "Delka=99", "Delka=2 Label2=2 Label5=67");
  ExpectState(dialog, "Start=7", "Delka=1 Label1=7 Label2=1 Label5=7");
  EXPECT_EQ(Marked(text), "0123456[7|");
}

TEST_F(ProgramTest, TheColumnFormatterWorksOnTheRowsAndWritesThemBack) {
  const struct {
    const char *document, *steps, *state, *after;
  } cases[] = {
      {"x[ab¶cde|x", "Hz=9", "List1=ab|cde Label2=2 Label4=2 Hz=2 Label7=2 Label8=0", "xab¶cde|x"},
      {"[ab¶cde|", "Hz=1 Text1=- Text1:\r Text2=+ Text2:\r", "List1=a-b+|c-de+ Label2=2 Label4=4 Label7=1",
       "a-b+¶c-de+|"},
      {"[ab¶cde|", "Text1=- Text2=+ Command3! Command4! Hk=9", "List1=-ab+|-cde+ Hk=4 Label8=4", "-ab+¶-cde+|"},
      {"[ab¶cde|", "Hz=1 Command6!", "List1=a|ce Label4=1", "a¶ce|"},
      {"[ab¶cde|", "Hk=1 Command5!", "List1=b|ce Label4=1", "b¶ce|"},
      // required: a row edited by hand isn't measured again
      {"[ab¶cd¶|", "Text3=unused List1=1 Text3=x", "List1='ab|>x|d\r\n' Label2=3 Label4=2", "ab¶x¶d¶|"},
      // required: one character gives no row, so an empty text replaces it
      {"[a|", "Command3! Command5! Hz=9", "List1= Label2=0 Label4=0 Hz=0", "|"},
  };
  for (const auto& c : cases) {
    PutMarked(text, c.document);
    Formatuj dialog(text, platform, nullptr);
    dialog.show();
    ExpectState(dialog, c.steps, c.state);
    Work(dialog, "Command2!");
    EXPECT_EQ(Marked(text), c.after) << c.steps;
    EXPECT_FALSE(dialog.isVisible()) << c.steps;
  }
  platform.answers = {Answer::kOk};
  const Formatuj dialog(text, platform, nullptr);  // without a selection
  ExpectState(dialog, "Hz=9 Hk=9", "List1= Label2=0 Label4=0 Hz=0 Hk=0");
  EXPECT_EQ(platform.TakeCallsInOneLine(), "message 0 \"Vyber text\" \"Fomátování\"; ");
}

struct ColorDialogTest : ProgramTest {
  ColorDialog dialog{platform, nullptr};

  // Asks for a colour, runs the steps, expects the state and closes the dialog. Returns the picked colour.
  Color Pick(Color initial, const char* steps, const char* state) {
    Inside([&, steps, state] {
      ExpectState(dialog, steps, state);
      dialog.close();
    });
    return dialog.PickColor(initial);
  }
};

TEST_F(ColorDialogTest, StornoReturnsTheLastAcceptedColourAtFirstBlack) {  // required
  EXPECT_EQ(Pick(Rgb(10, 20, 0), "Command2!", "Label11=#0A1400 Picture13=#0a1400 Picture3=#0a1400"), 0);
  Pick(0, "Picture9! Command1!", "List1=255,255,000 Label11=#FFFF00 VScroll11=255 Label2=255");
  EXPECT_EQ(Pick(5, "Command2!", ""), Rgb(255, 255, 0));
}

TEST_F(ColorDialogTest, BarsAndButtonsChangeTheColour) {
  Pick(0, "VScroll10=1 VScroll11=2 VScroll12=3", "Label11=#010203 Label1=1 Label2=2 Label3=3 Picture3=#010203");
  Pick(Rgb(255, 255, 0), "Command6! Command7! Command8! Command3! Command11!", "Label11=#2CFF2C");
  Pick(Rgb(44, 255, 44), "Command4!", "Label11=#727272");
  Pick(Rgb(114, 114, 114), "Command10!", "Label11=#FFFFFF");
  Pick(Rgb(255, 255, 255), "Command5! VScroll10=9 Command9!", "Label11=#003777");
}

TEST_F(ColorDialogTest, AColourOfTheHistoryLosesItsGreen) {  // required
  Pick(0, "VScroll10=230 VScroll11=230 Command1!", "List1=230,230,000");
  Pick(0, "List1=0", "Label11=#E60000");
}

TEST(PosWindow, NamesTheCellUnderThePointerAndMovesTheEditorThereAtAClick) {
  PlainView view;
  Pos pos(view, nullptr);
  pos.Present();
  QWidget* grid = Named(pos, "Picture1");
  QTest::mouseMove(grid, QPoint(grid->width() - 4, 4));
  ExpectState(pos, "", "Label1='Vpravo nahoře'");
  QTest::mouseClick(grid, Qt::LeftButton, {}, QPoint(grid->width() - 4, 4));
  EXPECT_EQ(view.calls, std::vector<std::string>{"normal"});
  EXPECT_TRUE(view.place.left > 0 && view.place.top == 0 && view.place.height > 0);
  QTest::mouseMove(&pos, QPoint(2, 2));
  ExpectState(pos, "", "Label1=");
}

struct VisualTest : ProgramTest {
  VisualTest() {
    ApplyLook(main, {"Courier New", Rgb(10, 0, 0), Rgb(200, 200, 200), 12, true, true});
    editor.settings.AutosnapDistance = 300;
    editor.settings.LineCounting = true;
    services.pick_color = [](Color color) { return color + 1; };
  }
  // Runs the steps and compares the look of the preview.
  void ExpectPreview(const QWidget& visual, const char* steps, const char* look) {
    Work(visual, steps);
    const auto* preview = Find<TextBox>(visual, "Label1");
    const QFont font = preview->font();
    EXPECT_EQ(Described({font.family().toStdString(), ColorFromQt(preview->TextColor()),
                         ColorFromQt(preview->BackgroundColor()), font.pointSizeF(), font.bold(), font.italic()}),
              look)
        << steps;
  }
};

TEST_F(VisualTest, ThePreviewChangesAtOnceAndTheEditorAfterOkOrDos) {
  const QWidget& visual = Open("mnumore");
  ExpectState(visual, "", "Check2=1 Check3=1 Check1=1 Option2=1 Combo1=12 VScroll7=300 Label12=300");
  ExpectPreview(visual, "", "Courier New 12 bold italic #0A0000 #C8C8C8");
  ExpectPreview(visual, "Option3! Check2!", "Terminal 12 italic #0A0000 #C8C8C8");
  ExpectPreview(visual, "Command8! Command9! Combo1=011", "Terminal 11 italic #0B0000 #C9C8C8");
  ExpectState(visual, "", "Combo1=11");
  EXPECT_EQ(Described(main.Look()), "Courier New 12 bold italic #0A0000 #C8C8C8");
  ExpectState(visual, "Label1:\r", "Combo1=8");
  EXPECT_EQ(Described(main.Look()), "Terminal 8 italic #0B0000 #C9C8C8");  // 11 isn't one of the six sizes
  ExpectPreview(visual, "Check2! Combo1=11 Command3!", "Courier New 8 #000000 #FFFFFF");
  ExpectPreview(visual, "Command4!", "Courier New 8 #000000 #FFFFFF");
  ExpectPreview(Open("mnumore"), "", "Courier New 8 #C2C2C2 #000000");  // the button Dos changes the editor at once
}

TEST_F(VisualTest, TheDistanceIsStoredByItsButtonAndLineCountingAtOnce) {
  const QWidget& visual = Open("mnumore");
  ExpectState(visual, "VScroll7=500", "Label12=500");
  EXPECT_EQ(editor.settings.AutosnapDistance, 300);
  Work(visual, "Command5! Check1!");
  EXPECT_EQ(editor.settings.AutosnapDistance, 500);
  EXPECT_FALSE(editor.settings.LineCounting);
  ExpectState(visual, "Command6!", "VScroll7=240");
  EXPECT_EQ(editor.settings.AutosnapDistance, 500);  // required: the button resets only the slider
}

}  // namespace
}  // namespace pelmar
