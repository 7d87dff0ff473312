// `Odstavec`, `Hr`, `Nadpis` and `Barva`: paragraph, line, heading and font, with their options.
#pragma once

#include <functional>

#include "platform/color.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Odstavec;
class Hr;
class Nadpis;
class Barva;
}  // namespace Ui

namespace pelmar {

class Odstavec : public FragmentDialog<Ui::Odstavec> {
  Q_OBJECT

 public:
  Odstavec(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class Hr : public FragmentDialog<Ui::Hr> {
  Q_OBJECT

 public:
  Hr(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class Nadpis : public FragmentDialog<Ui::Nadpis> {
  Q_OBJECT

 public:
  Nadpis(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class Barva : public FragmentDialog<Ui::Barva> {
  Q_OBJECT

 public:
  Barva(TextBuffer& document, std::function<Color(Color)> pick_color, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
