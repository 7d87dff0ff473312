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

void Add(const std::string& list) { AddToRecentList(Utf8ToQString(list), QStringLiteral("/a")); }

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
    at = content.find("\"file:///d/" + std::to_string(i) + ".txt\"", at);
    ASSERT_NE(at, std::string::npos) << i;
  }
  EXPECT_NE(content.find("count=\"2\""), std::string::npos);
  using std::filesystem::perms;
  EXPECT_EQ(std::filesystem::status(list).permissions(), perms::owner_read | perms::owner_write);
}

TEST(RecentDocuments, LeaveADamagedListAloneAndGiveUpOnOneThatStaysLocked) {
  const TempFolder temp;
  const std::string damaged = temp.Put("damaged", "<xbel><bookmark"), list = temp.Put("list", "<xbel/>");
  Add(damaged);
  EXPECT_EQ(Content(damaged), "<xbel><bookmark");
  const int file = open(list.c_str(), O_RDWR);
  struct flock lock {};
  lock.l_type = F_WRLCK;
  ASSERT_EQ(fcntl(file, F_OFD_SETLK, &lock), 0);
  QElapsedTimer clock;
  clock.start();
  Add(list);
  EXPECT_LT(clock.elapsed(), 2000);
  EXPECT_EQ(Content(list), "<xbel/>");
  close(file);
  Add(list);
  EXPECT_NE(Content(list).find("file:///a"), std::string::npos);
}

}  // namespace
}  // namespace pelmar
