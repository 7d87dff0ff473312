#include "platform/qt/clipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

#include "platform/qt/clipboard_text.h"
#include "platform/qt/convert.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(ClipboardText, OurOwnTextComesBackToTheByte) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += CharOf(code);
  all += "\r\n\n\r";
  const std::unique_ptr<QMimeData> mime(MimeFromText(all));
  EXPECT_EQ(TextFromMime(mime.get()), all);
}

TEST(ClipboardText, OthersGetUnicodeLines) {
  const std::unique_ptr<QMimeData> mime(MimeFromText("Žluťoučký\r\nkůň\r\n"_w));
  EXPECT_EQ(mime->text(), QStringLiteral("Žluťoučký\nkůň\n"));
}

TEST(ClipboardText, OthersTextGetsOurLines) {
  const struct {
    QString theirs;
    std::string_view ours;
  } cases[] = {
      {QStringLiteral("a\nb\n"), "a\r\nb\r\n"},
      {QStringLiteral("a\r\nb\n\nc\r"), "a\r\nb\r\n\r\nc\r"},
      {QStringLiteral("\n"), "\r\n"},
      {QStringLiteral("příliš → žlutý 🐎"), "příliš ? žlutý ?"_w},
  };
  for (const auto& c : cases) {
    QMimeData mime;
    mime.setText(c.theirs);
    EXPECT_EQ(TextFromMime(&mime), c.ours);
  }
  QMimeData picture;
  picture.setData(QStringLiteral("image/png"), "x");
  EXPECT_EQ(TextFromMime(&picture), std::nullopt);
  EXPECT_EQ(TextFromMime(nullptr), std::nullopt);
}

class CountingMime : public QMimeData {
 public:
  explicit CountingMime(int& reads) : reads_(reads) { setText(QStringLiteral("theirs\n")); }

 protected:
  QVariant retrieveData(const QString& type, QMetaType wanted) const override {
    ++reads_;
    return QMimeData::retrieveData(type, wanted);
  }

 private:
  int& reads_;
};

TEST(Clipboard, ReadsTheOwnersTextOnceAChange) {
  Clipboard clipboard;
  clipboard.SetText("ours");
  EXPECT_EQ(clipboard.Text(), "ours");
  int reads = 0;
  QGuiApplication::clipboard()->setMimeData(new CountingMime(reads));
  EXPECT_EQ(clipboard.Text(), "theirs\r\n");
  const int reads_of_one_fetch = reads;
  for (int tick = 0; tick < 5; ++tick) clipboard.Text();
  EXPECT_EQ(reads, reads_of_one_fetch);
  clipboard.Clear();
  EXPECT_EQ(clipboard.Text(), std::nullopt);
  clipboard.SetText("");
  EXPECT_EQ(clipboard.Text(), "");
}

}  // namespace
}  // namespace pelmar
