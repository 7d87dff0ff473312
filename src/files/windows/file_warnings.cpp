#include "files/windows/file_warnings.h"

#include <QEvent>

#include "files/encodings.h"
#include "files/open.h"
#include "files/outside_changes.h"
#include "platform/paths.h"
#include "platform/qt/convert.h"
#include "text/utf8.h"

namespace pelmar {
namespace {

constexpr QStringView kNoExtension =
    u"Jméno bez přípony: znovu otevřít soubor nepůjde. „Ulož jako ...“ v nabídce Soubor příponu přidá.";

QString TooLong(std::size_t size) {
  return QStringLiteral("Příliš dlouhý text: má %1 znaků, znovu otevřít jich lze nejvýše %2")
      .arg(size)
      .arg(kLargestDocument);
}

}  // namespace

// Looks for a change of the file on disk only when a tab is selected or the main window gains or loses the keyboard
// focus, so never while the person types.
FileWarnings::FileWarnings(MainWindow& window, Editor& editor)
    : QObject(&window),
      window_(window),
      documents_(editor.documents),
      platform_(editor.platform),
      listenings_{editor.documents.tab_selected.Add([this](int) {
                    CheckDisk();
                    WarnOfName();
                    WarnOfFormat(false);
                  }),
                  editor.documents.face_changed.Add([this](int) {
                    WarnOfOutside({});
                    WarnOfName();
                    WarnOfFormat(false);
                  }),
                  editor.text.OnChange([this](const TextChange&) {
                    WarnOfOutside({});
                    WarnOfFormat(true);
                    WarnOfLength();
                  })} {
  window.installEventFilter(this);
}

bool FileWarnings::eventFilter(QObject* watched, QEvent* event) {
  const bool focus_moves = event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate;
  // The main window also loses the focus while it is destroyed. The cast then gives null, since only a QWidget is left.
  if (focus_moves && qobject_cast<MainWindow*>(watched) != nullptr) {
    CheckDisk();
    WarnOfName();
  }
  return QObject::eventFilter(watched, event);
}

void FileWarnings::WarnOfOutside(std::string_view notice) {
  window_.Bar().Warn(Warning::kChangedOutside, Utf8ToQString(notice));
}

void FileWarnings::CheckDisk() { WarnOfOutside(OutsideNotice(documents_, platform_)); }

void FileWarnings::WarnOfName() {
  const std::string& path = documents_.CurrentPath();
  const bool lacks = !path.empty() && !HasExtension(path);
  window_.Bar().Warn(Warning::kNoExtension, lacks ? kNoExtension.toString() : QString());
}

void FileWarnings::WarnOfFormat(bool changed) {
  const std::string& text = documents_.Buffer().Text();
  std::string_view hint;
  if (CurrentWasUtf8(documents_) && MixesEncodings(text)) {
    hint = MixHint();
  } else if (!changed && !documents_.CurrentPath().empty()) {
    hint = FormatHint(text);
  }
  window_.Bar().Warn(Warning::kFormat, Utf8ToQString(hint));
}

void FileWarnings::WarnOfLength() {
  const std::size_t size = documents_.Buffer().Size();
  window_.Bar().Warn(Warning::kTooLong, size > kLargestDocument ? TooLong(size) : QString());
}

}  // namespace pelmar
