// What the core asks of the main window, by its two roles: a place on the screen, and the look of its text box. The
// window is the program's; tests have a plain one. Sizes are outer ones in twips.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/color.h"
#include "platform/twips.h"

namespace pelmar {

// The numbers of the settings record.
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

  virtual void SetPlace(const TwipsRect& place) = 0;
  [[nodiscard]] virtual TwipsRect Place() const = 0;
  virtual void SetWindowState(WindowMode state) = 0;
  [[nodiscard]] virtual WindowMode WindowState() const = 0;
  virtual void SetAlwaysOnTop(bool on_top) = 0;

  virtual void SetNormalState() = 0;
  virtual void SetOuterSize(int width, int height) = 0;
  // Sets the size, then the place.
  virtual void MoveTo(const TwipsRect& place) = 0;
};

class MainLook {
 public:
  MainLook() = default;
  MainLook(const MainLook&) = delete;
  MainLook& operator=(const MainLook&) = delete;
  virtual ~MainLook() = default;

  // The one way to change the editor's font size: six sizes are taken, any other becomes 8.
  void SetEditorFontSize(int size);
  std::function<void()> on_font_size;  // told after each change of the size, for the dialog that shows it

  // Bold and italic have marks of their own.
  virtual void SetEditorColors(Color fore, Color back) = 0;
  virtual void SetEditorFont(const std::string& name) = 0;
  virtual void SetEditorBold(bool bold) = 0;
  virtual void SetEditorItalic(bool italic) = 0;
  virtual void MarkBold(bool bold) = 0;
  virtual void MarkItalic(bool italic) = 0;
  virtual void NextAlignment() = 0;  // left, right, centred, and left again
  [[nodiscard]] virtual EditorLook Look() const = 0;

 protected:
  // One of the six sizes; the check marks of its menu items go with it.
  virtual void ApplyEditorFontSize(int size) = 0;
};

class MainView : public MainPlace, public MainLook {};

}  // namespace pelmar
