#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <QTest>

#include "accessories/windows/color_dialog.h"
#include "platform/qt/controls/cell_grid.h"
#include "platform/qt/frames/outer_geometry.h"
#include "program/program.h"
#include "shell/windows/pos.h"
#include "support/controls.h"
#include "support/marked_text.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "support/whole_editor.h"
#include "text/codepage.h"
#include "texttools/windows/formatuj.h"
#include "texttools/windows/hledani.h"
#include "texttools/windows/visual.h"
#include "texttools/windows/vyber.h"
#include "texttools/windows/zamena.h"

namespace pelmar {
namespace {

struct TextWindowsTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer text;
  QRect match;  // where the document shows what was found
  std::function<QRect()> shown_match = [this] { return match; };
};

void Enter(const QWidget& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); }

TEST_F(TextWindowsTest, HledaniGoesOnByEnterAndMovesOffWhatItFound) {
  PutMarked(text, "|jedna dvě jedna");
  Hledani dialog(text, platform, shown_match, nullptr);
  dialog.Present();
  ExpectState(dialog, "", "Find=Text Command2='(&Další vyhledaný)' Rozlisovat=1 Label3=");
  Work(dialog, "Find=jedna");
  match = QRect(dialog.geometry().center() - QPoint(0, 90), QSize(30, 12));
  Enter(dialog);
  ExpectState(dialog, "",
              "Find=(jedna) Command1='(&Start hledání)' Rozlisovat=(1) Command2='&Další vyhledaný' History=(jedna) "
              "Label3=1 Label5=0 Text1='jedna dvě jedna'");
  EXPECT_EQ(Marked(text), "[jedna| dvě jedna");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.geometry().intersects(match); }));
  Enter(dialog);  // on Command2, though Command4 is the default button
  ExpectState(dialog, "", "Label3=2 Label5=10");
  platform.answers = {Answer::kOk};
  Enter(dialog);
  EXPECT_EQ(dialog.focusWidget(), Named(dialog, "Find"));  // for the next term
  ExpectState(dialog, "Find=Dvě Rozlisovat! Command1!",
              "Find=(DVĚ) Label5=6 Text1='JEDNA DVĚ JEDNA' History=(jedna|DVĚ)");
  ExpectState(dialog, "Command4! Find=x", "Command2='(&Další vyhledaný)' Rozlisovat=(0)");
  auto* history = Find<QListWidget>(dialog, "History");
  history->setFocus();                     // which makes the first entry current
  QTest::keyClick(history, Qt::Key_Down);  // the keyboard picks as the mouse does
  ExpectState(dialog, "", "Find=jedna History=>jedna|DVĚ");
  Work(dialog, "Command3!");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(TextWindowsTest, HledaniTakesALongSelectionOfSeveralLines) {
  const std::string lines = std::string(40'000, 'x') + "\r\ny";
  PutMarked(text, "x[" + lines + "|\r\n" + lines);
  Hledani dialog(text, platform, shown_match, nullptr);
  Work(dialog, "Command1! Command2!");
  EXPECT_EQ(text.SelText(), lines);
  EXPECT_EQ(text.SelEnd(), text.Size());
}

TEST_F(TextWindowsTest, ZamenaReplacesAndKeepsThePairs) {
  PutMarked(text, "|a\r\nb a\r\nb");
  Zamena dialog(text, platform, shown_match, nullptr);
  dialog.Present();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  auto* term = Find<TextBox>(dialog, "Find");
  EXPECT_EQ(Marked(term->Buffer()), "[Text|");  // ready to be typed over
  QTest::keyClick(term, Qt::Key_Tab);
  EXPECT_EQ(Marked(Find<TextBox>(dialog, "Chage")->Buffer()), "[Zaměň|");
  match = QRect(dialog.geometry().center() - QPoint(0, 90), QSize(30, 12));
  ExpectState(dialog, "Find='a\r\nb' Chage=c Command1!",
              "Find=(a\r\nb) Chage=(c) Command1=(&Start) Rozlisovat=(1) History=(a\r\nb) List1=(c) Command2=&Další "
              "Command5=&Zaměnit Command6='zaměnit &Vše' Label3=1 Label5= Text1='a\r\nb a\r\nb'");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.geometry().intersects(match); }));
  ExpectState(dialog, "Command2!", "Label3=2 Label5=");
  std::string shown;  // while the message is
  platform.on_message = [&] { shown = State(dialog, "Label3 Label5 Find"); };
  platform.answers = {Answer::kOk};
  Enter(dialog);  // still on Command5
  EXPECT_EQ(shown, "Label3=2 Label5=1 Find=(a\r\nb)");
  Enter(dialog);  // one too many doesn't replace all
  EXPECT_EQ(Marked(text), "a¶b c|");
  EXPECT_EQ(dialog.focusWidget(), term);
  ExpectState(dialog, "Find='a\r\nb' Command6!", "Command6='(zaměnit &Vše)' Rozlisovat=1 Label3= Label5=");
  EXPECT_EQ(Marked(text), "|c c");
  EXPECT_FALSE(text.CanUndo());  // required for a replaced text
  ExpectState(dialog, "Find=C Rozlisovat! Command1! Command4!", "Find=c Rozlisovat=(0) History=a\r\nb|C");
  ExpectState(dialog, "Find=x Chage=y List1=0", "Find=a\r\nb Chage=c History=>a\r\nb|C Command6='zaměnit &Vše'");
  ExpectState(dialog, "Find=x Chage=y History=1", "Find=C Chage=c List1=c|>c");
  Work(dialog, "Command3!");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(TextWindowsTest, CommandsOpenTheWindowsAndEscapeClosesThem) {
  platform.files["/share/pelmar.txt"] = "help";  // for a window that isn't looked at
  Program program(platform);
  QStringList opened;
  for (const QString& command :
       Words("mnuopen! Open! mnusave! Save! mnu_utiliti_dos_unix! mnudir! mnufind! Find! mnuchange! mnupresnvyb! "
             "mnumore! mnucode! mnu_encrypt_shift! Mnu_Encrypt_Confeld! mnu_rnd_encrypt! Mnu_Hack_cry! mnuASCII! "
             "mnuklavesnice! mnucalk! mnu_analysis! mnumorse!")) {
    Work(program.Main(), command.toUtf8());
    program.Windows().ForEach([&opened](QWidget& window) {
      if (!window.isVisible()) return;
      opened += window.objectName();
      QTest::keyClick(&window, Qt::Key_Escape);
      EXPECT_FALSE(window.isVisible()) << window.objectName().toStdString();
    });
  }
  Inside([&opened] {
    opened += QApplication::activeModalWidget()->objectName();
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  platform.answers = {Answer::kOk};
  Work(program.Main(), "mnu_format!");
  EXPECT_EQ(opened.join(u' ').toStdString(),
            "Otevři Otevři Ulož Ulož Dos_Unix_conv DirSetup Hledání Hledání Záměna Výběr Visual ZaKod ShiftKod Confeld "
            "RND_Sifra CHT kod Klavesnice Kalkul Analytic Morse Formatuj");
  Work(program.Main(), "mnuEditBold!");
  EXPECT_TRUE(Find<TextBox>(program.Main(), "Text1")->font().bold());
}

TEST_F(TextWindowsTest, VyberBeginsWithTheSelectionAtEachCommandAndSetsIt) {
  Program program(platform);
  TextBuffer& document = Find<TextBox>(program.Main(), "Text1")->Buffer();
  const std::pair<const char*, const char*> cases[] = {
      {"0[1|234", "Start=1 Delka=1 Label5=1"}, {"01[234|", "Start=2 Delka=3 Label5=234"},
      {"01|234", "Start=2 Delka=0 Label5="},   {"[01234|", "Start=0 Delka=5 Label5=01234"},
      {"01234|", "Start=5 Delka=0 Label5="},   {"01[2|34", "Start=2 Delka=1 Label5=2"}};
  for (const auto& [marked, state] : cases) {
    PutMarked(document, marked);
    Work(program.Main(), "mnupresnvyb!");  // which is open already from the second time on
    ExpectState(program.Windows().Get<Vyber>(), "", state);
    EXPECT_EQ(Marked(document), marked);
  }
  const auto& dialog = program.Windows().Get<Vyber>();
  ExpectState(dialog, "Delka=99", "Delka=3 Label2=3 Label5=234");
  ExpectState(dialog, "Start=4", "Delka=1 Label1=4 Label2=1 Label5=4");  // cut at the end
  EXPECT_EQ(Marked(document), "0123[4|");
}

TEST_F(TextWindowsTest, FormatujWorksOnTheRowsAndWritesThemBack) {
  const struct {
    std::string_view document;
    const char *steps, *state;
    std::string_view after;
    const char* end = "Command2!";
  } cases[] = {
      {"x[ab¶cde|x", "Hz=9", "List1=ab|cde Label2=2 Label4=2 Hz=2 Label7=2 Label8=0", "xab¶cde|x"},
      {"[ab¶cde|", "Hz=1 Text1=- Text1:\r", "List1=a-b|c-de Label2=2 Label4=3 Label7=1", "a-b¶c-de|"},
      {"[ab¶cde|", "Hk=1 Text2=č Text2:\r", "List1=ačb|cdče Label4=3 Label8=1", "ačb¶cdče|"},
      {"[ab¶cde|", "Text1=- Text2=+ Command3! Command4! Hk=9", "List1=-ab+|-cde+ Hk=4", "-ab+¶-cde+|"},
      {"[ab¶cde|", "Hz=1 Command6!", "List1=a|ce Label4=1", "a¶ce|"},
      {"[ab¶cde|", "Hk=1 Command5!", "List1=b|ce Label4=1", "b¶ce|"},
      // required: what is edited by hand isn't counted anew, and the row behind the last line is there
      {"[ab¶cd¶|", "Text3=nobody List1=1 Text3=x", "List1=ab|>x|d\r\n Label2=3 Label4=2", "ab¶x¶d¶|"},
      {"[ab¶cd¶|", "List1=2 Text3:z", "Text3=d\r\nz", "ab¶cd¶d¶z|"},
      // required: one character gives no row, and no rows take its place
      {"[a|", "Command3! Command4! Command5! Command6! Hz=9", "List1= Label2=0 Label4=0 Hz=0", "|"},
      {"a|b", "Hz=9 Hk=9", "List1= Label2=0 Label4=0 Hz=0 Hk=0", "a|b"},
      {"[ab|", "Text1=- Command3!", "List1=-ab", "[ab|", "Command1!"},
  };
  for (const auto& c : cases) {
    PutMarked(text, c.document);
    platform.answers = {Answer::kOk};
    Formatuj dialog(text, platform, nullptr);
    dialog.show();
    ExpectState(dialog, c.steps, c.state);
    EXPECT_TRUE(dialog.isVisible()) << c.steps;
    Work(dialog, c.end);
    EXPECT_EQ(Marked(text), c.after) << c.steps;
    EXPECT_FALSE(dialog.isVisible()) << c.steps;
  }
  EXPECT_EQ(platform.calls, std::vector<std::string>{"message 0 \"Vyber text\" \"Fomátování\""});
}

TEST(ColorDialogWindow, PicksAndRemembers) {
  ScriptedPlatform platform;
  ColorDialog dialog(platform, nullptr);
  Inside([&] { ExpectState(dialog, "Command2!", "Label11=#0A1400 Picture13=#0a1400 Picture3=#0a1400"); });
  EXPECT_EQ(dialog.PickColor(Rgb(10, 20, 0)), 0);  // required: Storno gives the run's last colour, black at first
  Inside([&] {
    ExpectState(dialog, "VScroll10=1 VScroll11=2 VScroll12=3",
                "Label11=#010203 Label1=1 Label2=2 Label3=3 Picture3=#010203");
    ExpectState(dialog, "Picture9!", "Label11=#FFFF00 VScroll11=255 Label2=255");
    ExpectState(dialog, "Command6! Command7! Command8! Command3! Command11!", "Label11=#2CFF2C");
    ExpectState(dialog, "Command4!", "Label11=#727272");
    ExpectState(dialog, "Command10!", "Label11=#FFFFFF");
    ExpectState(dialog, "Command5! VScroll10=9 Command9!", "Label11=#003777");
    ExpectState(dialog, "Picture9! Command6! Command1!", "List1=230,230,000");
  });
  EXPECT_EQ(dialog.PickColor(0), Rgb(230, 230, 0));
  Inside([&] {
    ExpectState(dialog, "List1=0", "Label11=#E60000");  // required: green is zeroed
    dialog.close();
  });
  EXPECT_EQ(dialog.PickColor(5), Rgb(230, 230, 0));
}

TEST(PosWindow, PlacesTheMainWindow) {
  PlainView view;
  Pos pos(view, nullptr);
  pos.Present();
  auto* grid = Find<CellGrid>(pos, "Picture1");
  QTest::mouseMove(grid, QPoint(grid->width() - 4, 4));
  ExpectState(pos, "", "Label1='Vpravo nahoře'");
  QTest::mousePress(grid, Qt::LeftButton, {}, QPoint(4, 4));
  QTest::mouseRelease(grid, Qt::LeftButton, {}, QPoint(-40, 4));  // drawn off the grid
  EXPECT_TRUE(view.calls.empty());
  QTest::mouseClick(grid, Qt::LeftButton, {}, QPoint(4, grid->height() - 4));
  const TwipsRect screen = ScreenTwips(pos);
  EXPECT_EQ(view.calls, std::vector<std::string>{"normal"});
  EXPECT_EQ(view.place, (TwipsRect{0, screen.height / 2, screen.width / 2, screen.height / 2}));
  QTest::keyClick(grid, Qt::Key_Up);
  QTest::keyClick(grid, Qt::Key_Right);
  ExpectState(pos, "", "Label1=Maximalizace");
  QTest::keyClick(grid, Qt::Key_Space);
  EXPECT_EQ(view.place, (TwipsRect{0, 0, screen.width, screen.height}));
}

TEST(VisualWindow, ShowsTheLookAndAppliesThePreview) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  PlainView view;
  view.look = {"Courier New", Rgb(10, 0, 0), Rgb(200, 200, 200), 12, true, false};
  editor.settings.AutosnapDistance = 300;
  editor.settings.LineCounting = true;
  bool pos_shown = false;
  Visual visual(view, editor.settings, {[](Color color) { return color + 1; }, [&] { pos_shown = true; }}, nullptr);
  visual.Present();
  ExpectState(visual, "",
              "Check2=1 Check3=0 Check1=1 Option1=0 Option2=1 Option3=0 Combo1=12 VScroll7=300 Label12=300");
  // The preview's look, that of the text box, and the two settings.
  const auto told = [&] {
    const auto* preview = Find<TextBox>(visual, "Label1");
    const QFont font = preview->font();
    const EditorLook look{font.family().toStdString(),
                          ColorFromQt(preview->TextColor()),
                          ColorFromQt(preview->BackgroundColor()),
                          font.pointSizeF(),
                          font.bold(),
                          font.italic()};
    return Told(look) + " / " + Told(view.look) + ' ' + std::to_string(editor.settings.AutosnapDistance) +
           (editor.settings.LineCounting ? " counts" : "");
  };
  const std::string loaded = " / Courier New 12 bold #0A0000 #C8C8C8 300 counts";
  const std::string applied = " / Terminal 8 italic #0B0000 #C9C8C8 ";
  const std::pair<const char*, std::string> steps[] = {
      {"", "Courier New 12 bold #0A0000 #C8C8C8" + loaded},
      {"Option3! Check3! Check2!", "Terminal 12 italic #0A0000 #C8C8C8" + loaded},
      {"Command8! Command9! Combo1=11", "Terminal 11 italic #0B0000 #C9C8C8" + loaded},
      {"Command1!", "Terminal 11 italic #0B0000 #C9C8C8" + applied + "300 counts"},  // a size outside the six
      {"Check2! Command3!", "Courier New 8 #000000 #FFFFFF" + applied + "300 counts"},
      {"VScroll7=500", "Courier New 8 #000000 #FFFFFF" + applied + "300 counts"},
      {"Command5! Check1!", "Courier New 8 #000000 #FFFFFF" + applied + "500"},
      {"Command6!", "Courier New 8 #000000 #FFFFFF" + applied + "500"},  // required: the slider alone
      {"Option1! Command4!", "MS Sans Serif 8 #000000 #FFFFFF / Courier New 8 #C2C2C2 #000000 500"},
  };
  for (const auto& [step, state] : steps) {
    Work(visual, step);
    EXPECT_EQ(told(), state) << step;
  }
  ExpectState(visual, "Command7! Command2!", "VScroll7=240 Label12=240 Check1=0 Combo1=8");
  EXPECT_TRUE(pos_shown && !visual.isVisible());
  for (const int size : {10, 8}) {
    view.look.font_size = size;
    visual.hide();
    visual.Present();
    EXPECT_EQ(Find<TextBox>(visual, "Label1")->font().pointSize(), size);
  }
  ASSERT_TRUE(QTest::qWaitForWindowActive(&visual));
  auto* box = Find<QComboBox>(visual, "Combo1");
  box->setFocus();  // or nothing would be completed
  box->lineEdit()->selectAll();
  ExpectState(visual, "Combo1:2", "Combo1=2");  // as it is typed
}

}  // namespace
}  // namespace pelmar
