// The group of lists with which a person picks a file or a folder in a dialog: place, folder, files and a mask.
// A dialog links its group once, behind setupUi, and listens to what it needs (FileClicked, PathChanged) itself.
#pragma once

#include <string>

class QComboBox;
class QLabel;
class QWidget;

namespace pelmar {

class DriveList;
class FileList;
class FolderList;

// The two lists by which a dialog's folder is led from outside.
struct FolderBrowser {
  DriveList* drives;
  FolderList* folders;
};

// Those of a dialog, by their names `Drive1` and `Dir1`.
FolderBrowser FolderBrowserOf(const QWidget& dialog);

// The place leads the folder list, the folder list the file list, `mask` (null in a dialog without one) the names
// shown. A key released in the folder list shows the files of the highlighted folder; Enter moves into it. The group
// begins at the current folder of the process, with the mask that the form gives, and its dialog in the list of files
// (of folders where it has none): on the list of places the arrow key Down would lose the folder. A place or a folder
// that can't be read changes nothing.
void LinkFileBrowser(DriveList* place, FolderList* folders, FileList* files, QComboBox* mask = nullptr);

// Place and folder in a dialog that shows no files.
void LinkFolderBrowser(DriveList* place, FolderList* folders);

// A path in a label, which keeps its bytes, and the path that a label shows; any other text of it counts as one too.
void ShowPath(QLabel& label, const std::string& path);
std::string PathOn(const QLabel& label);

// The folder of the list joined with the selected name, as bytes; the folder and a separator where none is selected.
std::string PickedPath(const FileList& files);

}  // namespace pelmar
