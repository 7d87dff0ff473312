#include <gtest/gtest.h>

#include <QLineEdit>

#include "html/browser/browser_module.h"
#include "html/browser/frm_browser.h"
#include "html/browser/web_address.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

// A view that loads nothing by itself: the test says when it is busy and when it has finished.
struct ScriptedView : WebView {
  QStringList& calls;
  QWidget* widget;
  bool busy = false, back = true, forward = true;
  QString name;
  QUrl address;

  ScriptedView(QStringList& asked, QWidget* parent) : calls(asked), widget(new QWidget(parent)) {}
  void Finish(const char* new_name = "") {
    busy = false;
    name = QString::fromUtf8(new_name);
    on_finished();
  }
  QWidget* Widget() override { return widget; }
  void Load(const QUrl& url) override {
    calls += QStringLiteral("load ") + url.toString(QUrl::FullyEncoded);
    address = url;
    busy = true;
  }
  void Go(int places) override { calls += places < 0 ? QStringLiteral("back") : QStringLiteral("forward"); }
  void Refresh() override { calls += QStringLiteral("refresh"); }
  void Stop() override { calls += QStringLiteral("stop"); }
  void EndIfStuck() override { calls += QStringLiteral("end if stuck"); }
  void LoadFromNet() override { calls += QStringLiteral("load from net"); }
  bool CanGo(int places) const override { return places < 0 ? back : forward; }
  bool Busy() const override { return busy; }
  QString LocationName() const override { return name; }
  QUrl LocationAddress() const override { return address; }
};

struct BrowserTest : testing::Test, WebViewMaker {
  ScriptedPlatform platform;
  QStringList calls;
  ScriptedView* view = nullptr;
  std::function<void()> end;
  std::optional<FrmBrowser> made;

  std::unique_ptr<WebView> Make(QWidget* parent) override {
    view = new ScriptedView(calls, parent);
    return std::unique_ptr<WebView>(view);
  }
  FrmBrowser& Window() { return made ? *made : made.emplace(*this, platform, end); }
  QComboBox& Address() { return *Find<QComboBox>(Window(), "cboAddress"); }
  QTimer& Timer() { return *Find<QTimer>(Window(), "timTimer"); }
  // What the view was asked since, what controls show, the title, the timer's and the window's state.
  std::string Told(const char* controls = "Panel1") {
    return std::exchange(calls, {}).join(u", ").toStdString() + "; " + State(Window(), controls) + ", " +
           Window().windowTitle().toStdString() + (Timer().isActive() ? ", ticking" : "") +
           (Window().isVisible() ? "" : ", hidden");
  }
  // The address in the field, and the list.
  std::string List() {
    QString rows = Address().currentText() + QStringLiteral(" in");
    for (int row = 0; row < Address().count(); ++row) rows += u' ' + Address().itemText(row);
    return rows.toStdString();
  }
};

TEST_F(BrowserTest, ShowsAFileAndWhatIsHeardOfIt) {
  Window().ShowInBrowser("");
  EXPECT_EQ(Told(), "; Panel1=, HTML Testovací  browser, hidden");
  Window().ShowInBrowser("/stránka.html");
  EXPECT_EQ(Told("cboAddress"),
            "load file:///str%C3%A1nka.html; cboAddress=file:///stránka.html, HTML Testovací  browser, ticking");
  QList<QImage> frames;
  for (int tick = 0; tick < 16; ++tick) {
    QMetaObject::invokeMethod(&Timer(), "timeout");
    const QImage frame = Find<QWidget>(Window(), "Picture1")->grab().toImage();
    if (!frames.contains(frame)) frames += frame;
  }
  EXPECT_EQ(std::to_string(frames.size()) + Told(), "8; Panel1=Busy, HTML Testovací  browser, ticking");
  view->busy = false;
  view->name = QStringLiteral("Stránka [*]");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Timer().isActive(); }, 2000));
  EXPECT_EQ(Told(), "; Panel1=Idle, HTML testovací browser (Stránka [*][*])");
  const TempFolder folder;
  for (const auto& [page, told] : {std::pair{"<P>kůň", true}, {"<P>k\xF9\xF2", false}}) {
    Window().ShowInBrowser(folder.Put("a.html", page));
    view->Finish("A");
    EXPECT_EQ(Told("Panel3").find("UTF-8") != std::string::npos, told) << page;
  }
  view->on_progress(70, 100);
  EXPECT_EQ(Told("Panel2"), "; Panel2=70%, HTML testovací browser (A), ticking");
  view->on_progress(3, -1);
  view->name = QStringLiteral("B");
  Timer().stop();
  for (const bool busy : {false, true}) {  // a link in the page loads too
    view->busy = busy;
    view->on_change();
    view->on_withheld(busy);
    EXPECT_EQ(Told("Panel2"), std::string("; Panel2=, HTML testovací browser (B)") + (busy ? ", ticking" : ""));
    EXPECT_EQ(Find<QWidget>(Window(), "netLine")->isVisible(), busy);
  }
  Work(Window(), "LoadNet!");
  EXPECT_EQ(calls.join(u' '), QStringLiteral("load from net"));
}

