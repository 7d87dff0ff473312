#include "platform/qt/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/clipboard_owner.h"
#include "platform/qt/clipboard_text.h"

namespace pelmar {

Clipboard::Clipboard() {
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] { fresh_ = false; });
}

const std::optional<std::string>& Clipboard::Text() {
  if (fresh_) return text_;
  fresh_ = true;  // Before the fetch: a change announced during it must not get lost.
  text_ = ClipboardHasOwner() ? TextFromMime(QGuiApplication::clipboard()->mimeData()) : std::nullopt;
  return text_;
}

void Clipboard::SetText(std::string_view text) {
  fresh_ = false;
  QGuiApplication::clipboard()->setMimeData(MimeFromText(text));
}

void Clipboard::Clear() {
  fresh_ = false;
  QGuiApplication::clipboard()->clear();
}

}  // namespace pelmar
