#include "platform/qt/filelists/file_browser.h"

#include <QComboBox>
#include <QLabel>

#include "platform/paths.h"
#include "platform/qt/convert.h"
#include "platform/qt/filelists/drive_list.h"
#include "platform/qt/filelists/file_list.h"
#include "platform/qt/filelists/folder_list.h"

namespace pelmar {
namespace {

constexpr char kPathProperty[] = "path";

}  // namespace

void LinkFolderBrowser(DriveList* place, FolderList* folders) {
  QObject::connect(place, &DriveList::DriveChanged, folders, &FolderList::SetPath);
  place->SetDrive(folders->Path());
  folders->setFocus();
}

FolderBrowser FolderBrowserOf(const QWidget& dialog) {
  return {dialog.findChild<DriveList*>(QStringLiteral("Drive1")),
          dialog.findChild<FolderList*>(QStringLiteral("Dir1"))};
}

void LinkFileBrowser(DriveList* place, FolderList* folders, FileList* files, QComboBox* mask) {
  const auto list_highlighted = [folders, files] { files->SetPath(folders->HighlightedPath()); };
  QObject::connect(folders, &FolderList::Entered, files, list_highlighted);
  QObject::connect(folders, &FolderList::Highlighted, files, list_highlighted);
  LinkFolderBrowser(place, folders);
  files->setFocus();
  files->SetPath(folders->Path());
  if (!mask) return;
  mask->setCompleter(nullptr);  // a completer would turn a typed "*.h" into "*.htm"
  // Makes the row of the displayed mask current, so that the arrow keys start there.
  if (const int row = mask->findText(mask->currentText()); row >= 0) mask->setCurrentIndex(row);
  QObject::connect(mask, &QComboBox::currentTextChanged, files, &FileList::SetPattern);
  files->SetPattern(mask->currentText());
}

std::string PickedPath(const FileList& files) {
  return JoinPath(PathFromQString(files.Path()), PathFromQString(files.FileName()));
}

void ShowPath(QLabel& label, const std::string& path) {
  label.setText(Utf8ToQString(path));
  label.setProperty(kPathProperty, ToBytes(path));
}

std::string PathShownBy(const QLabel& label) {
  const QByteArray path = label.property(kPathProperty).toByteArray();
  return Utf8ToQString(ViewOf(path)) == label.text() ? path.toStdString() : Utf8FromQString(label.text());
}

}  // namespace pelmar
