// Runs the window tests in a home of their own, so that no test reads or touches the person's files.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include "platform/qt/program_style.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir home;
  if (!home.isValid()) return 1;
  const struct {
    const char *variable, *folder;
  } places[] = {{"HOME", ""},
                {"XDG_DATA_HOME", "data"},
                {"XDG_CONFIG_HOME", "config"},
                {"XDG_CACHE_HOME", "cache"},
                {"XDG_STATE_HOME", "state"}};
  for (const auto& place : places) {
    const QString folder = home.filePath(QLatin1String(place.folder));
    QDir().mkpath(folder);
    qputenv(place.variable, QFile::encodeName(folder));
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setStyle(new pelmar::ProgramStyle);
  return RUN_ALL_TESTS();
}
