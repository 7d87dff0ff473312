#include "platform/qt/desktop/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QWindow>
#include <utility>

#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/x11.h"

namespace pelmar {

Clipboard::Clipboard() {
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] { ++revision_; });
}

const std::optional<std::string>& Clipboard::Content() {
  // Update fetched_ before the fetch, so that a change during the fetch is noticed.
  if (std::exchange(fetched_, revision_) == revision_) return text_;
  text_ = ClipboardHasOwner() ? TextFromMime(QGuiApplication::clipboard()->mimeData()) : std::nullopt;
  return text_;
}

void Clipboard::SetText(std::string_view text) {
  ++revision_;
  QGuiApplication::clipboard()->setMimeData(MimeFromText(text));
}

void Clipboard::Clear() {
  ++revision_;
  QGuiApplication::clipboard()->clear();
}

void WhenClipboardComes(QObject& context, std::function<void()> act) {
  if (!IsWayland()) return;
  QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &context, std::move(act), Qt::SingleShotConnection);
}

}  // namespace pelmar