TEST_F(BrowserTest, AddressesAreLoadedByEnterAndByChoice) {
  std::string lists;  // a page stands once in the list, and at its top
  for (const char* shown : {"/a.html", "/b.html", "/a.html", "/b.html"}) {
    Window().ShowInBrowser(shown);
    lists += List() + "; ";
    view->Finish();
  }
  EXPECT_EQ(lists,
            "file:///a.html in file:///a.html; file:///b.html in file:///a.html file:///b.html; "
            "file:///a.html in file:///b.html file:///a.html file:///a.html; "
            "file:///b.html in file:///a.html file:///b.html file:///b.html; ");
  Window().activateWindow();
  EXPECT_EQ(calls.size(), 4);  // what the program changes itself starts nothing
  Work(Window(), "cboAddress= cboAddress:www.priklad.cz\r");
  EXPECT_EQ(calls.back(), QStringLiteral("load http://www.priklad.cz"));
  EXPECT_EQ(List(), "www.priklad.cz in file:///b.html file:///a.html");  // it joins the list when it is there
  view->Finish();
  EXPECT_EQ(List(), "http://www.priklad.cz in http://www.priklad.cz file:///b.html file:///a.html");
  Work(Window(), "cboAddress= cboAddress:x.cz");
  for (int time = 0; time < 2; ++time) view->Finish();  // a page that comes meanwhile leaves it alone
  QTest::keyClick(&Address(), Qt::Key_Enter);
  EXPECT_EQ(calls.takeLast(), QStringLiteral("load http://x.cz"));
  QLineEdit* line = Address().lineEdit();
  line->selectAll();  // about to be typed over
  view->Finish();
  EXPECT_EQ(line->selectedText(), QStringLiteral("http://x.cz"));
  // The text of another entry is loaded by Enter, and not by leaving the field, nor by the wheel or by the program.
  Work(Window(), "cboAddress= cboAddress:file:///b.html");
  Q_EMIT line->editingFinished();
  Address().setCurrentIndex(2);
  RollWheel(Address(), {}, {0, 120});
  Window().DontNavigateNow = true;
  Q_EMIT Address().activated(0);
  Window().DontNavigateNow = false;
  EXPECT_EQ(calls.size(), 5);
  QTest::keyClick(&Address(), Qt::Key_Down);
  EXPECT_EQ(calls.takeLast(), QStringLiteral("load file:///a.html"));
}

TEST_F(BrowserTest, TheToolBarStartsTheTimerAndActs) {
  platform.opens = {std::nullopt, "/home/jan/c.htm"};
  for (const char* key : {"Back!", "Forward!", "Refresh!", "Open!", "Open!"}) {
    Timer().stop();
    Work(Window(), key);
    EXPECT_TRUE(Timer().isActive()) << key;
  }
  EXPECT_EQ(platform.calls.back(), "open \"Všechno (*.*)|*.*|htm (*.htm)|*.htm|html (*.html)|*.html\" 1");
  view->name = QStringLiteral("Půl");
  QMetaObject::invokeMethod(&Timer(), "timeout");
  Work(Window(), "Stop!");
  EXPECT_EQ(
      Told(),
      "back, forward, refresh, load file:///home/jan/c.htm, stop; Panel1=Idle, HTML testovací browser (Půl), hidden");
  for (const bool by_key : {true, false}) {
    Window().Present();
    by_key ? Work(Window(), "Close!") : static_cast<void>(Window().close());
    EXPECT_EQ(Told("cboAddress"),
              "end if stuck; cboAddress=file:///home/jan/c.htm, HTML testovací browser (Půl), ticking, hidden");
  }
}

TEST_F(BrowserTest, WhatCantBeDoneLooksOff) {
  const auto off = [this] {
    QStringList names;
    for (const char* key : {"Back", "Forward"})
      if (!Find<QAction>(Window(), key)->isEnabled()) names += QLatin1String(key);
    if (!Find<QWidget>(Window(), "Picture1")->isEnabled()) names += QStringLiteral("Picture1");
    return names.join(u' ').toStdString();
  };
  EXPECT_EQ(off(), "Picture1");
  view->back = view->forward = false;
  Window().ShowInBrowser("/a.html");
  Q_EMIT Timer().timeout({});
  view->on_change();
  EXPECT_EQ(off(), "Back Forward");
  view->back = true;
  view->Finish();
  Q_EMIT Timer().timeout({});
  EXPECT_EQ(off(), "Forward Picture1");
}

