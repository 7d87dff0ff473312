#include "platform/qt/clipboard_text.h"

#include <QMimeData>

#include "platform/qt/convert.h"

namespace pelmar {
namespace {

QString ExactType() { return QStringLiteral("application/x-pelmar-windows-1250"); }

std::string WithCrLf(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  char before = '\0';
  for (const char ch : text) {
    if (ch == '\n' && before != '\r') result += '\r';
    result += ch;
    before = ch;
  }
  return result;
}

}  // namespace

QMimeData* MimeFromText(std::string_view bytes) {
  auto* mime = new QMimeData;
  mime->setData(ExactType(), ToBytes(bytes));
  mime->setText(TextToQString(bytes).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  return mime;
}

std::optional<std::string> TextFromMime(const QMimeData* mime) {
  if (mime == nullptr) return std::nullopt;
  if (mime->hasFormat(ExactType())) return std::string(ViewOf(mime->data(ExactType())));
  if (!mime->hasText()) return std::nullopt;
  return WithCrLf(TextFromQString(mime->text()));
}

}  // namespace pelmar
