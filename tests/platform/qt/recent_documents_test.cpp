#include "platform/qt/recent_documents.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <filesystem>

#include "platform/qt/convert.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

TEST(RecentDocuments, AreAllNotedInOrderWhenTheProgramEnds) {
  const TempFolder temp;
  const std::string list = temp.File("share/recently-used.xbel");
  {
    RecentDocuments recent(Utf8ToQString(list));
    for (int i = 0; i < 20; ++i) recent.Add(QStringLiteral("/d/%1.txt").arg(i));
    recent.Add(QStringLiteral("/d/3.txt"));
  }
  const std::string content = Content(list);
  std::size_t at = 0;
  for (int i = 0; i < 20; ++i) {
    const std::size_t entry = content.find("\"file:///d/" + std::to_string(i) + ".txt\"");
    ASSERT_NE(entry, std::string::npos) << i;
    EXPECT_GE(entry, at);
    at = entry;
  }
  EXPECT_NE(content.find("count=\"2\""), std::string::npos);
  EXPECT_EQ(std::filesystem::status(list).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST(RecentDocuments, LeaveADamagedListAlone) {
  const TempFolder temp;
  const std::string list = temp.Put("list", "<xbel><bookmark");
  AddToRecentList(Utf8ToQString(list), QStringLiteral("/a"));
  EXPECT_EQ(Content(list), "<xbel><bookmark");
}

TEST(RecentDocuments, GiveUpOnAListThatStaysLocked) {
  const TempFolder temp;
  const std::string list = temp.Put("list", "<xbel/>");
  const int file = open(list.c_str(), O_RDWR);
  struct flock lock {};
  lock.l_type = F_WRLCK;
  ASSERT_EQ(fcntl(file, F_OFD_SETLK, &lock), 0);
  QElapsedTimer clock;
  clock.start();
  AddToRecentList(Utf8ToQString(list), QStringLiteral("/a"));
  EXPECT_LT(clock.elapsed(), 2000);
  EXPECT_EQ(Content(list), "<xbel/>");
  close(file);
  AddToRecentList(Utf8ToQString(list), QStringLiteral("/a"));
  EXPECT_NE(Content(list).find("file:///a"), std::string::npos);
}

}  // namespace
}  // namespace pelmar
