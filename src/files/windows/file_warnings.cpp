#include "files/windows/file_warnings.h"

#include <QEvent>

#include "files/encodings.h"
#include "files/open.h"
#include "platform/qt/convert.h"

namespace pelmar {
namespace {

QString TooLong(std::size_t size) {
  return QStringLiteral("Text má %1 znaků, znovu otevřít jich lze nejvýše %2").arg(size).arg(kLargestDocument);
}

}  // namespace

// The file is asked about where the person comes back to it, never while they type. Another file on the tab, opened or
// saved, is this program's own doing.
FileWarnings::FileWarnings(MainWindow& window, Editor& editor, const OutsideChanges& outside)
    : QObject(&window),
      window_(window),
      documents_(editor.documents),
      outside_(outside),
      heard_{editor.documents.tab_selected.Add([this](int) {
               WarnOfOutside(outside_.OfCurrent());
               WarnOfFormat();
             }),
             editor.documents.face_changed.Add([this](int) {
               WarnOfOutside(OutsideChange::kNone);
               WarnOfFormat();
             }),
             editor.text.OnChange([this](const TextChange&) {
               WarnOfOutside(OutsideChange::kNone);
               window_.Bar().Warn(Warning::kFormat, {});
               const std::size_t size = documents_.Text().Size();
               window_.Bar().Warn(Warning::kTooLong, size > kLargestDocument ? TooLong(size) : QString());
             })} {
  window.installEventFilter(this);
}

bool FileWarnings::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowActivate) WarnOfOutside(outside_.OfCurrent());
  return QObject::eventFilter(watched, event);
}

void FileWarnings::WarnOfOutside(OutsideChange change) {
  window_.Bar().Warn(Warning::kChangedOutside, Utf8ToQString(OutsideNotice(change)));
}

void FileWarnings::WarnOfFormat() {
  const bool from_file = !documents_.CurrentPath().empty();
  window_.Bar().Warn(Warning::kFormat, from_file ? Utf8ToQString(FormatHint(documents_.Text().Text())) : QString());
}

}  // namespace pelmar