TEST_F(BrowserTest, AloneItStartsWithItsPageAndAsksAtTheEnd) {
  int ended = 0;
  end = [&] { ++ended; };
  EXPECT_EQ(Find<QAction>(Window(), "Close")->toolTip(), QStringLiteral("Ukončit program"));
  EXPECT_TRUE(Window().StartingAddress.startsWith(QStringLiteral("https://")));
  Window().StartingAddress.clear();
  Window().ShowAlone();
  EXPECT_EQ(Told("cboAddress"), "; cboAddress=, HTML Testovací  browser");
  Window().StartingAddress = QStringLiteral("https://a.cz/");
  Window().ShowAlone();
  EXPECT_EQ(Told("cboAddress"), "load https://a.cz/; cboAddress=https://a.cz/, HTML Testovací  browser, ticking");
  platform.answers = {Answer::kNo, Answer::kNo, Answer::kYes};
  EXPECT_FALSE(Window().close());
  EXPECT_EQ(platform.calls.back(), "message 276 \"OPRAVDU UKONČIT Browser (Pelmar VEX) ?\" \"Konec\"");
  for (const bool yes : {false, true}) {
    Work(Window(), "Close!");
    EXPECT_EQ(ended, yes ? 1 : 0);
    EXPECT_NE(Window().isVisible(), yes);
  }
}

TEST_F(BrowserTest, AddressesOfTheEngineAreRefused) {
  platform.answers = {Answer::kOk};
  Work(Window(), "cboAddress:chrome://crash\r");
  EXPECT_EQ(Told(), "; Panel1=, HTML Testovací  browser, hidden");
  EXPECT_EQ(platform.calls, std::vector<std::string>{
                                "message 64 \"Takovou adresu interní browser neotvírá:\r\nchrome://crash\r\n\r\nOtvírá "
                                "http, https, file, data a about:blank.\" \"Interní browser\""});
  for (const char* refused : {"CHROME://gpucrash", "about:crash", "about:", "about:blank2", "qrc:/x", "blob:x",
                              "view-source:http://x.cz", "javascript:alert(1)", "ftp://x.cz/", "mailto:a@x.cz"})
    EXPECT_FALSE(MayBeShown(UrlOfAddress(QLatin1String(refused)))) << refused;
  for (const char* shown : {"https://x.cz/", "data:text/html,a", "about:blank", "file:///a.html"})
    EXPECT_TRUE(MayBeShown(UrlOfAddress(QLatin1String(shown)))) << shown;
}

TEST(WebAddress, FilesAreNamedAsTheyStand) {
  const TempFolder folder;
  const std::string odd = "file://" + folder.Put("100% #1 žluť?.html", ""), path = folder.Put("plain.html", "");
  const auto url_of = [](const std::string& typed) { return UrlOfAddress(QString::fromStdString(typed)); };
  EXPECT_EQ(PathOfUrl(url_of(odd)), odd.substr(7));
  EXPECT_EQ(url_of("file://" + path + "#část").fragment(), QStringLiteral("část"));
  EXPECT_EQ(AddressOfFile("/a č#.htm"), QStringLiteral("file:///a č#.htm"));
  EXPECT_EQ(AddressOfFile("/a \xE8#.htm"), QStringLiteral("file:///a%20%E8%23.htm"));
  // What names a file comes back as it was; the rest is taken as a browser takes what a person pastes.
  for (const std::string& same : {odd, "file://" + path + "#část", "file://" + path + "?a=1",
                                  std::string("file:///a%20%E8%23.htm"), std::string("file:///C:/a b.htm")})
    EXPECT_EQ(AddressOfUrl(url_of(same)).toStdString(), same);
  for (const auto& [typed, address] : {std::pair{' ' + path + ' ', "file://" + path},
                                       {"priklad.cz/x", "http://priklad.cz/x"},
                                       {"  ", ""},
                                       {"a b c d", ""},
                                       {"file:///a%20b.htm#c", "file:///a b.htm#c"}})
    EXPECT_EQ(AddressOfUrl(url_of(typed)).toStdString(), address) << typed;
}

TEST(BrowserModule, TellsWhatIsMissing) {
  const TempFolder folder;
  BrowserModule module({QString::fromStdString(folder.Path())});
  EXPECT_EQ(module.Maker(), nullptr);
  EXPECT_TRUE(module.Problem().startsWith(QStringLiteral("Interní browser není nainstalován.\r\n")));
  folder.Put("pelmar-browser.so", "not a library");
  EXPECT_EQ(module.Maker(), nullptr);
  EXPECT_EQ(module.Problem().toStdString(), "Interní browser nelze spustit.\r\nSoubor " +
                                                folder.File("pelmar-browser.so") +
                                                " je poškozen nebo z jiné verze programu");
}

}  // namespace
}  // namespace pelmar
