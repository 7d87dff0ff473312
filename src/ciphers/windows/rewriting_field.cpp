#include "ciphers/windows/rewriting_field.h"

#include <QLineEdit>

#include "platform/qt/convert.h"

namespace pelmar {

void RewriteOnChange(QLineEdit* field, std::function<std::string(std::string_view)> rewrite) {
  QObject::connect(field, &QLineEdit::textChanged, field, [field, rewrite = std::move(rewrite)](const QString& typed) {
    const QString shown = TextToQString(rewrite(TextFromQString(typed)));
    if (shown == typed) return;
    const auto removed = static_cast<int>(typed.size() - shown.size());
    const bool is_end = typed.endsWith(shown) && !typed.startsWith(shown);
    const int caret = field->cursorPosition() - (is_end ? removed : 0);
    field->setText(shown);  // moves the caret to the end
    if (shown != QLatin1String("0")) field->setCursorPosition(caret);
  });
}

}  // namespace pelmar
