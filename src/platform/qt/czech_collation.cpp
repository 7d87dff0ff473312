#include "platform/qt/czech_collation.h"

#include <QLocale>

namespace pelmar {

QCollator CzechCollator() {
  QCollator collator(QLocale(QLocale::Czech, QLocale::Czechia));
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  return collator;
}

}  // namespace pelmar
