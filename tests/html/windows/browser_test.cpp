#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include "html/windows/activity_picture.h"
#include "html/windows/browser_module.h"
#include "html/windows/frm_browser.h"
#include "html/windows/web_address.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

// A view that loads nothing by itself: the test says when it is busy and when it has finished.
class ScriptedView : public WebView {
 public:
  ScriptedView(QStringList& asked, QWidget* parent) : calls(asked), widget_(std::make_unique<QWidget>(parent)) {
    widget_->setFocusPolicy(Qt::StrongFocus);
  }

  QStringList& calls;
  bool busy = false;
  QString name;
  QUrl address;

  void Finish(const QString& new_name) {
    busy = false;
    name = new_name;
    on_finished();
  }

  QWidget* Widget() override { return widget_.get(); }
  void Load(const QUrl& url) override {
    calls += QStringLiteral("load ") + url.toString(QUrl::FullyEncoded);
    address = url;
    busy = true;
  }
  void Back() override { calls += QStringLiteral("back"); }
  void Forward() override { calls += QStringLiteral("forward"); }
  void Refresh() override { calls += QStringLiteral("refresh"); }
  void Stop() override { calls += QStringLiteral("stop"); }
  void EndIfStuck() override { calls += QStringLiteral("end if stuck"); }
  void LoadFromNet() override { calls += QStringLiteral("load from net"); }
  [[nodiscard]] bool Busy() const override { return busy; }
  [[nodiscard]] QString LocationName() const override { return name; }
  [[nodiscard]] QUrl LocationAddress() const override { return address; }

 private:
  std::unique_ptr<QWidget> widget_;
};

class ScriptedMaker : public WebViewMaker {
 public:
  QStringList calls;
  ScriptedView* view = nullptr;

  std::unique_ptr<WebView> Make(QWidget* parent) override {
    auto made = std::make_unique<ScriptedView>(calls, parent);
    view = made.get();
    return made;
  }
};

struct BrowserTest : testing::Test {
  ScriptedPlatform platform;
  ScriptedMaker maker;
  std::unique_ptr<FrmBrowser> window;
  int ended = 0;

  void Make(bool alone = false) {
    window = std::make_unique<FrmBrowser>(maker, platform, alone ? [this] { ++ended; } : std::function<void()>());
  }
  template <class Type>
  Type& Find(const char* name) {
    return *window->findChild<Type*>(QLatin1String(name));
  }
  QComboBox& Address() { return Find<QComboBox>("cboAddress"); }
  QTimer& Timer() { return Find<QTimer>("timTimer"); }
  QString Panel(int number) { return Find<QLabel>(qPrintable(QStringLiteral("Panel%1").arg(number))).text(); }
  void Press(const char* key) { Find<QAction>(key).trigger(); }
  QStringList List() {
    QStringList rows;
    for (int row = 0; row < Address().count(); ++row) rows += Address().itemText(row);
    return rows;
  }
  QStringList TakeCalls() { return std::exchange(maker.calls, {}); }
};

TEST_F(BrowserTest, ShowsAFile) {
  Make();
  EXPECT_EQ(window->objectName(), QStringLiteral("frmBrowser"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("HTML Testovací  browser"));
  EXPECT_EQ(window->property("Tag").toString(), QStringLiteral("_AUTOSNAP"));
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Timer().interval(), 5);
  EXPECT_FALSE(Timer().isActive());
  window->ShowInBrowser("");
  EXPECT_TRUE(maker.calls.isEmpty());
  EXPECT_FALSE(window->isVisible());

  window->ShowInBrowser("/home/jan/moje stránka.html");
  EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("load file:///home/jan/moje%20str%C3%A1nka.html")});
  EXPECT_EQ(Address().currentText(), QStringLiteral("file:///home/jan/moje stránka.html"));
  EXPECT_EQ(List(), QStringList{QStringLiteral("file:///home/jan/moje stránka.html")});
  EXPECT_TRUE(Timer().isActive());
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(window->isModal());
}

TEST_F(BrowserTest, TheTimerRunsWhileThePageLoads) {
  Make();
  window->ShowInBrowser("/a.html");
  auto& picture = Find<ActivityPicture>("Picture1");
  std::vector<int> frames;
  for (int tick = 0; tick < 9; ++tick) {
    Q_EMIT Timer().timeout({});
    frames.push_back(picture.Frame());
  }
  EXPECT_EQ(frames, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 0, 1}));
  EXPECT_EQ(Panel(1), QStringLiteral("Busy"));
  EXPECT_TRUE(Timer().isActive());
  maker.view->busy = false;
  maker.view->name = QStringLiteral("Stránka [*]");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !Timer().isActive(); }, 2000));
  EXPECT_EQ(Panel(1), QStringLiteral("Idle"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("HTML testovací browser (Stránka [*][*])"));
  EXPECT_EQ(picture.Frame(), 1);
}

