#include "shell/main_view.h"

#include <algorithm>

#include "shell/menu_table.h"

namespace pelmar {

void MainLook::SetEditorFontSize(int size) {
  constexpr int kOther = 8;
  ApplyEditorFontSize(std::ranges::count(FontSizeItems(), size, &FontSizeItem::points) == 0 ? kOther : size);
  if (on_font_size) on_font_size();
}

}  // namespace pelmar
