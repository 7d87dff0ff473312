// The five documents, which share one TextBuffer. The current document is that of the selected tab. required: the state
// of this document lies in four places, which may disagree. The buffer holds the text. CurrentPath() is the path of
// this text. The tool tip of a tab holds the path that a switch to the tab restores. The "*" in the title marks unsaved
// changes. Tabs count from 1. Texts are Windows-1250.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <utility>

#include "platform/platform.h"
#include "shell/save_target.h"
#include "text/index.h"
#include "text/listeners.h"
#include "text/text_buffer.h"

namespace pelmar {

inline constexpr int kTabCount = 5;

// The state of a document's file when this program opened or saved the file.
struct KnownFile {
  std::string path;
  std::optional<FileStamp> stamp;  // taken before the file was read, or after it was written
  bool utf8 = false;               // the text was UTF-8 when the file was opened or at a later save
};

struct DocSlot {
  std::string Text;  // empty for the selected tab, whose text is in the buffer
  std::string Path;
  bool Modified = false;  // LeaveTab and Restore set this flag, MakeCurrent and ClearCurrent clear it
  KnownFile known;
};

struct TabFace {
  std::string Caption;      // the file's name and extension
  std::string ToolTipText;  // the full path
};

class Documents {
 public:
  // Construct this object before any view of the text, so that this object is notified of a change first.
  explicit Documents(TextBuffer& buffer);

  void SwitchTo(int tab);

  [[nodiscard]] int SelectedTab() const { return selected_; }
  [[nodiscard]] const std::string& TextOf(int tab) const { return tab == selected_ ? buffer_.Text() : Slot(tab).Text; }
  [[nodiscard]] const DocSlot& Slot(int tab) const { return slots_[IndexFromOne(tab)]; }
  [[nodiscard]] const TabFace& Face(int tab) const { return faces_[IndexFromOne(tab)]; }
  [[nodiscard]] const std::string& CurrentPath() const { return current_path_; }
  [[nodiscard]] std::string Title() const;
  [[nodiscard]] bool TitleIsMarked() const { return title_.marked; }
  [[nodiscard]] TextBuffer& Buffer() { return buffer_; }
  [[nodiscard]] const TextBuffer& Buffer() const { return buffer_; }
  // What Remember stored for the selected tab. Null if the stored path differs from CurrentPath(). A document without a
  // file has an empty KnownFile.
  [[nodiscard]] const KnownFile* CurrentFile() const;
  [[nodiscard]] SaveTarget& Target() { return target_; }

  // Whether the document counts as unsaved: `Modified` is set, or the tab is selected and the title has the "*". The
  // close of the program asks about such documents.
  [[nodiscard]] bool IsUnsaved(int tab) const;
  [[nodiscard]] int UnsavedCount() const;

  // The first tab that has no text, no path and no unsaved changes. 0 if there is none. Searches the tabs after the
  // selected tab, then from tab 1 up to the selected tab.
  [[nodiscard]] int EmptyTab() const;

  // Empties the selected tab without a question.
  void ClearCurrent();
  // Clears CurrentPath() and removes the path and the "*" from the title.
  void ForgetPath();
  // Puts a document rescued after a crash into the tab, selects the tab and marks the document as unsaved.
  void Restore(int tab, std::string text, const std::string& path);

  // Stores the state of the file that was just read or written for the current document.
  void Remember(KnownFile file) { Current().known = std::move(file); }
  // Makes the path the file of the current document and counts the text as saved. Throws RuntimeError for a name
  // without an extension. Then only CurrentPath() and Target() have changed.
  void MakeCurrent(const std::string& path);
  // Loads the text of an opened file and then calls MakeCurrent(path). If this call throws, the text stays loaded.
  void MakeCurrent(const std::string& path, std::string text);

  Listeners<> title_changed;
  Listeners<int> face_changed;  // with the tab's number
  Listeners<int> tab_selected;  // with the tab's number, after its text, path and title are set

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
  void ShowPathInTitle();  // with CurrentPath() and without the "*"
  void SetTitle(std::string path, bool marked);
  void SetFace(std::string caption, std::string tool_tip);

  TextBuffer& buffer_;
  std::array<DocSlot, kTabCount> slots_;
  std::array<TabFace, kTabCount> faces_;
  int selected_ = 1;
  std::string current_path_;
  TitleParts title_;
  SaveTarget target_;
  bool title_follows_ = false;  // SetText is followed by SetTitle, so TextChanged leaves the title alone
  Listening changes_;
};

}  // namespace pelmar
