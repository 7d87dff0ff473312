// Starts Pelmar VEX, a small editor of text and HTML.

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>
#include <span>

#include "platform/qt/application.h"
#include "platform/qt/convert.h"
#include "platform/qt/desktop/end_requests.h"
#include "platform/qt/fonts.h"
#include "platform/qt/frames/program_style.h"
#include "platform/qt/qt_platform.h"
#include "platform/runtime_error.h"
#include "program/program.h"
#include "shell/terminal_answer.h"

namespace {

// Only X11 lets the program place its windows, so an X display is preferred. Wayland is used if X11 fails. True if the
// function has set QT_QPA_PLATFORM.
bool PreferX11() {
  return !qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsSet("DISPLAY") &&
         qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

// Without a display Qt would abort with an English message.
bool HasDisplay() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

// While Qt looks for a display, replaces its fatal English message by a Czech one and ends the program.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type != QtFatalMsg) {
    std::fputs(qPrintable(qFormatLogMessage(type, context, text) + u'\n'), stderr);
    return;
  }
  const auto value = [](const char* name) { return qEnvironmentVariable(name, QStringLiteral("není nastaveno")); };
  std::fprintf(stderr,
               "pelmar-vex: k obrazovce se nelze připojit (DISPLAY: %s, WAYLAND_DISPLAY: %s; pro Wayland je potřeba "
               "balík qt6-wayland)\n",
               qPrintable(value("DISPLAY")), qPrintable(value("WAYLAND_DISPLAY")));
  std::_Exit(EXIT_FAILURE);
}

// Prints the text and returns the exit status. A full disk or a closed output is an error.
int Print(std::string_view text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
  return written ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  // --help and --version come first, because they need no display and create no file.
  if (argc > 0)
    if (const auto text = pelmar::TerminalAnswer(std::span(argv, static_cast<std::size_t>(argc)).subspan(1)))
      return Print(*text);
  if (!HasDisplay()) {
    std::fputs("pelmar-vex: chybí obrazovka (není nastaveno DISPLAY ani WAYLAND_DISPLAY)\n", stderr);
    return EXIT_FAILURE;
  }
  const bool prefers_x11 = PreferX11();
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments.append(pelmar::PathToQString(argv[i]));
  // Qt must not interpret the program's arguments.
  int own_argc = 1;
  // Qt would look for a native menu bar on the session bus and might have to start the bus first.
  pelmar::Application::setAttribute(Qt::AA_DontUseNativeMenuBar);
  const QtMessageHandler usual = qInstallMessageHandler(EndWithoutDisplay);
  pelmar::Application application(own_argc, argv);
  qInstallMessageHandler(usual);
  if (prefers_x11) qunsetenv("QT_QPA_PLATFORM");  // programs that this program starts choose for themselves
  pelmar::Application::setStyle(new pelmar::ProgramStyle);
  pelmar::Application::setApplicationName(QStringLiteral("pelmar-vex"));
  pelmar::Application::setDesktopFileName(QStringLiteral("pelmar-vex"));
  pelmar::Application::setQuitOnLastWindowClosed(false);

  pelmar::SubstituteFonts();
  QTranslator czech;
  if (czech.load(QLocale(QLocale::Czech), QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    pelmar::Application::installTranslator(&czech);

  pelmar::QtPlatform platform;
  pelmar::Program program(platform);
  application.on_runtime_error = [&program, &platform](const pelmar::RuntimeError& error) {
    program.ReportRuntimeError(error);
    platform.FinishBackgroundWork();
    std::_Exit(EXIT_FAILURE);
  };
  const pelmar::EndRequests end_requests([&program, &platform] {
    program.KeepUnsaved();
    platform.FinishBackgroundWork();
  });
  try {
    platform.ReportRefusedFolder();
    program.Run(pelmar::CommandTail(arguments));
  } catch (const pelmar::RuntimeError& error) {
    application.on_runtime_error(error);
  }
  return pelmar::Application::exec();
}
