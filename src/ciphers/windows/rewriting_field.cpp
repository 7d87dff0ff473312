#include "ciphers/windows/rewriting_field.h"

#include <QLineEdit>
#include <algorithm>

#include "platform/qt/convert.h"

namespace pelmar {
namespace {

int CaretIn(const QString& shown, const QString& typed, int caret) {
  const auto length = static_cast<int>(shown.size());
  if (shown == QLatin1String("0")) return length;
  // If only the end of the typed text is shown, `rewrite` has removed characters at the start.
  const bool is_end = typed.endsWith(shown) && !typed.startsWith(shown);
  const int removed = is_end ? static_cast<int>(typed.size()) - length : 0;
  return std::clamp(caret - removed, 0, length);
}

}  // namespace

void RewriteOnChange(QLineEdit* field, std::function<std::string(std::string_view)> rewrite) {
  QObject::connect(field, &QLineEdit::textChanged, field, [field, rewrite = std::move(rewrite)](const QString& typed) {
    const QString shown = TextToQString(rewrite(TextFromQString(typed)));
    if (shown == typed) return;
    const int caret = CaretIn(shown, typed, field->cursorPosition());
    field->setText(shown);
    field->setCursorPosition(caret);
  });
}

}  // namespace pelmar