TEST_F(BrowserTest, TellsTheProgressAndTheTitle) {
  Make();
  const struct {
    qint64 progress, maximum;
    const char* text;
  } cases[] = {{70, 100, "70%"}, {29, 100, "29%"}, {1, 3, "33,3333333333333%"}, {5, 0, ""}, {0, 7, "0%"},
               {1, 8, "12,5%"},  {3, -1, ""},      {100, 100, "100%"}};
  for (const auto& c : cases) {
    maker.view->on_progress(c.progress, c.maximum);
    EXPECT_EQ(Panel(2), QLatin1String(c.text)) << c.progress << '/' << c.maximum;
  }
  maker.view->name = QStringLiteral("Nový název");
  maker.view->on_change();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("HTML testovací browser (Nový název)"));
  EXPECT_FALSE(Timer().isActive());
  // A link in the page loads too.
  maker.view->busy = true;
  maker.view->on_change();
  EXPECT_TRUE(Timer().isActive());
}

TEST_F(BrowserTest, APageStandsOnceInTheListAndAtItsTop) {
  const TempFolder folder;
  Make();
  const QString a = QStringLiteral("file://") + QString::fromStdString(folder.Put("a b#č.html", "")),
                b = QStringLiteral("file:///b.html");
  window->ShowInBrowser(folder.File("a b#č.html"));
  EXPECT_EQ(maker.view->address, QUrl::fromLocalFile(QString::fromStdString(folder.File("a b#č.html"))));
  maker.view->Finish(QStringLiteral("A"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("HTML testovací browser (A)"));
  window->ShowInBrowser("/b.html");
  EXPECT_EQ(List(), (QStringList{a, b}));
  maker.view->Finish(QStringLiteral("B"));
  EXPECT_EQ(List(), (QStringList{b, a}));
  window->ShowInBrowser(folder.File("a b#č.html"));
  EXPECT_EQ(List(), (QStringList{b, a, a}));
  maker.view->Finish(QStringLiteral("A"));
  EXPECT_EQ(List(), (QStringList{a, b}));
  EXPECT_EQ(Address().currentIndex(), 0);
  EXPECT_EQ(Address().currentText(), a);
  EXPECT_FALSE(window->DontNavigateNow);
  // What the program changes itself starts nothing.
  EXPECT_EQ(TakeCalls().size(), 3);
}

TEST_F(BrowserTest, AddressesAreLoadedByEnterAndByChoice) {
  Make();
  window->ShowInBrowser("/a.html");
  maker.view->Finish({});
  window->ShowInBrowser("/b.html");
  maker.view->Finish({});
  window->activateWindow();
  TakeCalls();
  QLineEdit* line = Address().lineEdit();
  line->setText(QStringLiteral("www.priklad.cz"));
  QTest::keyClick(&Address(), Qt::Key_Return);
  EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("load http://www.priklad.cz")});
  EXPECT_EQ(Address().count(), 2);  // it joins the list when it is there
  maker.view->Finish({});
  EXPECT_EQ(List().first(), QStringLiteral("http://www.priklad.cz"));
  // A page that comes while another address is typed leaves it alone.
  line->clear();
  QTest::keyClicks(&Address(), QStringLiteral("x.cz"));
  maker.view->Finish({});
  EXPECT_EQ(Address().currentText(), QStringLiteral("x.cz"));
  EXPECT_EQ(Address().currentIndex(), 0);
  QTest::keyClick(&Address(), Qt::Key_Return);
  EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("load http://x.cz")});
  maker.view->Finish({});
  EXPECT_EQ(Address().currentText(), QStringLiteral("http://x.cz"));
  // The text of another entry, typed: once, by Enter, and not by leaving the field.
  line->setText(QStringLiteral("file:///a.html"));
  QTest::keyClick(&Address(), Qt::Key_Enter);
  EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("load file:///a.html")});
  line->setText(QStringLiteral("file:///b.html"));
  Q_EMIT line->editingFinished();
  EXPECT_TRUE(maker.calls.isEmpty());

  Address().setCurrentIndex(2);
  EXPECT_TRUE(maker.calls.isEmpty());
  QTest::keyClick(&Address(), Qt::Key_Down);
  EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("load file:///a.html")});
  RollWheel(Address(), {}, {0, 120});
  EXPECT_TRUE(maker.calls.isEmpty());
  window->DontNavigateNow = true;
  Q_EMIT Address().activated(0);
  EXPECT_TRUE(maker.calls.isEmpty());
}

