// The five documents over one text box: slots, the current path, the tabs' faces and the title with its mark.
// Four places hold document state, each with its own truth, and their disagreements are required: the box holds the
// live text, `current path` its path, a tab's tool tip the path that a switch restores, and the title's "*" the mark of
// the current document. Tabs count from 1. Paths, captions and the title are UTF-8, texts Windows-1250.
#pragma once

#include <array>
#include <string>

#include "shell/save_target.h"
#include "text/index.h"
#include "text/listeners.h"
#include "text/text_buffer.h"

namespace pelmar {

inline constexpr int kTabCount = 5;

struct DocSlot {
  std::string Text;  // of a tab that isn't on show; the box holds the other one
  std::string Path;
  bool Modified = false;  // the document that a tab switch left behind had unsaved changes
};

struct TabFace {
  std::string Caption;      // the file's name and extension
  std::string ToolTipText;  // the full path
};

class Documents {
 public:
  // Listens to the box from here on, before any view of it.
  explicit Documents(TextBuffer& text);

  void SwitchTo(int tab);

  [[nodiscard]] int SelectedTab() const { return selected_; }
  [[nodiscard]] const std::string& TextOf(int tab) const { return tab == selected_ ? text_.Text() : Slot(tab).Text; }
  [[nodiscard]] const DocSlot& Slot(int tab) const { return slots_[IndexFromOne(tab)]; }
  [[nodiscard]] const TabFace& Face(int tab) const { return faces_[IndexFromOne(tab)]; }
  [[nodiscard]] const std::string& CurrentPath() const { return current_path_; }
  [[nodiscard]] std::string Title() const;
  [[nodiscard]] bool Marked() const { return title_.marked; }
  [[nodiscard]] TextBuffer& Text() { return text_; }
  [[nodiscard]] const TextBuffer& Text() const { return text_; }
  [[nodiscard]] SaveTarget& Target() { return target_; }

  // True for a document whose changes a close would lose: the slot's flag, or the mark for the current one.
  [[nodiscard]] bool IsUnsaved(int tab) const;
  // The number that the question at the close tells.
  [[nodiscard]] int UnsavedCount() const;

  // The next tab behind the current one that holds nothing, 0 where there is none.
  [[nodiscard]] int EmptyTab() const;

  // Empties the current tab; the question has been answered.
  void ClearCurrent();
  // The start's fresh state: no path, no mark.
  void ForgetPath();
  // The start: the restored text counts as unchanged.
  void ForgetFirstSlotsMark() { slots_[0].Modified = false; }
  // A document that a crash left behind comes back into its tab, which becomes the selected one, marked as unsaved.
  void Restore(int tab, std::string text, const std::string& path);

  // The file at the path is the current document from here on, and the text is what it holds: the end of a save.
  // Throws RuntimeError for a name without a full stop, when nothing but the current path has changed.
  void MakeCurrent(const std::string& path);
  // The same for a file that is opened; its text comes in first, also where it throws.
  void MakeCurrent(const std::string& path, std::string text);

  Listeners<> title_changed;
  Listeners<int> face_changed;  // of this tab
  Listeners<int> tab_selected;  // this one, when all of it is there

 private:
  struct TitleParts {
    std::string path;
    bool marked = false;
    bool operator==(const TitleParts&) const = default;
  };

  DocSlot& Current() { return slots_[IndexFromOne(selected_)]; }
  void LeaveTab();
  void EnterTab(int entered);
  void TextChanged();
  void ShowPathInTitle();  // without "*"
  void SetTitle(std::string path, bool marked);
  void SetFace(std::string caption, std::string tool_tip);

  TextBuffer& text_;
  std::array<DocSlot, kTabCount> slots_;
  std::array<TabFace, kTabCount> faces_;
  int selected_ = 1;
  std::string current_path_;
  TitleParts title_;
  SaveTarget target_;
  bool title_follows_ = false;  // behind the change of the text that goes on: so it is told once
  Listening changes_;
};

}  // namespace pelmar
