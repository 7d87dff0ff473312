// The state of the current document, field by field, for tests to compare.
#pragma once

#include <ostream>
#include <string>

#include "shell/documents.h"

namespace pelmar {

struct DocumentState {
  std::string title;        // from "(" on, without the program's name
  std::string tab{};        // the tab's caption
  std::string tip{};        // the tab's tool tip
  std::string slot_path{};  // DocSlot::Path
  bool flagged = false;     // DocSlot::Modified
  int unsaved = 0;          // how many documents are unsaved
  bool operator==(const DocumentState&) const = default;
};

inline void PrintTo(const DocumentState& state, std::ostream* out) {
  *out << "title=" << state.title << " tab=" << state.tab << " tip=" << state.tip << " slot_path=" << state.slot_path
       << " flagged=" << state.flagged << " unsaved=" << state.unsaved;
}

inline DocumentState StateOf(const Documents& documents) {
  const TabFace& face = documents.Face(documents.SelectedTab());
  const DocSlot& slot = documents.Slot(documents.SelectedTab());
  const std::string title = documents.Title();
  return {title.substr(title.find('(')), face.Caption, face.ToolTipText, slot.Path, slot.Modified,
          documents.UnsavedCount()};
}

// The state after a document was opened or saved, while no other document is unsaved.
inline DocumentState SavedAt(const std::string& path) {
  return {'(' + path + ')', path.substr(path.rfind('/') + 1), path, path, false, 0};
}

// The texts of all tabs, with "|" after each text.
inline std::string TextsOf(const Documents& documents) {
  std::string texts;
  for (int tab = 1; tab <= kTabCount; ++tab) texts += documents.TextOf(tab) + '|';
  return texts;
}

}  // namespace pelmar
