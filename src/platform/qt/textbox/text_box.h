// The multi-line text control of the program. It shows and edits a TextBuffer of Windows-1250 bytes. Other classes do
// most of the work: TextView (layout), TextPainter, CaretMover, TextMouse, TextDrop, TextComposer (input methods),
// CaretBlink and TextBoxAccessible. The keys are in text_keys.h. Positions are byte offsets from 0, clipped to the
// text. Forms call the setters in lower camel case.
#pragma once

#include <QAbstractScrollArea>
#include <QByteArray>
#include <QColor>
#include <functional>
#include <memory>
#include <optional>

#include "platform/qt/textbox/caret_blink.h"
#include "platform/qt/textbox/text_composer.h"
#include "platform/qt/textbox/text_drop.h"
#include "platform/qt/textbox/text_keys.h"
#include "platform/qt/textbox/text_mouse.h"
#include "platform/qt/textbox/text_painter.h"
#include "platform/qt/textbox/text_view.h"
#include "text/text_buffer.h"

namespace pelmar {

class TextBoxNotifier;

class TextBox : public QAbstractScrollArea {
  Q_OBJECT
  Q_PROPERTY(QByteArray Text READ Text WRITE SetText NOTIFY TextChanged USER true)
  Q_PROPERTY(int SelStart READ SelStart WRITE SetSelStart NOTIFY SelectionChanged)
  Q_PROPERTY(int SelLength READ SelLength WRITE SetSelLength NOTIFY SelectionChanged)
  Q_PROPERTY(QByteArray SelText READ SelText WRITE SetSelText)
  Q_PROPERTY(bool readOnly READ IsReadOnly WRITE setReadOnly)
  Q_PROPERTY(Qt::Alignment alignment READ Alignment WRITE setAlignment)
  Q_PROPERTY(QColor textColor READ TextColor WRITE setTextColor)
  Q_PROPERTY(QColor backgroundColor READ BackgroundColor WRITE setBackgroundColor)
  Q_PROPERTY(bool standardShortcuts READ StandardShortcuts WRITE setStandardShortcuts)
  Q_PROPERTY(bool tabChangesFocus READ TabChangesFocus WRITE setTabChangesFocus)
  Q_PROPERTY(bool tabSelectsAll READ TabSelectsAll WRITE setTabSelectsAll)

 public:
  explicit TextBox(QWidget* parent = nullptr);
  ~TextBox() override;

  [[nodiscard]] TextBuffer& Buffer() { return *buffer_; }
  [[nodiscard]] const TextBuffer& Buffer() const { return *buffer_; }
  // Shows the given buffer, which must live as long as this control or until the next call.
  void UseBuffer(TextBuffer& buffer);

  [[nodiscard]] QByteArray Text() const;
  void SetText(const QByteArray& text);
  [[nodiscard]] int SelStart() const { return static_cast<int>(buffer_->SelStart()); }
  void SetSelStart(int start);
  [[nodiscard]] int SelLength() const { return static_cast<int>(buffer_->SelLength()); }
  void SetSelLength(int length);
  [[nodiscard]] QByteArray SelText() const;
  void SetSelText(const QByteArray& text);

  [[nodiscard]] bool IsReadOnly() const { return read_only_; }
  void setReadOnly(bool read_only);
  // Left, right or centre. Other values mean left.
  [[nodiscard]] Qt::Alignment Alignment() const;
  void setAlignment(Qt::Alignment alignment);
  // An invalid colour means the colour of the palette.
  [[nodiscard]] QColor TextColor() const { return text_color_; }
  void setTextColor(const QColor& color);
  [[nodiscard]] QColor BackgroundColor() const { return background_color_; }
  void setBackgroundColor(const QColor& color);
  // False if a menu handles Ctrl with letters.
  [[nodiscard]] bool StandardShortcuts() const { return standard_shortcuts_; }
  void setStandardShortcuts(bool standard) { standard_shortcuts_ = standard; }
  // If false, TAB is typed, except in a read-only text. Shift+TAB always goes to the previous field.
  [[nodiscard]] bool TabChangesFocus() const { return tab_changes_focus_; }
  void setTabChangesFocus(bool changes) { tab_changes_focus_ = changes; }

  // If true, TAB or Shift+TAB into this control selects the whole text, as in a single-line field.
  [[nodiscard]] bool TabSelectsAll() const { return tab_selects_all_; }
  void setTabSelectsAll(bool selects) { tab_selects_all_ = selects; }

