#include "html/dialogs/cis_seznam.h"

#include "ui_cis_seznam.h"

namespace pelmar {

CisSeznam::CisSeznam(TextBuffer& document, QWidget* parent) : ItemListDialog(document, ListKind::kNumbers, parent) {}

}  // namespace pelmar
