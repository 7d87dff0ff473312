// A main window without a screen. It stores the place, the state and the look that are set. `calls` lists the calls
// that change something, in order, except SetOuterSize, MoveTo and NextAlignment.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "platform/twips.h"
#include "shell/main_view.h"

namespace pelmar {

class PlainView : public MainView {
 public:
  std::vector<std::string> calls;
  TwipsRect place;
  WindowMode state = WindowMode::kNormal;
  EditorLook look;

  void SetPlace(const TwipsRect& p) override { Set(place, p, "place"); }
  TwipsRect Place() const override { return place; }
  void SetStartState(WindowMode s) override { Set(state, s, "state"); }
  WindowMode WindowState() const override { return state; }
  void SetAlwaysOnTop(bool on_top) override { calls.push_back(on_top ? "top" : "not top"); }
  void SetEditorColors(Color fore, Color back) override {
    look.fore_color = fore;
    Set(look.back_color, back, "colors");
  }
  void SetEditorFont(const std::string& name) override { Set(look.font_name, name, "font"); }
  void ApplyEditorFontSize(int size) override { Set(look.font_size, size, "size"); }
  void SetEditorBold(bool bold) override { Set(look.bold, bold, "bold"); }
  void SetEditorItalic(bool italic) override { Set(look.italic, italic, "italic"); }
  void MarkBold(bool bold) override { calls.push_back(bold ? "bold mark" : "no bold mark"); }
  void MarkItalic(bool italic) override { calls.push_back(italic ? "italic mark" : "no italic mark"); }
  void NextAlignment() override {}
  void SetNormalState() override { calls.push_back("normal"); }
  void SetOuterSize(int width, int height) override {
    place.width = width;
    place.height = height;
  }
  void MoveTo(const TwipsRect& p) override { place = p; }
  EditorLook Look() const override { return look; }

 private:
  template <typename Value, typename Given>
  void Set(Value& stored, const Given& given, const char* call) {
    stored = given;
    calls.emplace_back(call);
  }
};

// The look in one line.
inline std::string Described(const EditorLook& look) {
  return look.font_name + ' ' + std::to_string(std::lround(look.font_size)) + (look.bold ? " bold" : "") +
         (look.italic ? " italic " : " ") + ColorToHex(look.fore_color) + ' ' + ColorToHex(look.back_color);
}

}  // namespace pelmar
