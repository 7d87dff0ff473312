// What an input method is composing (dead keys, ibus) before it is text: shown at the caret, not in the buffer.
// Answers also the questions of input methods about the text around the caret.
#pragma once

#include <QFont>
#include <QInputMethodEvent>
#include <QList>
#include <QPainter>
#include <QString>
#include <QTextLayout>
#include <QVariant>

#include "text/text_buffer.h"

namespace pelmar {

class TextComposer {
 public:
  [[nodiscard]] bool Active() const { return !text_.isEmpty(); }
  [[nodiscard]] bool ShowsCaret() const { return shows_caret_; }
  // Pixels from the beginning of the composed text to its caret.
  [[nodiscard]] int CaretX(const QFont& font) const;
  [[nodiscard]] int Width(const QFont& font) const;

  // Puts the event's text into the buffer and keeps what is still being composed.
  void Handle(const QInputMethodEvent& event, TextBuffer& buffer);
  void Clear();
  void Paint(QPainter& painter, QPointF baseline, const QFont& font) const;

  // The part of an answer that comes from the text; invalid for questions about anything else.
  static QVariant AnswerFromText(Qt::InputMethodQuery query, const TextBuffer& buffer);

 private:
  void Layout(QTextLayout& layout) const;

  QString text_;
  QList<QTextLayout::FormatRange> formats_;
  int caret_ = 0;
  bool shows_caret_ = true;
};

}  // namespace pelmar
