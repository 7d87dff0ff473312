// The text that an input method (dead keys, ibus) is composing. This text is shown at the caret but is not in the
// buffer yet. The class also gives input methods the text around the caret.
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
  // Pixels from the beginning of the composed text to the caret in this text.
  [[nodiscard]] int CaretX(const QFont& font) const;
  [[nodiscard]] int Width(const QFont& font) const;

  // Inserts the finished text of the event into the buffer. Stores the text that is still being composed. If the event
  // names a part of the buffer, first erases this part. Otherwise first erases the selection if the event contains
  // finished text or changes the composed text.
  void Handle(const QInputMethodEvent& event, TextBuffer& buffer);
  void Clear();
  void Paint(QPainter& painter, QPointF baseline, const QFont& font) const;

  // The answer to a query about the text around the caret or the selection. Invalid for other queries.
  static QVariant AnswerFromText(Qt::InputMethodQuery query, const TextBuffer& buffer);

 private:
  void Layout(QTextLayout& layout) const;

  QString text_;
  QList<QTextLayout::FormatRange> formats_;
  int caret_ = 0;
  bool shows_caret_ = true;
};

}  // namespace pelmar
