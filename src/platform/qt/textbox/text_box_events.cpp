// The event handlers of the text box.
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <QWindow>
#include <cmath>

#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/textbox/text_box.h"
#include "platform/qt/textbox/text_box_menu.h"

namespace pelmar {
namespace {

QColor Between(const QColor& a, const QColor& b) {
  return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

}  // namespace

bool TextBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->ignore();  // shortcuts of menus come before all keys of the text box
    return false;
  }
  return QAbstractScrollArea::event(event);
}

// ---- keyboard

void TextBox::keyPressEvent(QKeyEvent* event) {
  if (const auto key = TextKeyOf(*event, standard_shortcuts_)) {
    if (read_only_ && ChangesText(key->command)) return event->ignore();
    Do(*key);
    return event->accept();
  }
  // Shift+F10 opens the pop-up menu, for keyboards without a menu key.
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    RevealCaret();  // the menu opens at the caret
    const QPoint at = CaretRect().bottomLeft();
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, at, viewport()->mapToGlobal(at));
    QGuiApplication::sendEvent(viewport(), &menu);
    return event->accept();
  }
  const QString typed = TypedText(*event);
  if (typed.isEmpty() || read_only_) return event->ignore();
  buffer_->Type(TextInCodePage(typed));
  event->accept();
}

void TextBox::Do(const TextKey& key) {
  if (read_only_ && ChangesText(key.command)) return;
  switch (key.command) {
    case TextCommand::kMove:
      return Move(key);
    case TextCommand::kCopy:
      return CopySelection();
    case TextCommand::kSelectAll:
      mover_.Forget();
      buffer_->Select(0, buffer_->Size());
      return PublishSelection();
    case TextCommand::kScrollUp:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    case TextCommand::kScrollDown:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    default:
      return Edit(key.command);
  }
}

void TextBox::Move(const TextKey& key) {
  view_->EnsureLayout();
  if (key.move == CaretMove::kPageUp || key.move == CaretMove::kPageDown) {
    const int page = static_cast<int>(PageRows()) * view_->Glyphs().RowHeight();
    verticalScrollBar()->setValue(verticalScrollBar()->value() + (key.move == CaretMove::kPageUp ? -page : page));
  }
  mover_.Go(*buffer_, key.move, key.select, PageRows());
  RevealCaret();
  ShowCaretAnew();
  if (key.select) PublishSelection();
}

void TextBox::Edit(TextCommand command) {
  TextBuffer& buffer = *buffer_;
  const std::string& text = buffer.Text();
  const std::size_t caret = buffer.Caret();
  switch (command) {
    case TextCommand::kNewLine:
      return buffer.Type("\r\n");
    case TextCommand::kEraseBefore:
      return buffer.EraseBefore(caret - PreviousStop(text, caret));
    case TextCommand::kEraseAfter:
      return buffer.EraseAfter(NextStop(text, caret) - caret);
    case TextCommand::kEraseWordBefore:
      return buffer.EraseBefore(caret - PreviousWord(text, caret));
    case TextCommand::kEraseWordAfter:
      return buffer.EraseAfter(NextWord(text, caret) - caret);
    case TextCommand::kUndo:
      buffer.Undo();
      return;
    case TextCommand::kRedo:
      buffer.Redo();
      return;
    case TextCommand::kCut:
      CopySelection();
      if (buffer.HasSelection()) buffer.ReplaceSelection({});
      return;
    case TextCommand::kPaste:
      return Insert(QGuiApplication::clipboard()->mimeData());
    default:
      return;
  }
}

void TextBox::CopySelection() {
  if (buffer_->HasSelection()) QGuiApplication::clipboard()->setMimeData(MimeFromText(buffer_->SelText()));
}

void TextBox::Insert(const QMimeData* mime) {
  if (read_only_) return;
  // An empty text would erase the selection.
  if (const auto text = TextFromMime(mime); text && !text->empty()) buffer_->ReplaceSelection(*text);
}

bool TextBox::focusNextPrevChild(bool next) {
  if (next && !tab_changes_focus_ && !read_only_) return false;
  return QAbstractScrollArea::focusNextPrevChild(next);
}

// ---- input methods

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
  if (read_only_ || resetting_input_) return event->ignore();
  const bool composed = composer_.Active() || !event->preeditString().isEmpty();
  composer_.Handle(*event, *buffer_);
  if (composed) viewport()->update();
  RevealCaret();
  ShowCaretAnew();
  event->accept();
}

QVariant TextBox::inputMethodQuery(Qt::InputMethodQuery query) const {
  switch (query) {
    case Qt::ImEnabled:
      return !read_only_;
    case Qt::ImReadOnly:
      return read_only_;
    case Qt::ImHints:
      return static_cast<int>(inputMethodHints());
    case Qt::ImCursorRectangle:
      return CaretRect().translated(viewport()->pos());
    case Qt::ImAnchorRectangle:
      return CharRect(buffer_->Anchor()).translated(viewport()->pos());
    case Qt::ImInputItemClipRectangle:
      return viewport()->geometry();
    case Qt::ImFont:
      return font();
    default:
      break;
  }
  const QVariant answer = TextComposer::AnswerFromText(query, *buffer_);
  return answer.isValid() ? answer : QAbstractScrollArea::inputMethodQuery(query);
}

// ---- painting

QColor TextBox::Background() const {
  return background_color_.isValid() ? background_color_ : palette().color(QPalette::Base);
}

