// The two interfaces of the main window that the core uses: its place on the screen, and the look of its text box.
// Tests replace the window by a simple class. Places and sizes of the window are in twips and include the window's
// frame.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/color.h"
#include "platform/twips.h"

namespace pelmar {

// The values are stored in the settings.
enum class WindowMode : std::int32_t { kNormal, kMinimised, kMaximised };

// The look of the main text box. The font's name is Windows-1250.
struct EditorLook {
  std::string font_name;
  Color fore_color = Rgb(0, 0, 0);
  Color back_color = Rgb(255, 255, 255);
  double font_size = 8;  // points
  bool bold = false;
  bool italic = false;
};

class MainPlace {
 public:
  MainPlace() = default;
  MainPlace(const MainPlace&) = delete;
  MainPlace& operator=(const MainPlace&) = delete;
  virtual ~MainPlace() = default;

  // A width or height below 1 is replaced by the initial width or height.
  virtual void SetPlace(const TwipsRect& place) = 0;
  [[nodiscard]] virtual TwipsRect Place() const = 0;
  virtual void SetStartState(WindowMode state) = 0;
  [[nodiscard]] virtual WindowMode WindowState() const = 0;
  virtual void SetAlwaysOnTop(bool on_top) = 0;

  virtual void SetNormalState() = 0;
  virtual void SetOuterSize(int width, int height) = 0;
  // Sets the size, then the position.
  virtual void MoveTo(const TwipsRect& place) = 0;
};

class MainLook {
 public:
  MainLook() = default;
  MainLook(const MainLook&) = delete;
  MainLook& operator=(const MainLook&) = delete;
  virtual ~MainLook() = default;

  // Sets the editor's font size to one of the six sizes of the menu. Any other size is replaced by 8.
  void SetEditorFontSize(int size);
  std::function<void()> on_font_size;  // called at the end of each SetEditorFontSize, for the dialog Visual

  // The check marks of bold and italic are set separately, by MarkBold and MarkItalic.
  virtual void SetEditorColors(Color fore, Color back) = 0;
  virtual void SetEditorFont(const std::string& name) = 0;
  virtual void SetEditorBold(bool bold) = 0;
  virtual void SetEditorItalic(bool italic) = 0;
  virtual void MarkBold(bool bold) = 0;
  virtual void MarkItalic(bool italic) = 0;
  virtual void NextAlignment() = 0;  // left, right, centred, and left again
  [[nodiscard]] virtual EditorLook Look() const = 0;

 protected:
  // Applies one of the six sizes and checks only the menu item of this size.
  virtual void ApplyEditorFontSize(int size) = 0;
};

class MainView : public MainPlace, public MainLook {};

}  // namespace pelmar