TEST_F(BrowserTest, AddressesOfTheEngineAreRefused) {
  Make();
  for (const char* refused :
       {"chrome://crash", "CHROME://gpucrash", "about:crash", "about:", "about:blank2", "qrc:/x",
        "view-source:http://x.cz", "javascript:alert(1)", "blob:x", "ftp://x.cz/", "mailto:a@x.cz"}) {
    Address().lineEdit()->setText(QLatin1String(refused));
    platform.answers = {Answer::kOk};
    QTest::keyClick(&Address(), Qt::Key_Return);
    EXPECT_TRUE(maker.calls.isEmpty()) << refused;
    EXPECT_TRUE(platform.calls.back().starts_with("message 64 \"Takovou adresu interní browser neotvírá:\r\n" +
                                                  std::string(refused)))
        << platform.calls.back();
    EXPECT_FALSE(Timer().isActive());
  }
  for (const char* taken : {"https://x.cz/", "data:text/html,a", "about:blank", "file:///a.html"}) {
    Address().lineEdit()->setText(QLatin1String(taken));
    QTest::keyClick(&Address(), Qt::Key_Return);
    EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("load ") + QLatin1String(taken)});
  }
}

TEST_F(BrowserTest, OffersWhatLiesOnTheNet) {
  Make();
  window->ShowInBrowser("/a.html");
  EXPECT_FALSE(Find<QWidget>("netLine").isVisible());
  maker.view->on_withheld(true);
  EXPECT_TRUE(Find<QWidget>("netLine").isVisible());
  TakeCalls();
  Find<QPushButton>("LoadNet").click();
  EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("load from net")});
  maker.view->on_withheld(false);
  EXPECT_FALSE(Find<QWidget>("netLine").isVisible());
}

TEST_F(BrowserTest, SaysThatAPageIsInUtf8) {
  const TempFolder folder;
  Make();
  const struct {
    const char* page;
    bool told;
  } cases[] = {{"<P>k\xC5\xAF\xC5\x88", true},
               {"<P>k\xF9\xF2", false},
               {"<P>kun", false},
               {"\xEF\xBB\xBFk\xC5\xAF\xC5\x88", false},
               {"<META Charset=utf-8>k\xC5\xAF\xC5\x88", false}};
  for (const auto& c : cases) {
    window->ShowInBrowser(folder.Put("a.html", c.page));
    maker.view->Finish({});
    EXPECT_EQ(Panel(3).contains(QStringLiteral("UTF-8")), c.told) << c.page;
  }
}

TEST_F(BrowserTest, TheToolBarStartsTheTimerAndActs) {
  Make();
  QStringList keys;
  for (const QAction* action : Find<QToolBar>("tbToolBar").actions())
    keys += action->isSeparator() ? QStringLiteral("|") : action->objectName();
  EXPECT_EQ(keys.join(u' '), QStringLiteral("Back Forward Stop Refresh | Open | Close"));
  for (const char* key : {"Back", "Forward", "Refresh"}) {
    Timer().stop();
    Press(key);
    EXPECT_TRUE(Timer().isActive()) << key;
    EXPECT_EQ(TakeCalls(), QStringList{QString::fromLatin1(key).toLower()});
  }
  maker.view->name = QStringLiteral("Půl");
  Press("Stop");
  EXPECT_FALSE(Timer().isActive());
  EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("stop")});
  EXPECT_EQ(window->windowTitle(), QStringLiteral("HTML testovací browser (Půl)"));
}

TEST_F(BrowserTest, OpenLoadsTheChosenFile) {
  Make();
  platform.opens = {std::nullopt, "/home/jan/c.htm"};
  Press("Open");
  EXPECT_EQ(platform.calls.back(), "open \"Všechno (*.*)|*.*|htm (*.htm)|*.htm|html (*.html)|*.html\" 1");
  EXPECT_TRUE(maker.calls.isEmpty());
  EXPECT_TRUE(List().isEmpty());
  Press("Open");
  EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("load file:///home/jan/c.htm")});
  EXPECT_EQ(List(), QStringList{QStringLiteral("file:///home/jan/c.htm")});
  EXPECT_EQ(Address().currentText(), QStringLiteral("file:///home/jan/c.htm"));
}

TEST_F(BrowserTest, ClosingHidesAndKeepsTheHistory) {
  Make();
  EXPECT_EQ(Find<QAction>("Close").toolTip(), QStringLiteral("Zavřít okno"));
  window->ShowInBrowser("/a.html");
  Press("Close");
  EXPECT_FALSE(window->isVisible());
  window->Present();
  EXPECT_TRUE(window->close());
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(List().size(), 1);
  EXPECT_EQ(TakeCalls().mid(1), (QStringList{QStringLiteral("end if stuck"), QStringLiteral("end if stuck")}));
  EXPECT_TRUE(platform.calls.empty());
}

