// Documents in one line, for tests to compare as a whole.
#pragma once

#include <string>

#include "shell/documents.h"

namespace pelmar {

// Of the current one: the title behind the program's name, the tab's caption and tool tip, the path that its slot keeps
// with "!" where the slot is flagged as modified, and how many documents are unsaved.
inline std::string StateOf(const Documents& documents) {
  const auto& face = documents.Face(documents.SelectedTab());
  const auto& slot = documents.Slot(documents.SelectedTab());
  const std::string title = documents.Title();
  return title.substr(title.find('(')) + '|' + face.Caption + '|' + face.ToolTipText + '|' + slot.Path +
         (slot.Modified ? "!|" : "|") + std::to_string(documents.UnsavedCount());
}

// The texts of all tabs, "|" behind each.
inline std::string TextsOf(const Documents& documents) {
  std::string texts;
  for (int tab = 1; tab <= kTabCount; ++tab) texts += documents.TextOf(tab) + '|';
  return texts;
}

}  // namespace pelmar