TextColours TextBox::Colours() const {
  const QPalette& colours = palette();
  const QColor own = text_color_.isValid() && isEnabled() ? text_color_ : colours.color(QPalette::Text);
  if (hasFocus() && isActiveWindow())
    return {own, colours.color(QPalette::Active, QPalette::HighlightedText),
            colours.color(QPalette::Active, QPalette::Highlight)};
  // Many palettes have equal colours for active and inactive selections, so an inactive selection gets a mixed colour.
  return {own, own, Between(colours.color(QPalette::Active, QPalette::Highlight), Background())};
}

void TextBox::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const QRect exposed = event->rect();
  painter.fillRect(exposed, Background());
  const TextLayout& layout = view_->Layout();
  const TextColours colours = Colours();
  TextPainter rows(painter, *buffer_, layout, view_->Glyphs(), colours);
  if (composer_.Active()) rows.OpenGap(mover_.Row(*buffer_), buffer_->Caret(), composer_.Width(font()));

  const int scrolled = Scrolled();
  const QRect near = exposed.adjusted(0, -TextView::kOverhang, 0, TextView::kOverhang);
  const int height = view_->Glyphs().RowHeight();
  const std::size_t last = view_->RowAt(near.bottom() + scrolled);
  for (std::size_t row = view_->RowAt(near.top() + scrolled); row <= last; ++row) {
    const QPoint at(TextView::kMargin, view_->RowTop(row) - scrolled);
    const QRect reach(0, at.y() - TextView::kOverhang, viewport()->width(), height + 2 * TextView::kOverhang);
    if (event->region().intersects(reach)) rows.PaintRow(row, at, exposed.left(), exposed.right() + 1);
  }

  if (composer_.Active()) PaintComposed(painter);
  const QRect caret = CaretRect();
  if (blink_.Shown() && composer_.ShowsCaret())
    painter.fillRect(caret, hasFocus() ? colours.text : Between(colours.text, Background()));
  shown_caret_ = caret;
  if (!drop_place_) return;
  const std::size_t row = layout.RowOf(drop_place_->pos, drop_place_->at_row_end);
  const QPoint at(view_->StopX(row, drop_place_->pos), view_->RowTop(row) - scrolled);
  painter.fillRect(QRect(at, caret.size()), colours.text);
}

void TextBox::PaintComposed(QPainter& painter) {
  const QPoint at = ComposedPoint();
  painter.fillRect(QRect(at, QSize(composer_.Width(font()), view_->Glyphs().RowHeight())), Background());
  painter.setPen(Colours().text);
  composer_.Paint(painter, at + QPoint(0, view_->Glyphs().Ascent()), font());
}

void TextBox::scrollContentsBy(int dx, int dy) {
  const qreal ratio = devicePixelRatioF();
  // Painted pixels that move by a fraction of a device pixel would blur, so with a fractional scale all is painted
  // anew.
  if (ratio == std::floor(ratio) && !composer_.Active()) {
    viewport()->scroll(dx, dy);
    shown_caret_.translate(dx, dy);
  } else {
    viewport()->update();
  }
  if (hasFocus()) updateMicroFocus();
}

void TextBox::resizeEvent(QResizeEvent* /*event*/) {
  if (updating_bar_) return;
  KeepTopWhile([this] { Relayout(); });
}

void TextBox::showEvent(QShowEvent* event) {
  // The window manager shows the window again: keep the scroll position.
  if (ready_ && event->spontaneous()) return Relayout();
  if (ready_) return ShowAnew();
  // While the window opens, the window manager needs the processor. So the glyph table is built just before the first
  // paint.
  QWindow* screen_window = window()->windowHandle();
  if (screen_window != nullptr && !screen_window->isExposed()) return screen_window->installEventFilter(this);
  QMetaObject::invokeMethod(this, &TextBox::GetReady, Qt::QueuedConnection);
}

bool TextBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Expose && watched == window()->windowHandle()) {
    watched->removeEventFilter(this);
    GetReady();
  }
  return QAbstractScrollArea::eventFilter(watched, event);
}

void TextBox::GetReady() {
  ready_ = true;
  ShowAnew();
}

void TextBox::ShowAnew() {
  Relayout();
  RevealCaret();
  ShowCaretAnew();
}

void TextBox::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
    return KeepTopWhile([this] {
      view_->SetFont(font());
      mover_.Forget();
      Relayout();
    });
  viewport()->update();
}

void TextBox::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  const bool by_tab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (tab_selects_all_ && by_tab) buffer_->Select(0, buffer_->Size());
  ShowCaretAnew();
  viewport()->update();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  if (caret_stays_) {
    blink_.Start(false);
  } else {
    blink_.Hide();
  }
  viewport()->update();
}

// ---- wheel and menu

void TextBox::wheelEvent(QWheelEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) return event->ignore();
  // Touch pads report distances in pixels. Under X11 these values are unreliable, so they are not used there.
  const bool exact = !event->pixelDelta().isNull() && QGuiApplication::platformName() != QStringLiteral("xcb");
  if (!exact) return QAbstractScrollArea::wheelEvent(event);
  verticalScrollBar()->setValue(verticalScrollBar()->value() - event->pixelDelta().y());
  event->accept();
}

void TextBox::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = BuildTextMenu(*this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(event->globalPos());
  event->accept();
}

}  // namespace pelmar
