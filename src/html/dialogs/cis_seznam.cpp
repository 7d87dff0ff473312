#include "html/dialogs/cis_seznam.h"

#include "ui_cis_seznam.h"

namespace pelmar {

CisSeznam::CisSeznam(TextBuffer& buffer, QWidget* parent) : ItemListDialog(buffer, ListKind::kNumbers, parent) {}

}  // namespace pelmar