  // If true, a pale caret stays when the text box loses the focus, since tools in other windows insert text here.
  void SetCaretStays(bool stays) { caret_stays_ = stays; }

  // Does what the key does. Menus call this function too. A read-only text is not changed.
  void Do(const TextKey& key);
  // Replaces the selection by the result of TextFromMime. Does nothing if there is no text or if this control is
  // read-only.
  void Insert(const QMimeData* mime);

  // Geometry for the helper classes, in pixels of the viewport.
  [[nodiscard]] TextPlace PlaceAt(QPoint point) const;
  [[nodiscard]] bool IsSelectedAt(QPoint point) const;
  [[nodiscard]] QRect CaretRect() const;
  [[nodiscard]] QRect CharRect(std::size_t pos) const;
  // Move the caret. PutCaret leaves no selection. SelectTo keeps the anchor of the selection.
  void PutCaret(TextPlace place) { MoveCaret(place, false); }
  void SelectTo(TextPlace place) { MoveCaret(place, true); }
  void Select(TextSpan span, bool caret_first = false);
  // Scroll until a position or the caret is visible.
  void Reveal(std::size_t pos);
  void RevealCaret();
  // The span of the row that contains a position, including a line break after the row.
  [[nodiscard]] TextSpan RowSpan(std::size_t pos) const;
  // Makes the selection the primary selection, which the middle mouse button pastes.
  void PublishSelection();
  // Marks the place where a drop would insert text. Without a place, removes the mark.
  void ShowDropPlace(std::optional<TextPlace> place);

 Q_SIGNALS:
  void TextChanged();
  void SelectionChanged();

 public:
  [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override { mouse_.Press(event); }
  void mouseMoveEvent(QMouseEvent* event) override { mouse_.Move(event); }
  void mouseReleaseEvent(QMouseEvent* event) override { mouse_.Release(event); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { mouse_.DoubleClick(event); }
  void dragEnterEvent(QDragEnterEvent* event) override { drop_.Move(event); }
  void dragMoveEvent(QDragMoveEvent* event) override { drop_.Move(event); }
  void dragLeaveEvent(QDragLeaveEvent* /*event*/) override { drop_.Leave(); }
  void dropEvent(QDropEvent* event) override { drop_.Drop(event); }

 private:
  void FollowChange(const TextChange& change);
  void ShowChange(const TextChange& change);
  void FollowSelection();
  void UpdateRows(const RowsChange& rows);
  void UpdateRowsOf(TextSpan span);
  void MoveCaret(TextPlace place, bool select);
  void RevealRect(QRect rect);
  void UpdateScrollBar();
  void Relayout();
  void ShowAnew();
  void GetReady();
  [[nodiscard]] bool Showing() const { return ready_ && isVisible(); }
  void KeepTopWhile(const std::function<void()>& change);
  void ShowCaretAnew();
  void Move(const TextKey& key);
  void Edit(TextCommand command);
  void CopySelection();
  void PaintComposed(QPainter& painter);
  [[nodiscard]] std::size_t PageRows() const;
  // How far the text is scrolled down, in pixels.
  [[nodiscard]] int Scrolled() const;
  [[nodiscard]] int CaretWidth() const;
  [[nodiscard]] TextColours Colours() const;
  [[nodiscard]] QColor Background() const;
  [[nodiscard]] QPoint CaretPoint() const;
  // The beginning of the composed text: CaretPoint, or further left if the composed text doesn't fit.
  [[nodiscard]] QPoint ComposedPoint() const;

  std::unique_ptr<TextBuffer> own_buffer_;
  TextBuffer* buffer_ = nullptr;
  Listening changes_, moves_;
  std::unique_ptr<TextView> view_;
  CaretMover mover_;
  CaretBlink blink_;
  TextMouse mouse_;
  TextDrop drop_;
  TextComposer composer_;
  std::unique_ptr<TextBoxNotifier> notifier_;
  std::optional<TextPlace> drop_place_;
  std::uint64_t shown_revision_ = 0;
  TextSpan shown_selection_;
  QRect shown_caret_;
  QColor text_color_;
  QColor background_color_;
  bool read_only_ = false;
  bool standard_shortcuts_ = true;
  bool tab_changes_focus_ = false;
  bool tab_selects_all_ = false;
  bool caret_stays_ = false;
  bool updating_bar_ = false;
  bool resetting_input_ = false;
  bool ready_ = false;  // set just before the first paint, see showEvent
};

}  // namespace pelmar
