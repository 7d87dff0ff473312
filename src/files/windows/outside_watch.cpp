#include "files/windows/outside_watch.h"

#include <QEvent>

#include "platform/qt/convert.h"

namespace pelmar {

// A key that marks the title is heard there first; the text that changed then takes the warning away. Behind a save of
// this program's own, of an unmarked document too, there is nothing to warn of.
OutsideWatch::OutsideWatch(MainWindow& window, Editor& editor, const OutsideChanges& outside)
    : QObject(&window),
      window_(window),
      outside_(outside),
      heard_{editor.documents.title_changed.Add([this] { Warn(outside_.OfCurrent()); }),
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
