// Runs the window tests with temporary home folders, so that no test reads, changes or leaves files in the real ones.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/qt/application.h"
#include "platform/qt/frames/program_style.h"
#include "support/temp_folder.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const pelmar::TempFolder home;
  chmod(home.Path().c_str(), 0711);  // some tests act as another user
  for (const char* variable :
       {"HOME", "TMPDIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
    const std::string folder = home.File(variable);
    std::filesystem::create_directory(folder);
    qputenv(variable, folder.c_str());
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const pelmar::Application application(argc, argv);
  QApplication::setStyle(new pelmar::ProgramStyle);
  return RUN_ALL_TESTS();
}
