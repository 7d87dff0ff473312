// Takes pictures of the real program's windows: runs commands, sets and clicks controls, then saves the visible
// windows.
//
//   show_window PREFIX STEP...
//
// A step is a command's name (mnutable), a click on a control of the front window (Command1!), a property of a control
// (Text1.text=abc), or a number of milliseconds to wait (500). Each window visible at the end is saved as
// PREFIX-NAME.png. With QT_QPA_PLATFORM=offscreen no screen is needed. QT_SCALE_FACTOR=2 makes pictures at 200%,
// PELMAR_DARK=1 shows a dark desktop, PELMAR_POINTS=14 a larger font.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyle>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <cstdio>

#include "platform/qt/application.h"
#include "platform/qt/convert.h"
#include "platform/qt/fonts.h"
#include "platform/qt/frames/program_style.h"
#include "platform/qt/qt_platform.h"
#include "program/program.h"
#include "shell/settings_record.h"

namespace pelmar {
namespace {

QWidget* FrontWindow() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  return nullptr;
}

QObject* Control(const QString& name) {
  if (QWidget* front = FrontWindow())
    if (QObject* found = front->findChild<QObject*>(name)) return found;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (QObject* found = window->isVisible() ? window->findChild<QObject*>(name) : nullptr) return found;
  return nullptr;
}

void Do(MainWindow& main, const QString& step) {
  QObject* target = nullptr;
  if (step.endsWith(QLatin1Char('!'))) {
    target = Control(step.chopped(1));
    if (auto* button = qobject_cast<QAbstractButton*>(target)) return button->click();
  } else if (const auto dot = step.indexOf(QLatin1Char('.')), equals = step.indexOf(QLatin1Char('='));
             dot > 0 && equals > dot) {
    target = Control(step.left(dot));
    const QByteArray property = step.mid(dot + 1, equals - dot - 1).toLatin1();
    if (target != nullptr && target->setProperty(property.constData(), step.mid(equals + 1))) return;
  } else {
    target = main.findChild<QAction*>(step);
    if (target != nullptr) return static_cast<QAction*>(target)->trigger();
  }
  std::fprintf(stderr, "show_window: nothing does %s\n", qUtf8Printable(step));
}

void Save(const QString& prefix) {
  int number = 0;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || window->windowType() == Qt::ToolTip) continue;
    const QString name = window->objectName().isEmpty() ? QString::number(++number) : window->objectName();
    const QString path = prefix + QLatin1Char('-') + name + QStringLiteral(".png");
    if (window->grab().save(path)) std::fprintf(stderr, "%s\n", qUtf8Printable(path));
  }
}

// Queues the next step before it runs this one, so that the steps go on if this one opens a modal window.
void Run(MainWindow& main, const QString& prefix, QStringList steps) {
  if (steps.isEmpty()) {
    QTimer::singleShot(300, qApp, [prefix] {
      Save(prefix);
      std::_Exit(0);
    });
    return;
  }
  const QString step = steps.takeFirst();
  bool is_pause = false;
  const int pause = step.toInt(&is_pause);
  QTimer::singleShot(is_pause ? pause : 100, qApp, [&main, prefix, steps] { Run(main, prefix, steps); });
  if (!is_pause) Do(main, step);
}

QPalette Dark() {
  QPalette palette(QColor(53, 53, 53));
  palette.setColor(QPalette::Base, QColor(35, 35, 35));
  palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
  palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(53, 53, 53));
  palette.setColor(QPalette::ToolTipText, Qt::white);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
  palette.setColor(QPalette::Link, QColor(90, 170, 255));
  return palette;
}

// Writes settings with which the program starts without a question.
void WriteSettings(const QString& home) {
  for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) qputenv(variable, home.toUtf8());
  SettingsRecord settings;
  settings.Width = 12300;
  settings.Height = 8400;
  settings.UserName = "Jan";
  settings.UserEmail = "jan@example.cz";
  settings.FontSize = 10;
  QDir(home).mkdir(QStringLiteral("pelmar-vex"));
  QFile file(home + QStringLiteral("/pelmar-vex/pelmar.ini"));
  if (file.open(QIODevice::WriteOnly)) file.write(ToBytes(SettingsBytes(settings)));
}

int Main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: show_window PREFIX STEP...\n");
    return 1;
  }
  const QTemporaryDir home;
  WriteSettings(home.path());
  int own_arguments = 1;
  char* own_name[] = {argv[0], nullptr};
  QApplication::setQuitOnLastWindowClosed(false);
  Application application(own_arguments, own_name);
  QApplication::setStyle(new ProgramStyle);
  if (qEnvironmentVariableIsSet("PELMAR_DARK")) {
    QPalette dark = Dark();
    QApplication::style()->polish(dark);  // like the palette of a desktop
    QApplication::setPalette(dark);
  }
  if (const int points = qEnvironmentVariableIntValue("PELMAR_POINTS"); points > 0) {
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
  }
  SubstituteFonts();
  QTranslator czech;
  if (czech.load(QLocale(QLocale::Czech), QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&czech);
  QtPlatform platform;
  Program program(platform);
  QStringList steps;
  for (int i = 2; i < argc; ++i) steps += QString::fromUtf8(argv[i]);
  program.Run("-NOMSG");
  Run(program.Main(), QString::fromUtf8(argv[1]), steps);
  return QApplication::exec();
}

}  // namespace
}  // namespace pelmar

int main(int argc, char** argv) { return pelmar::Main(argc, argv); }
