#include "platform/qt/desktop/clipboard_text.h"

#include "platform/qt/convert.h"

namespace pelmar {
namespace {

constexpr QLatin1String kPlainMimeType("text/plain");

class TextMime : public QMimeData {
 public:
  explicit TextMime(std::string_view bytes) : bytes_(ToBytes(bytes)) {}

  [[nodiscard]] QStringList formats() const override { return {kPlainMimeType, QString::fromLatin1(kBytesMimeType)}; }

 protected:
  [[nodiscard]] QVariant retrieveData(const QString& format, QMetaType type) const override {
    if (format == QLatin1String(kBytesMimeType)) return bytes_;
    if (format != kPlainMimeType) return QMimeData::retrieveData(format, type);
    QString plain = TextToQString(ViewOf(bytes_));
    plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return plain;
  }

 private:
  QByteArray bytes_;
};

QString WithCrLf(QString text) {
  return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\n', QLatin1String("\r\n"));
}

}  // namespace

QMimeData* MimeFromText(std::string_view bytes) { return new TextMime(bytes); }

bool HasText(const QMimeData& mime) {
  return mime.hasFormat(QString::fromLatin1(kBytesMimeType)) || mime.hasFormat(kPlainMimeType);
}

std::optional<std::string> TextFromMime(const QMimeData* mime) {
  if (mime == nullptr) return std::nullopt;
  if (const QString own = QString::fromLatin1(kBytesMimeType); mime->hasFormat(own))
    return mime->data(own).toStdString();
  if (HasText(*mime)) return TextInCodePage(mime->text());
  return std::nullopt;
}

QString LineFromMime(const QMimeData& mime, bool holds_lines) {
  const QString own = QString::fromLatin1(kBytesMimeType);
  QString text = mime.hasFormat(own) ? TextToQString(ViewOf(mime.data(own)))
                                     : WithCrLf(mime.text().normalized(QString::NormalizationForm_C));
  return holds_lines ? text : text.remove(u'\r').remove(u'\n');
}

std::string TextInCodePage(const QString& foreign) { return TextFromQString(WithCrLf(foreign)); }

}  // namespace pelmar
