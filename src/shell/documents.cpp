#include "shell/documents.h"

#include "platform/paths.h"
#include "text/utf8.h"

namespace pelmar {

Documents::Documents(TextBuffer& buffer)
    : buffer_(buffer), changes_(buffer.OnChange([this](const TextChange&) { TextChanged(); })) {}

std::string Documents::Title() const { return "Pelmar VEX (" + title_.path + (title_.marked ? ")*" : ")"); }

const KnownFile* Documents::CurrentFile() const {
  const KnownFile& known = Slot(selected_).known;
  return known.path == current_path_ ? &known : nullptr;
}

void Documents::LeaveTab() {
  Current().Text = buffer_.Text();
  Current().Path = current_path_;
  // required: a change of the text sets Modified only here
  if (TitleIsMarked()) Current().Modified = true;
}

void Documents::EnterTab(int entered) {
  selected_ = entered;
  // required: if SetText changes the text, TextChanged runs while the path of the old tab is still current. TextChanged
  // then stores this path in the slot of the new tab.
  title_follows_ = true;
  buffer_.SetText(std::exchange(Current().Text, {}));
  title_follows_ = false;
  current_path_ = faces_[IndexFromOne(entered)].ToolTipText;
  // SetPath would throw for a restored document without an extension.
  if (HasExtension(current_path_)) target_.SetPath(current_path_);
  SetTitle(current_path_, Current().Modified);
}

void Documents::SwitchTo(int tab) {
  if (tab == selected_) return;
  LeaveTab();
  EnterTab(tab);
  tab_selected.Notify(tab);
}

void Documents::TextChanged() {
  if (!title_follows_) SetTitle(title_.path, true);
  Current().Path = current_path_;
}

bool Documents::IsUnsaved(int tab) const { return Slot(tab).Modified || (tab == selected_ && TitleIsMarked()); }

int Documents::UnsavedCount() const {
  int count = 0;
  for (int tab = 1; tab <= kTabCount; ++tab) count += IsUnsaved(tab) ? 1 : 0;
  return count;
}

int Documents::EmptyTab() const {
  for (int step = 0; step < kTabCount; ++step) {
    const int tab = (selected_ + step) % kTabCount + 1;
    if (TextOf(tab).empty() && Face(tab).ToolTipText.empty() && !IsUnsaved(tab)) return tab;
  }
  return 0;
}

void Documents::ClearCurrent() {
  SetFace({}, {});
  Current() = {};
  // required: if SetText changes the text, TextChanged runs while the old path is still current. TextChanged then
  // stores this path in the cleared slot.
  buffer_.SetText({});
  ForgetPath();
}

void Documents::ForgetPath() {
  current_path_.clear();
  ShowPathInTitle();
}

void Documents::Restore(int tab, std::string text, const std::string& path) {
  SwitchTo(tab);
  current_path_ = path;
  Remember({path, std::nullopt, !path.empty() && LooksLikeUtf8(text)});
  buffer_.SetText(std::move(text));
  Current().Path = path;
  Current().Modified = true;
  SetTitle(current_path_, true);
  if (HasExtension(path)) target_.SetPath(path);  // SetPath would throw for a name without an extension
  SetFace(std::string(NameOf(path)), path);
}

void Documents::ShowPathInTitle() { SetTitle(current_path_, false); }

void Documents::MakeCurrent(const std::string& path) {
  current_path_ = path;
  target_.SetPath(path);  // required: if this throws, the steps below aren't done
  Current().Path = path;
  Current().Modified = false;
  ShowPathInTitle();
  SetFace(FilePart(path, 2) + "." + FilePart(path, 3), path);
}

void Documents::MakeCurrent(const std::string& path, std::string text) {
  current_path_ = path;  // required: set before SetText notifies the change
  // required: without an extension, the title keeps the old path, and a changed text gives the title the "*"
  title_follows_ = HasExtension(path);
  buffer_.SetText(std::move(text));
  title_follows_ = false;
  MakeCurrent(path);
}

void Documents::SetTitle(std::string path, bool marked) {
  TitleParts title{std::move(path), marked};
  if (title == title_) return;
  title_ = std::move(title);
  title_changed.Notify();
}

void Documents::SetFace(std::string caption, std::string tool_tip) {
  faces_[IndexFromOne(selected_)] = {std::move(caption), std::move(tool_tip)};
  face_changed.Notify(selected_);
}

}  // namespace pelmar
