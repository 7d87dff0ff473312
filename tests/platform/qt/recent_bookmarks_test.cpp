#include "platform/qt/recent_bookmarks.h"

#include <gtest/gtest.h>

#include <QTimeZone>

namespace pelmar {
namespace {

QDateTime Noon() { return {QDate(2024, 5, 6), QTime(14, 0), QTimeZone(7200)}; }

QByteArray Add(const QByteArray& xbel, const char* path = "/home/jan/Můj dopis.txt") {
  return AddBookmark(xbel, QString::fromUtf8(path), QStringLiteral("text/plain"), Noon());
}

QByteArray InList(const QByteArray& entries) {
  return R"(<?xml version="1.0" encoding="UTF-8"?>
<xbel xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks" )"
         R"(xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info" version="1.0">)" +
         entries + "</xbel>\n";
}

const char* const kOurNote =
    R"(<bookmark:application name="Pelmar VEX" exec="'pelmar-vex %f'" modified="2024-05-06T12:00:00Z" count="1"/>)";

QByteArray OurEntry() {
  return QByteArray(R"(
  <bookmark href="file:///home/jan/M%C5%AFj%20dopis.txt" added="2024-05-06T12:00:00Z" )"
                    R"(modified="2024-05-06T12:00:00Z" visited="2024-05-06T12:00:00Z"><info>)"
                    R"(<metadata owner="http://freedesktop.org"><mime:mime-type type="text/plain"/>)"
                    R"(<bookmark:applications>)") +
         kOurNote + "</bookmark:applications></metadata></info></bookmark>\n";
}

TEST(AddBookmark, BeginsAList) { EXPECT_EQ(Add({}).toStdString(), InList(OurEntry()).toStdString()); }

TEST(AddBookmark, LeavesEverythingElseAsItIs) {
  const QByteArray others = R"(
  <!-- a remark & more -->
  <folder xmlns:x="urn:x" x:id="1"><title>Složka &lt;1&gt;</title></folder>
  <bookmark href="file:///home/jan/b%26c.html" added="2020-01-01T00:00:00.123456Z" visited="2020-01-01T00:00:00Z">
    <title>Dvě slova</title>
    <info><metadata owner="http://example.org"><x:note xmlns:x="urn:x">a&amp;b<![CDATA[<c>]]></x:note></metadata>
      <metadata owner="http://freedesktop.org"><mime:mime-type type="text/html"/><bookmark:private/>
        <bookmark:applications><bookmark:application name="Pelmar VEX" exec="x" count="7"/></bookmark:applications>
      </metadata></info>
  </bookmark>)";
  EXPECT_EQ(Add(InList(others)).toStdString(), InList(others + OurEntry()).toStdString());
}

TEST(AddBookmark, UpdatesTheEntryOfTheFile) {
  const QByteArray head = R"(<bookmark href="file:///home/jan/M%c5%afj%20dopis.txt" added="A" modified=")";
  const QByteArray mid = R"(" visited=")";
  const QByteArray old_times = head + "B" + mid + R"(C" x="y">)";
  const QByteArray new_times = head + "2024-05-06T12:00:00Z" + mid + R"(2024-05-06T12:00:00Z" x="y">)";
  const QByteArray other = R"(<bookmark:application name="other" exec="o" count="3"/>)";
  const QByteArray type = R"(<mime:mime-type type="text/x-old"/>)", plain = R"(<mime:mime-type type="text/plain"/>)";
  const auto note = [](const char* count, const char* time) {
    return QByteArray(R"(<bookmark:application name="Pelmar VEX" exec="'pelmar-vex %f'" modified=")") + time +
           R"(" count=")" + count + R"("/>)";
  };
  const auto metadata = [](const QByteArray& content) {
    return R"(<metadata owner="http://freedesktop.org">)" + content + "</metadata>";
  };
  const auto info = [](const QByteArray& content) { return "<info>" + content + "</info>"; };
  const auto applications = [](const QByteArray& content) {
    return "<bookmark:applications>" + content + "</bookmark:applications>";
  };
  const QByteArray foreign = R"(<metadata owner="http://example.org"><a/></metadata>)";
  const struct {
    QByteArray before, after;
  } cases[] = {
      {info(metadata(type + applications(other + note("4", "old") + other))),
       info(metadata(type + applications(other + note("5", "2024-05-06T12:00:00Z") + other)))},
      {info(metadata(applications(note("many", "old")))),
       info(metadata(applications(note("1", "2024-05-06T12:00:00Z"))))},
      {info(metadata(type + applications(other))), info(metadata(type + applications(other + kOurNote)))},
      {info(metadata(type)), info(metadata(type + applications(kOurNote)))},
      {info(foreign), info(foreign + metadata(plain + applications(kOurNote)))},
      {"<title>t</title>", "<title>t</title>" + info(metadata(plain + applications(kOurNote)))},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Add(InList(old_times + c.before + "</bookmark>")).toStdString(),
              InList(new_times + c.after + "</bookmark>").toStdString());
}

TEST(AddBookmark, HoldsUnderOtherPrefixes) {
  const QByteArray list = R"(<xbel version="1.0" xmlns:b="http://www.freedesktop.org/standards/desktop-bookmarks">
<bookmark href="file:///a"><info><metadata owner="http://freedesktop.org"><b:applications>)"
                          R"(<b:application name="Pelmar VEX" count="1"/></b:applications></metadata></info>)"
                          R"(</bookmark></xbel>)";
  const QByteArray once_more = Add(list, "/a");
  EXPECT_TRUE(once_more.contains(R"(<b:application name="Pelmar VEX" count="2" )")) << once_more.toStdString();
  const QByteArray another = Add(list, "/b");
  // Readable again only if the prefixes of the new elements are declared.
  EXPECT_TRUE(Add(another, "/b").contains(R"(count="2")")) << another.toStdString();
}

TEST(AddBookmark, RefusesWhatIsNoList) {
  const QByteArray whole = InList(OurEntry());
  const QByteArray cases[] = {
      "x",
      " ",
      "<xbel>",
      whole.left(whole.size() - 5),
      whole + "<xbel/>",
      "<html></html>",
      "<xbel><a></b></xbel>",
      "<xbel><undeclared:a/></xbel>",
      QByteArray("<xbel>\0</xbel>", 14),
      "<xbel>\xFF</xbel>",
  };
  for (const QByteArray& list : cases) EXPECT_EQ(Add(list), QByteArray()) << list.toStdString();
}

}  // namespace
}  // namespace pelmar
