#include "platform/qt/convert.h"

#include "text/codepage.h"

namespace pelmar {

QString TextToQString(std::string_view text) {
  QString string(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  for (std::size_t i = 0; i < text.size(); ++i)
    string[static_cast<qsizetype>(i)] = QChar(UnicodeOf(static_cast<unsigned char>(text[i])));
  return string;
}

std::string TextFromQString(const QString& string) {
  return FromUtf16({reinterpret_cast<const char16_t*>(string.utf16()), static_cast<std::size_t>(string.size())});
}

}  // namespace pelmar
