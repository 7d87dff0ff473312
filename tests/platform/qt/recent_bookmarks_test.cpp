#include "platform/qt/recent_bookmarks.h"

#include <gtest/gtest.h>

#include <QTimeZone>

namespace pelmar {
namespace {

// The long words of a list have short names here.
QByteArray InFull(QByteArray list) {
  const std::pair<const char*, const char*> words[] = {
      {"<NOTES>", "<bookmark:applications>"},
      {"</NOTES>", "</bookmark:applications>"},
      {"<META>", R"(<metadata owner="http://freedesktop.org">)"},
      {"</META>", "</metadata>"},
      {"<TEXT/>", R"(<mime:mime-type type="text/plain"/>)"},
      {"<OTHER/>", R"(<bookmark:application name="other" exec="o" count="3"/>)"},
      {"<OLD ", R"(<bookmark:application name="Pelmar VEX" exec="x" modified="old" )"},
      {"<NEW ", R"(<bookmark:application name="Pelmar VEX" exec="'pelmar-vex %f'" modified="NOW" )"},
      {"<LIST>", R"(<?xml version="1.0" encoding="UTF-8"?>
<xbel xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks" )"
                 R"(xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info" version="1.0">)"},
      {"</LIST>", "</xbel>\n"},
      {"NOW", "2024-05-06T12:00:00Z"},
  };
  for (const auto& [word, full] : words) list.replace(word, full);
  return list;
}

QByteArray Add(const QByteArray& list, const char* path = "/home/jan/Můj dopis.txt") {
  const QDateTime now(QDate(2024, 5, 6), QTime(14, 0), QTimeZone(7200));
  return AddBookmark(InFull(list), QString::fromUtf8(path), QStringLiteral("text/plain"), now);
}

const char* const kOurs = R"(
  <bookmark href="file:///home/jan/M%C5%AFj%20dopis.txt" added="NOW" modified="NOW" visited="NOW">)"
                          R"(<info><META><TEXT/><NOTES><NEW count="1"/></NOTES></META></info></bookmark>
)";

TEST(AddBookmark, LeavesEverythingElseAsItIs) {
  const QByteArray others[] = {{}, R"(
  <!-- a remark & more -->
  <folder xmlns:x="urn:x" x:id="1"><title>Složka &lt;1&gt;</title></folder>
  <bookmark href="file:///home/jan/b%26c.html" added="2020-01-01T00:00:00.123456Z" visited="2020-01-01T00:00:00Z">
    <title>Dvě slova</title>
    <info><metadata owner="http://example.org"><x:note xmlns:x="urn:x">a&amp;b<![CDATA[<c>]]></x:note></metadata>
      <META><mime:mime-type type="text/html"/><bookmark:private/><NOTES><OLD count="7"/></NOTES></META></info>
  </bookmark>)"};
  for (const QByteArray& other : others)
    EXPECT_EQ(Add("<LIST>" + other + "</LIST>").toStdString(),
              InFull("<LIST>" + other + kOurs + "</LIST>").toStdString());
  EXPECT_EQ(Add({}).toStdString(), InFull(QByteArray("<LIST>") + kOurs + "</LIST>").toStdString());
}

TEST(AddBookmark, UpdatesTheEntryOfTheFile) {
  const std::pair<const char*, const char*> cases[] = {
      {R"(<info><META><TEXT/><NOTES><OTHER/><OLD count="4"/><OTHER/></NOTES></META></info>)",
       R"(<info><META><TEXT/><NOTES><OTHER/><NEW count="5"/><OTHER/></NOTES></META></info>)"},
      {R"(<info><META><NOTES><OLD count="many"/></NOTES></META></info>)",
       R"(<info><META><NOTES><NEW count="1"/></NOTES></META></info>)"},
      {R"(<info><META><TEXT/><NOTES><OTHER/></NOTES></META></info>)",
       R"(<info><META><TEXT/><NOTES><OTHER/><NEW count="1"/></NOTES></META></info>)"},
      {R"(<info><META><mime:mime-type type="old"/></META></info>)",
       R"(<info><META><mime:mime-type type="old"/><NOTES><NEW count="1"/></NOTES></META></info>)"},
      {R"(<info><metadata owner="x"><a/></metadata></info>)",
       R"(<info><metadata owner="x"><a/></metadata><META><TEXT/><NOTES><NEW count="1"/></NOTES></META></info>)"},
      {"<title>t</title>", R"(<title>t</title><info><META><TEXT/><NOTES><NEW count="1"/></NOTES></META></info>)"},
  };
  const QByteArray entry = R"(<LIST><bookmark href="file:///home/jan/M%c5%afj%20dopis.txt" added="A" modified=")";
  const QByteArray end = "</bookmark></LIST>";
  for (const auto& [before, after] : cases)
    EXPECT_EQ(Add(entry + R"(B" visited="C" x="y">)" + before + end).toStdString(),
              InFull(entry + R"(NOW" visited="NOW" x="y">)" + after + end).toStdString());
}

TEST(AddBookmark, HoldsUnderOtherPrefixesAndBehindADocumentType) {
  const QByteArray list =
      R"(<!DOCTYPE xbel><xbel version="1.0" xmlns:b="http://www.freedesktop.org/standards/desktop-bookmarks">
<bookmark href="file:///a"><info><META><b:applications><b:application name="Pelmar VEX" count="1"/>)"
      R"(</b:applications></META></info></bookmark></xbel>)";
  EXPECT_TRUE(Add(list, "/a").contains(R"(<b:application name="Pelmar VEX" count="2" )"));
  // Readable again only if the prefixes of the new elements are declared.
  EXPECT_TRUE(Add(Add(list, "/b"), "/b").contains(R"(count="2")"));
}

TEST(AddBookmark, RefusesWhatIsNoList) {
  const QByteArray whole = "<xbel></xbel>";
  for (const QByteArray& list : {QByteArray(" "), QByteArray("<xbel>"), whole + "<xbel/>", QByteArray("<html></html>"),
                                 QByteArray("<xbel><a></b></xbel>"), QByteArray("<xbel><undeclared:a/></xbel>"),
                                 QByteArray("<xbel>\0</xbel>", 14), QByteArray("<xbel>\xFF</xbel>")})
    EXPECT_EQ(Add(list), QByteArray()) << list.toStdString();
}

}  // namespace
}  // namespace pelmar
