#include "platform/qt/install_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/qt/convert.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

TEST(InstallFolder, IsTheProgramsOwnOnlyWithAMarkInIt) {
  const struct {
    const char *file, *content;
    bool own;
  } cases[] = {{"pelmar.ini", "any", true},    {"pelmar.ini", "", true}, {"portable", "", true},
               {"portable", "text", false},    {"other", "", false},     {"portable/file", "x", false},
               {"pelmar.ini/file", "x", false}};
  for (const auto& c : cases) {
    const TempFolder program, data;
    program.Put(c.file, c.content);
    const QString folder = FindInstallFolder(Utf8ToQString(program.Path()), Utf8ToQString(data.File("deep/data")));
    EXPECT_EQ(Utf8FromQString(folder), (c.own ? program.Path() : data.File("deep/data/pelmar-vex")) + "/") << c.file;
    EXPECT_EQ(std::filesystem::exists(data.File("deep")), !c.own) << c.file;
  }
}

TEST(InstallFolder, IsMadeForTheUserAloneAndThenKept) {
  using std::filesystem::perms;
  const TempFolder program, data;
  const std::string own = data.File("pelmar-vex");
  const auto mode = [&] {
    FindInstallFolder(Utf8ToQString(program.Path()), Utf8ToQString(data.Path()));
    return std::filesystem::status(own).permissions();
  };
  EXPECT_EQ(mode(), perms::owner_all);
  data.Put("pelmar-vex/notes.dat", "notes");
  std::filesystem::permissions(own, perms::owner_all | perms::group_read);
  EXPECT_EQ(mode(), perms::owner_all | perms::group_read);
  EXPECT_EQ(Content(own + "/notes.dat"), "notes");
}

}  // namespace
}  // namespace pelmar
