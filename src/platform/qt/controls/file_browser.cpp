#include "platform/qt/controls/file_browser.h"

#include <QComboBox>
#include <QDir>

#include "platform/qt/controls/drive_list.h"
#include "platform/qt/controls/file_list.h"
#include "platform/qt/controls/folder_list.h"
#include "platform/qt/convert.h"
#include "shell/common.h"

namespace pelmar {

void LinkFolderBrowser(DriveList* place, FolderList* folders) {
  QObject::connect(place, &DriveList::DriveChanged, folders, &FolderList::SetPath);
  folders->SetPath(QDir::currentPath());
  place->SetDrive(folders->Path());
  folders->setFocus();
}

void LinkFileBrowser(DriveList* place, FolderList* folders, FileList* files, QComboBox* mask) {
  QObject::connect(folders, &FolderList::PathChanged, files, &FileList::SetPath);
  QObject::connect(folders, &FolderList::KeyReleased, files,
                   [folders, files] { files->SetPath(folders->HighlightedPath()); });
  LinkFolderBrowser(place, folders);
  files->setFocus();
  files->SetPath(folders->Path());
  if (!mask) return;
  mask->setCompleter(nullptr);  // it would make "*.htm" of a typed "*.h"
  // The arrow keys go on from the mask that shows.
  if (const int row = mask->findText(mask->currentText()); row >= 0) mask->setCurrentIndex(row);
  QObject::connect(mask, &QComboBox::currentTextChanged, files, &FileList::SetPattern);
  files->SetPattern(mask->currentText());
}

std::string PickedPath(const FileList& files) {
  return JoinPath(Utf8FromQString(files.Path()), Utf8FromQString(files.FileName()));
}

}  // namespace pelmar
