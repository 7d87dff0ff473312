// Reads web pages as a person sees them, through the program's own browser module.
//
//   page_reader [--linger MS] FILE...
//
// Prints a JSON list with an object for each file: "file", "title", "text" (the visible words, those of frames too) and
// "address" (where the page ended up). Exits with status 1 where the module is missing or a page doesn't come.
// With --linger each page stays for a while after it has come.
#include <QApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>
#include <QWidget>
#include <cstdio>

#include "html/windows/browser_module.h"
#include "html/windows/web_address.h"

namespace pelmar {
namespace {

constexpr int kPatience = 30'000;  // ms for each page

class Reader {
 public:
  Reader(WebViewMaker& maker, QStringList files, int linger) : view_(maker.Make(&window_)), files_(std::move(files)) {
    window_.resize(800, 600);
    view_->Widget()->resize(window_.size());
    window_.show();
    patience_.setSingleShot(true);
    QObject::connect(&patience_, &QTimer::timeout, qApp, [this] {
      std::fprintf(stderr, "page_reader: %s doesn't come\n", qUtf8Printable(files_.constFirst()));
      QCoreApplication::exit(1);
    });
    linger_.setSingleShot(true);
    linger_.setInterval(linger);
    QObject::connect(&linger_, &QTimer::timeout, qApp,
                     [this] { view_->ReadText([this](const QString& text) { Note(text); }); });
    view_->on_finished = [this] { linger_.start(); };
    Next();
  }

 private:
  void Next() {
    if (files_.isEmpty()) {
      std::fputs(QJsonDocument(pages_).toJson().constData(), stdout);
      return QCoreApplication::exit(0);
    }
    patience_.start(kPatience);
    view_->Load(QUrl::fromLocalFile(QFileInfo(files_.constFirst()).absoluteFilePath()));
  }

  void Note(const QString& text) {
    pages_.append(QJsonObject{{QStringLiteral("file"), files_.takeFirst()},
                              {QStringLiteral("title"), view_->LocationName()},
                              {QStringLiteral("address"), AddressOfUrl(view_->LocationAddress())},
                              {QStringLiteral("text"), text}});
    Next();
  }

  QWidget window_;
  std::unique_ptr<WebView> view_;
  QStringList files_;
  QJsonArray pages_;
  QTimer patience_, linger_;
};

int Main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  BrowserModule module;
  WebViewMaker* maker = module.Maker();
  if (maker == nullptr) {
    std::fprintf(stderr, "page_reader: %s\n", qUtf8Printable(module.Problem()));
    return 1;
  }
  QStringList files = QCoreApplication::arguments().mid(1);
  int linger = 0;
  if (files.value(0) == QLatin1String("--linger")) {
    linger = files.value(1).toInt();
    files = files.mid(2);
  }
  const Reader reader(*maker, files, linger);
  return QCoreApplication::exec();
}

}  // namespace
}  // namespace pelmar

int main(int argc, char** argv) { return pelmar::Main(argc, argv); }