TEST_F(BrowserTest, AloneItStartsWithItsPageAndAsksAtTheEnd) {
  Make(true);
  EXPECT_EQ(Find<QAction>("Close").toolTip(), QStringLiteral("Ukončit program"));
  EXPECT_TRUE(window->StartingAddress.startsWith(QStringLiteral("https://")));
  window->StartingAddress = QStringLiteral("https://www.priklad.cz/");
  window->ShowAlone();
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(Timer().isActive());
  EXPECT_EQ(List(), QStringList{QStringLiteral("https://www.priklad.cz/")});
  EXPECT_EQ(TakeCalls(), QStringList{QStringLiteral("load https://www.priklad.cz/")});

  platform.answers = {Answer::kNo, Answer::kNo, Answer::kYes};
  EXPECT_FALSE(window->close());
  EXPECT_EQ(platform.calls.back(), "message 276 \"OPRAVDU UKONČIT Browser (Pelmar VEX) ?\" \"Konec\"");
  EXPECT_TRUE(window->isVisible());
  Press("Close");
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(ended, 0);
  Press("Close");
  EXPECT_EQ(ended, 1);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(BrowserTest, AloneWithoutAStartingAddressItOnlyShows) {
  Make(true);
  window->StartingAddress.clear();
  window->ShowAlone();
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(maker.calls.isEmpty());
  EXPECT_FALSE(Timer().isActive());
}

TEST(WebAddress, FilesAreNamedAsTheyStand) {
  const TempFolder folder;
  const QString odd = QString::fromStdString(folder.Put("100% #1 žluť?.html", ""));
  const QString plain = QString::fromStdString(folder.Put("plain.html", ""));
  const auto file = [](const QString& path) { return QStringLiteral("file://") + path; };
  EXPECT_EQ(UrlOfAddress(file(odd)), QUrl::fromLocalFile(odd));
  EXPECT_EQ(AddressOfUrl(QUrl::fromLocalFile(odd)), file(odd));
  QUrl part = QUrl::fromLocalFile(plain);
  part.setFragment(QStringLiteral("část"));
  EXPECT_EQ(UrlOfAddress(file(plain) + QStringLiteral("#část")), part);
  EXPECT_EQ(AddressOfUrl(part), file(plain) + QStringLiteral("#část"));
  EXPECT_EQ(UrlOfAddress(file(plain) + QStringLiteral("?a=1")).query(), QStringLiteral("a=1"));
  EXPECT_EQ(AddressOfFile("/a č#.htm"), QStringLiteral("file:///a č#.htm"));
  EXPECT_EQ(AddressOfFile("/a \xE8#.htm"), QStringLiteral("file:///a%20%E8%23.htm"));
  EXPECT_EQ(AddressOfUrl(UrlOfAddress(AddressOfFile("/a \xE8#.htm"))), AddressOfFile("/a \xE8#.htm"));
  // A path without the scheme, as a person would paste it.
  EXPECT_EQ(UrlOfAddress(QStringLiteral(" ") + plain + QStringLiteral(" ")), QUrl::fromLocalFile(plain));
  EXPECT_EQ(UrlOfAddress(QStringLiteral("file:///C:/a b.htm")).toString(), QStringLiteral("file:///C:/a b.htm"));
  EXPECT_EQ(UrlOfAddress(QStringLiteral("priklad.cz/x")).toString(), QStringLiteral("http://priklad.cz/x"));
  for (const char* nothing : {"", "  ", "a b c d"})
    EXPECT_FALSE(UrlOfAddress(QLatin1String(nothing)).isValid()) << nothing;
}

TEST(BrowserModule, TellsWhatIsMissing) {
  const TempFolder folder;
  const QString empty = QString::fromStdString(folder.Path());
  BrowserModule missing({empty});
  EXPECT_EQ(missing.Maker(), nullptr);
  EXPECT_TRUE(missing.Problem().startsWith(QStringLiteral("Interní browser není nainstalován.")));
  folder.Put("pelmar-browser.so", "not a library");
  EXPECT_EQ(missing.Maker(), nullptr);
  EXPECT_EQ(missing.Problem(), QStringLiteral("Interní browser nelze spustit.\r\nSoubor %1/pelmar-browser.so je "
                                              "poškozen nebo z jiné verze programu")
                                   .arg(empty));
}

}  // namespace
}  // namespace pelmar
