#include "platform/qt/fonts.h"

#include <QFont>
#include <QStringList>

namespace pelmar {

void SubstituteFonts() {
  QFont::insertSubstitutions(
      QStringLiteral("MS Sans Serif"),
      {QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans"), QStringLiteral("sans-serif")});
  QFont::insertSubstitutions(
      QStringLiteral("Courier New"),
      {QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono"), QStringLiteral("monospace")});
  QFont::insertSubstitutions(
      QStringLiteral("Terminal"),
      {QStringLiteral("Terminus"), QStringLiteral("DejaVu Sans Mono"), QStringLiteral("monospace")});
}

}  // namespace pelmar
