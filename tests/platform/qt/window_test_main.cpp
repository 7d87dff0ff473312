// Starts the toolkit once for all tests of windows and controls, in a home that vanishes with them.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  const QTemporaryDir home;
  const auto folder = [&](const char* variable, const char* name) {
    const QString path = home.filePath(QString::fromLatin1(name));
    QDir().mkpath(path);
    qputenv(variable, path.toUtf8());
  };
  folder("HOME", "home");
  folder("XDG_CONFIG_HOME", "config");
  folder("XDG_DATA_HOME", "data");
  folder("XDG_CACHE_HOME", "cache");
  folder("XDG_STATE_HOME", "state");
  folder("XDG_RUNTIME_DIR", "run");
  QFile::setPermissions(home.filePath(QStringLiteral("run")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");

  testing::InitGoogleTest(&argc, argv);
  int one = 1;
  QApplication app(one, argv);
  return RUN_ALL_TESTS();
}
