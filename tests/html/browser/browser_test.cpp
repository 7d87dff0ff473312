#include <gtest/gtest.h>

#include <QLineEdit>

#include "html/browser/frm_browser.h"
#include "html/browser/web_address.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

// A view that loads nothing. It is busy until the test ends the load.
struct ScriptedView : WebView {
  QStringList& calls;
  QWidget* widget;
  bool busy = false;
  QString name;
  QUrl address;

  ScriptedView(QStringList& call_list, QWidget* parent) : calls(call_list), widget(new QWidget(parent)) {}
  void Finish() {
    busy = false;
    on_finished();
  }
  QWidget* Widget() override { return widget; }
  void Load(const QUrl& url) override {
    calls += QStringLiteral("load ") + url.toString(QUrl::FullyEncoded);
    address = url;
    busy = true;
  }
  void Go(int steps) override { calls += steps < 0 ? QStringLiteral("back") : QStringLiteral("forward"); }
  void Refresh() override { calls += QStringLiteral("refresh"); }
  void Stop() override { calls += QStringLiteral("stop"); }
  void EndIfStuck() override { calls += QStringLiteral("end if stuck"); }
  void LoadFromNet() override { calls += QStringLiteral("load from net"); }
  bool Busy() const override { return busy; }
  QString LocationName() const override { return name; }
  QUrl LocationAddress() const override { return address; }
};

struct BrowserTest : testing::Test, WebViewMaker {
  ScriptedPlatform platform;
  QStringList calls;
  ScriptedView* view = nullptr;
  FrmBrowser window{*this, platform, {}};
  QComboBox& address = *Find<QComboBox>(window, "cboAddress");
  QTimer& timer = *Find<QTimer>(window, "timTimer");

  std::unique_ptr<WebView> Make(QWidget* parent) override {
    view = new ScriptedView(calls, parent);
    return std::unique_ptr<WebView>(view);
  }
  [[nodiscard]] std::string Caption() const { return window.windowTitle().toStdString(); }
  // Returns the calls of the view so far and empties the list.
  std::string TakeCalls() { return std::exchange(calls, {}).join(u", ").toStdString(); }
  void Tick() { QMetaObject::invokeMethod(&timer, "timeout"); }
};

TEST_F(BrowserTest, LoadsAFileAndShowsTheStateOfTheLoad) {
  window.ShowInBrowser("/stránka.html");
  EXPECT_EQ(TakeCalls(), "load file:///str%C3%A1nka.html");
  EXPECT_EQ(Caption(), "HTML Testovací  browser");
  EXPECT_FALSE(Named(window, "Picture1")->isEnabled());
  Tick();
  view->on_progress(1, 3);
  ExpectState(window, "", "cboAddress=file:///stránka.html Panel1=Busy Panel2=33,3333333333333%");
  EXPECT_TRUE(Named(window, "Picture1")->isEnabled());
  view->busy = false;
  view->name = QStringLiteral("Stránka [*]");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !timer.isActive(); }));
  view->on_progress(1, 0);
  ExpectState(window, "", "Panel1=Idle Panel2=");
  EXPECT_EQ(Caption(), "HTML testovací browser (Stránka [*][*])");  // Qt shows "[*][*]" as "[*]"
}

TEST_F(BrowserTest, ThePictureOfALoadHasEightFrames) {
  window.ShowInBrowser("/a.html");
  QList<QImage> frames;
  for (int tick = 0; tick < 16; ++tick) {
    Tick();
    const QImage frame = Find<QWidget>(window, "Picture1")->grab().toImage();
    if (!frames.contains(frame) && !frame.allGray()) frames += frame;  // a missing frame would have no colour
  }
  EXPECT_EQ(frames.size(), 8);
}

TEST_F(BrowserTest, AFinishedPageMovesToTheTopOfTheListAndOnlyAKeyLoadsFromIt) {
  for (const char* page : {"/a.html", "/b.html", "/a.html"}) {
    window.ShowInBrowser(page);
    view->Finish();
  }
  EXPECT_EQ(address.count(), 2);
  EXPECT_EQ(address.itemText(0) + u' ' + address.itemText(1), QStringLiteral("file:///a.html file:///b.html"));
  Q_EMIT address.lineEdit()->editingFinished();
  address.setCurrentIndex(1);
  EXPECT_EQ(calls.size(), 3);  // a change of the list loads nothing
  TakeCalls();
  QTest::keyClick(&address, Qt::Key_Up);
  EXPECT_EQ(TakeCalls(), "load file:///a.html");
}

