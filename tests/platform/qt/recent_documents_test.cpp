#include "platform/qt/recent_documents.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QRegularExpression>
#include <QTimeZone>
#include <filesystem>

#include "platform/qt/convert.h"
#include "platform/qt/recent_bookmarks.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

using namespace std::string_literals;

// The long words of a list have short names here.
QByteArray InFull(QByteArray list) {
  const std::pair<const char*, const char*> words[] = {
      {"<META>", R"(<metadata owner="http://freedesktop.org">)"},
      {"</META>", "</metadata>"},
      {"<TEXT/>", R"(<mime:mime-type type="text/plain"/>)"},
      {"NOTES>", "bookmark:applications>"},
      {"<NEW ", R"(<APP name="Pelmar VEX" exec="'pelmar-vex %f'" modified="NOW" )"},
      {"<OLD ", R"(<APP name="Pelmar VEX" exec="x" modified="old" )"},
      {"<APP", "<bookmark:application"},
      {"<LIST>", R"(<?xml version="1.0" encoding="UTF-8"?>
<xbel xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks" )"
                 R"(xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info" version="1.0">)"},
      {"</LIST>", "</xbel>\n"},
      {"NOW", "2024-05-06T12:00:00Z"},
  };
  for (const auto& [word, full] : words) list.replace(word, full);
  return list;
}

QByteArray Add(const QByteArray& list, const char* path) {
  const QDateTime now(QDate(2024, 5, 6), QTime(14, 0), QTimeZone(7200));
  return AddBookmark(list, QString::fromUtf8(path), QStringLiteral("text/plain"), now);
}

TEST(AddBookmark, UpdatesTheEntryOfTheFileAndLeavesEverythingElseAsItIs) {
  // What stands for itself, then entries of files as they are before and behind.
  const QByteArray others = R"(<LIST>
  <!-- a remark & more -->
  <folder xmlns:x="urn:x" x:id="1"><title>Složka &lt;1&gt;</title></folder>
  <bookmark href="file:///home/jan/b%26c.html" added="2020-01-01T00:00:00.123456Z" visited="2020-01-01T00:00:00Z">
    <info><metadata owner="http://example.org"><x:note xmlns:x="urn:x">a&amp;b<![CDATA[<c>]]></x:note></metadata>
      <META><mime:mime-type type="text/html"/><bookmark:private/><NOTES><OLD count="7"/></NOTES></META></info>
  </bookmark>)";
  const std::pair<const char*, const char*> entries[] = {
      {R"(<META><TEXT/><NOTES><APP/><OLD count="4"/><APP/></NOTES></META>)",
       R"(<META><TEXT/><NOTES><APP/><NEW count="5"/><APP/></NOTES></META>)"},
      {R"(<META><NOTES><OLD count="many"/></NOTES></META>)", R"(<META><NOTES><NEW count="1"/></NOTES></META>)"},
      {"<META><NOTES><APP/></NOTES></META>", R"(<META><NOTES><APP/><NEW count="1"/></NOTES></META>)"},
      {R"(<META><mime:mime-type type="old"/></META>)",
       R"(<META><mime:mime-type type="old"/><NOTES><NEW count="1"/></NOTES></META>)"},
      {R"(<metadata owner="x"/>)", R"(<metadata owner="x"/><META><TEXT/><NOTES><NEW count="1"/></NOTES></META>)"}};
  QByteArray list = others, expected = others;
  for (int number = 0; number < 5; ++number) {
    const QByteArray begin =
        "<bookmark href=\"file:///m%c5%af/" + QByteArray::number(number) + "\" added=\"A\" modified=";
    list += begin + R"("B" visited="C" x="y"><info>)" + entries[number].first + "</info></bookmark>";
    expected += begin + R"("NOW" visited="NOW" x="y"><info>)" + entries[number].second + "</info></bookmark>";
  }
  list = InFull(list + "</LIST>");
  for (const char* path : {"/mů/0", "/mů/1", "/mů/2", "/mů/3", "/mů/4", "/mů/nový"}) list = Add(list, path);
  const QByteArray added = R"(
  <bookmark href="file:///m%C5%AF/nov%C3%BD" added="NOW" modified="NOW" visited="NOW">)"
                           R"(<info><META><TEXT/><NOTES><NEW count="1"/></NOTES></META></info></bookmark>
</LIST>)";
  EXPECT_EQ(list.toStdString(), InFull(expected + added).toStdString());
  for (const char* empty : {"", "<LIST></LIST>"}) EXPECT_EQ(Add(InFull(empty), "/mů/nový"), InFull("<LIST>" + added));
  // Under another prefix and behind a document type. Readable again only if the prefixes of new elements are declared.
  const QByteArray other = R"(<!DOCTYPE xbel><xbel xmlns:b="http://www.freedesktop.org/standards/desktop-bookmarks">
<bookmark href="file:///a"><info><META><b:applications><b:application name="Pelmar VEX" count="1"/>)"
                           R"(</b:applications></META></info></bookmark></xbel>)";
  EXPECT_TRUE(Add(InFull(other), "/a").contains(R"(<b:application name="Pelmar VEX" count="2" )"));
  EXPECT_TRUE(Add(Add(InFull(other), "/b"), "/b").contains(R"(count="2")"));
}

TEST(AddBookmark, RefusesWhatIsNoList) {
  const QByteArray lists[] = {" ",
                              "<xbel>",
                              "<xbel></xbel><xbel/>",
                              "<html></html>",
                              "<xbel><a></b></xbel>",
                              "<xbel><undeclared:a/></xbel>",
                              QByteArray("<xbel>\0</xbel>", 14),
                              "<xbel>\xFF</xbel>"};
  for (const QByteArray& list : lists) EXPECT_EQ(Add(list, "/a"), "") << list.toStdString();
}

TEST(RecentDocuments, AreAllNotedInOrderWhenTheProgramEnds) {
  const TempFolder temp;
  const std::string list = temp.File("share/recently-used.xbel");
  {
    RecentDocuments recent(Utf8ToQString(list));
    for (const char name : "bcaefdhgc"s) recent.Add(u'/' + QChar::fromLatin1(name));
  }
  QString noted;
  const QRegularExpression entry(QStringLiteral("file:///(.)\"|count=\"([^1])"));
  for (const auto& match : entry.globalMatch(Utf8ToQString(Content(list))))
    noted += match.captured(1) + match.captured(2);
  EXPECT_EQ(noted.toStdString(), "bc2aefdhg");
  using std::filesystem::perms;
  EXPECT_EQ(std::filesystem::status(list).permissions(), perms::owner_read | perms::owner_write);
}

TEST(RecentDocuments, LeaveADamagedListAloneAndGiveUpOnOneThatStaysLocked) {
  const TempFolder temp;
  const auto add = [](const std::string& list) {
    AddToRecentList(Utf8ToQString(list), QStringLiteral("/a"));
    return Content(list);
  };
  EXPECT_EQ(add(temp.Put("damaged", "<xbel><bookmark")), "<xbel><bookmark");
  const std::string list = temp.Put("list", "<xbel/>");
  const int file = open(list.c_str(), O_RDWR);
  struct flock lock {};
  lock.l_type = F_WRLCK;
  ASSERT_EQ(fcntl(file, F_OFD_SETLK, &lock), 0);
  EXPECT_EQ(add(list), "<xbel/>");
  close(file);
  EXPECT_NE(add(list).find("file:///a"), std::string::npos);
}

}  // namespace
}  // namespace pelmar
