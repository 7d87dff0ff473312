#include "html/dialogs/seznam.h"

#include "ui_seznam.h"

namespace pelmar {

Seznam::Seznam(TextBuffer& document, QWidget* parent) : ItemListDialog(document, ListKind::kBullets, parent) {}

}  // namespace pelmar
