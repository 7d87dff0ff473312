// A main window without glass: it keeps what it is told and writes down what it is asked, in order.
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
  int state = 0;
  int alignment = 0;
  EditorLook look;

  void SetPlace(const TwipsRect& p) override {
    place = p;
    calls.push_back("place");
  }
  TwipsRect Place() const override { return place; }
  void SetWindowState(int s) override {
    state = s;
    calls.push_back("state");
  }
  int WindowState() const override { return state; }
  void SetAlwaysOnTop(bool on_top) override { calls.push_back(on_top ? "top" : "not top"); }
  void SetEditorColors(Color fore, Color back) override {
    look.fore_color = fore;
    look.back_color = back;
    calls.push_back("colors");
  }
  void SetEditorFont(const std::string& name) override {
    look.font_name = name;
    calls.push_back("font");
  }
  void ApplyEditorFontSize(int size) override {
    look.font_size = size;
    calls.push_back("size");
  }
  void SetEditorBold(bool bold) override {
    look.bold = bold;
    calls.push_back("bold");
  }
  void SetEditorItalic(bool italic) override {
    look.italic = italic;
    calls.push_back("italic");
  }
  void MarkBold(bool bold) override { calls.push_back(bold ? "bold mark" : "no bold mark"); }
  void MarkItalic(bool italic) override { calls.push_back(italic ? "italic mark" : "no italic mark"); }
  void SetAlignment(int a) override { alignment = a; }
  int Alignment() const override { return alignment; }
  void SetNormalState() override { calls.push_back("normal"); }
  void SetOuterSize(int width, int height) override {
    place.width = width;
    place.height = height;
  }
  void MoveTo(const TwipsRect& p) override { place = p; }
  EditorLook Look() const override { return look; }
};

// A look in one line.
inline std::string Told(const EditorLook& look) {
  return look.font_name + ' ' + std::to_string(std::lround(look.font_size)) + (look.bold ? " bold" : "") +
         (look.italic ? " italic " : " ") + ColorToHex(look.fore_color) + ' ' + ColorToHex(look.back_color);
}

}  // namespace pelmar
