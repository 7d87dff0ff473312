#include "files/windows/outside_watch.h"

#include <QEvent>

#include "platform/qt/convert.h"

namespace pelmar {

// The file is asked about where the person comes back to it, never while they type. Another file on the tab, opened or
// saved, is this program's own doing.
OutsideWatch::OutsideWatch(MainWindow& window, Editor& editor, const OutsideChanges& outside)
    : QObject(&window),
      window_(window),
      outside_(outside),
      heard_{editor.documents.tab_selected.Add([this](int) { Warn(outside_.OfCurrent()); }),
             editor.documents.face_changed.Add([this](int) { Warn(OutsideChange::kNone); }),
             editor.text.OnChange([this](const TextChange&) { Warn(OutsideChange::kNone); })} {
  window.installEventFilter(this);
}

bool OutsideWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowActivate) Warn(outside_.OfCurrent());
  return QObject::eventFilter(watched, event);
}

void OutsideWatch::Warn(OutsideChange change) {
  window_.Bar().Warn(Warning::kChangedOutside, Utf8ToQString(std::string(OutsideNotice(change))));
}

}  // namespace pelmar
