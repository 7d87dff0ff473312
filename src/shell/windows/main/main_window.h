// The main window `Main`: menu, toolbar, text box, tabs and status bar. The window only shows state and forwards
// events; the logic is in the editor, the session and the commands.
#pragma once

#include <QMainWindow>
#include <functional>
#include <string>
#include <vector>

#include "files/files.h"
#include "platform/qt/frames/placement.h"
#include "platform/qt/textbox/text_box.h"
#include "platform/twips.h"
#include "shell/editor.h"
#include "shell/main_view.h"
#include "shell/window_geometry.h"
#include "shell/windows/main/file_tab.h"
#include "shell/windows/main/main_toolbar.h"
#include "shell/windows/main/menu_bar.h"
#include "shell/windows/main/status_strip.h"

namespace pelmar {

class MainWindow : public QMainWindow, public MainView {
  Q_OBJECT

 public:
  MainWindow(Editor& editor, Files& files);

  [[nodiscard]] TextBox& Box() { return *box_; }
  [[nodiscard]] MenuBar& Menus() { return *menus_; }
  [[nodiscard]] MainToolbar& Toolbar() { return *toolbar_; }
  [[nodiscard]] StatusStrip& Bar() { return *bar_; }
  [[nodiscard]] bool MainActive() const { return main_active_; }

  // Called before the window closes; false keeps it open.
  std::function<bool()> may_close;
  std::function<void()> on_line_counting;  // called when a click or double click in the status bar sets LineCounting

  void ShowMain();
  // Hides the text and clears the status bar, or shows the text again. For the lock.
  void HideText(bool hide);
  // Sets the places of text box, tabs and bars, and the width of panel 4. If the window is too low for its bars, makes
  // the window higher.
  void ApplyLayout();
  // Gives panel 4 the width from SparePanelWidth. Call on each tick of the status timer while the window is active.
  void UpdateContentPanel();

  void SetPlace(const TwipsRect& place) override;
  [[nodiscard]] TwipsRect Place() const override;
  void SetStartState(WindowMode state) override;
  [[nodiscard]] WindowMode WindowState() const override;
  void SetAlwaysOnTop(bool on_top) override;
  void SetNormalState() override;
  void SetOuterSize(int width, int height) override;
  void MoveTo(const TwipsRect& place) override;
  void SetEditorColors(Color fore, Color back) override;
  void SetEditorFont(const std::string& name) override;
  void SetEditorBold(bool bold) override;
  void SetEditorItalic(bool italic) override;
  void MarkBold(bool bold) override;
  void MarkItalic(bool italic) override;
  void NextAlignment() override;
  [[nodiscard]] EditorLook Look() const override;

 protected:
  void ApplyEditorFontSize(int size) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeControls();
  void AddViewCommands();
  void FollowDocuments();
  void ToggleBar(std::string_view item, QWidget* bar);
  void ToggleAlwaysOnTop();
  void FitToFrame();
  [[nodiscard]] TwipsRect Wanted(const TwipsRect& now) const;
  void ChangeFont(const std::function<void(QFont&)>& change);
  [[nodiscard]] LayoutInput Measures() const;

  Editor& editor_;
  Files& files_;
  std::vector<Listening> listenings_;
  QWidget* client_ = nullptr;
  MenuBar* menus_ = nullptr;
  MainToolbar* toolbar_ = nullptr;
  FileTab* tabs_ = nullptr;
  TextBox* box_ = nullptr;
  StatusStrip* bar_ = nullptr;
  WindowMode window_state_ =
      WindowMode::kNormal;       // the first state; kNormal after the first change from maximised to normal
  bool left_maximised_ = false;  // the window started maximised and became normal
  TwipsRect wanted_place_;
  bool wants_position_ = true;  // false if only the size is requested
  Placement placement_;
  bool fitted_ = false;  // the window was painted for the first time
  bool ticked_ = false;  // a tick has computed the width of panel 4
  bool main_active_ = false;
};

}  // namespace pelmar
