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
  } cases[] = {
      {"pelmar.ini", "any", true}, {"pelmar.ini", "", true},      {"portable", "", true},
      {"portable", "text", false}, {"portable/file", "x", false}, {"pelmar.ini/file", "x", false},
      {"other", "", false},
  };
  for (const auto& c : cases) {
    const TempFolder program, data;
    program.Put(c.file, c.content);
    const QString folder = FindInstallFolder(Utf8ToQString(program.Path()), Utf8ToQString(data.File("deep/data")));
    EXPECT_EQ(Utf8FromQString(folder), (c.own ? program.Path() : data.File("deep/data/pelmar-vex")) + "/") << c.file;
    EXPECT_EQ(std::filesystem::exists(data.File("deep")), !c.own) << c.file;
  }
}

TEST(InstallFolder, IsMadeForTheUserAloneAndThenKept) {
  const TempFolder program, data;
  const auto find = [&] { FindInstallFolder(Utf8ToQString(program.Path()), Utf8ToQString(data.Path())); };
  find();
  const std::string own = data.File("pelmar-vex");
  EXPECT_EQ(std::filesystem::status(own).permissions(), std::filesystem::perms::owner_all);
  data.Put("pelmar-vex/notes.dat", "notes");
  std::filesystem::permissions(own, std::filesystem::perms::owner_all | std::filesystem::perms::group_read);
  find();
  EXPECT_EQ(Content(own + "/notes.dat"), "notes");
  EXPECT_EQ(std::filesystem::status(own).permissions(),
            std::filesystem::perms::owner_all | std::filesystem::perms::group_read);
}

}  // namespace
}  // namespace pelmar
