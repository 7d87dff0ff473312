#include "platform/qt/clipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

#include "platform/qt/clipboard_text.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(ClipboardText, OurOwnComesBackToTheByteAndOthersGetUnicodeLines) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += CharOf(code);
  all += "\r\n\n\r";
  EXPECT_EQ(TextFromMime(std::unique_ptr<QMimeData>(MimeFromText(all)).get()), all);
  const std::unique_ptr<QMimeData> mime(MimeFromText("\x8Elut\xFD\x81\r\nk\xF9\xF2\n\r"));
  EXPECT_EQ(mime->text(), QStringLiteral("Žlutý") + QChar(0x81) + QStringLiteral("\nkůň\n\r"));
}

TEST(ClipboardText, OthersTextGetsOurLinesAndLetters) {
  const std::pair<QString, std::string_view> cases[] = {
      {QStringLiteral("\na\r\nb\n\nc\r"), "\r\na\r\nb\r\n\r\nc\r"},
      {QStringLiteral("příliš → žlutý 🐎"), "příliš ? žlutý ?"_w},
      {QStringLiteral("c\u030Carka"), "čarka"_w},  // the accent apart
  };
  for (const auto& [theirs, ours] : cases) {
    QMimeData mime;
    mime.setText(theirs);
    EXPECT_EQ(TextFromMime(&mime), ours);
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
