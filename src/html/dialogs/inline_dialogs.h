// `LineLabel`, `Label`, `Zlomek`, `Comment`, `Meta`, `HtmlID`, `HTMLAscii` and `Smajl`: dialogs of one text, one choice
// or one character.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class LineLabel;
class Label;
class Zlomek;
class Comment;
class Meta;
class HtmlID;
class HTMLAscii;
class Smajl;
}  // namespace Ui

namespace pelmar {

class LineLabel : public FragmentDialog<Ui::LineLabel> {
  Q_OBJECT

 public:
  LineLabel(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class Label : public FragmentDialog<Ui::Label> {
  Q_OBJECT

 public:
  Label(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class Zlomek : public FragmentDialog<Ui::Zlomek> {
  Q_OBJECT

 public:
  Zlomek(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class Comment : public FragmentDialog<Ui::Comment> {
  Q_OBJECT

 public:
  Comment(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class Meta : public FragmentDialog<Ui::Meta> {
  Q_OBJECT

 public:
  Meta(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class HtmlID : public FragmentDialog<Ui::HtmlID> {
  Q_OBJECT

 public:
  HtmlID(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class HTMLAscii : public FragmentDialog<Ui::HTMLAscii> {
  Q_OBJECT

 public:
  HTMLAscii(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

class Smajl : public FragmentDialog<Ui::Smajl> {
  Q_OBJECT

 public:
  Smajl(TextBuffer& document, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
