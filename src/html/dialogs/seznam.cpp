#include "html/dialogs/seznam.h"

#include "ui_seznam.h"

namespace pelmar {

Seznam::Seznam(TextBuffer& buffer, QWidget* parent) : ItemListDialog(buffer, ListKind::kBullets, parent) {}

}  // namespace pelmar