TEST_F(BrowserTest, EnterLoadsTheTypedAddress) {
  Work(window, "cboAddress:www.priklad.cz\r");
  EXPECT_EQ(TakeCalls(), "load http://www.priklad.cz");
}

TEST_F(BrowserTest, AHalfTypedAddressIsNotCompletedAndStaysWithItsCaretWhenPagesAreFinished) {
  window.ShowInBrowser("/a.html");
  Work(window, "cboAddress= cboAddress:fi");
  address.lineEdit()->setCursorPosition(1);
  for (int page = 0; page < 2; ++page) view->Finish();
  ExpectState(window, "cboAddress:x", "cboAddress=fxi");
}

TEST_F(BrowserTest, AnAddressOfTheEngineItselfIsRefused) {
  platform.answers = {Answer::kOk};
  Work(window, "cboAddress:chrome://crash\r");
  EXPECT_EQ(TakeCalls(), "");
  EXPECT_EQ(platform.calls.back(),
            "message 64 \"Takovou adresu interní browser neotvírá:\r\nchrome://crash\r\n\r\n"
            "Otvírá http, https, file, data a about:blank.\" \"Interní browser\"");
}

TEST_F(BrowserTest, EachToolbarButtonExceptStopActsAndStartsTheTimer) {
  platform.opens = {"/home/jan/c.htm"};
  const std::pair<const char*, const char*> cases[] = {{"Back!", "back"},
                                                       {"Forward!", "forward"},
                                                       {"Refresh!", "refresh"},
                                                       {"Open!", "load file:///home/jan/c.htm"},
                                                       {"Close!", "end if stuck"}};
  for (const auto& [button, call] : cases) {
    timer.stop();
    Work(window, button);
    EXPECT_EQ(TakeCalls(), call);
    EXPECT_TRUE(timer.isActive()) << button;
  }
  EXPECT_EQ(platform.calls.back(), "open \"Všechno (*.*)|*.*|htm (*.htm)|*.htm|html (*.html)|*.html\" 1");
}

TEST_F(BrowserTest, StopEndsTheLoadAtOnce) {
  window.ShowInBrowser("/a.html");
  TakeCalls();
  Tick();
  ExpectState(window, "Stop!", "Panel1=Idle");
  EXPECT_EQ(TakeCalls(), "stop");
  EXPECT_FALSE(timer.isActive());
}

TEST_F(BrowserTest, AloneItLoadsItsStartPageAndEndsTheProgramAfterAYes) {
  int ended = 0;
  FrmBrowser alone(*this, platform, [&] { ++ended; });
  alone.ShowAlone();
  EXPECT_EQ(TakeCalls(), "load " + alone.StartingAddress.toStdString());
  platform.answers = {Answer::kNo, Answer::kYes};
  EXPECT_FALSE(alone.close());
  EXPECT_TRUE(alone.isVisible());
  EXPECT_EQ(ended, 0);
  EXPECT_EQ(platform.calls.back(), "message 276 \"OPRAVDU UKONČIT Browser (Pelmar VEX) ?\" \"Konec\"");
  Work(alone, "Close!");
  EXPECT_EQ(ended, 1);
}

TEST(WebAddress, OnlyPagesMayBeShown) {
  for (const char* refused : {"CHROME://gpucrash", "about:crash", "about:", "about:blank2", "qrc:/x", "blob:x",
                              "view-source:http://x.cz", "javascript:alert(1)", "ftp://x.cz/", "mailto:a@x.cz"})
    EXPECT_FALSE(MayBeShown(UrlOfAddress(QLatin1String(refused)))) << refused;
  for (const char* shown : {"https://x.cz/", "data:text/html,a", "about:blank", "file:///a.html"})
    EXPECT_TRUE(MayBeShown(UrlOfAddress(QLatin1String(shown)))) << shown;
}

TEST(WebAddress, OfAFileIsTheSameAfterConversionToAUrlAndBack) {
  const TempFolder folder;
  const std::string odd_name = "file://" + folder.Put("100% #1 žluť?.html", "");
  const std::string with_anchor = "file://" + folder.Put("a.html", "") + "#část";
  for (const std::string& address : {odd_name, with_anchor, std::string("file:///a%20%E8%23.htm")})
    EXPECT_EQ(AddressOfUrl(UrlOfAddress(QString::fromStdString(address))).toStdString(), address);
  EXPECT_EQ(PathOfUrl(UrlOfAddress(QString::fromStdString(odd_name))), odd_name.substr(7));
  EXPECT_EQ(AddressOfFile("/a \xE8#.htm"), QStringLiteral("file:///a%20%E8%23.htm"));
}

}  // namespace
}  // namespace pelmar
