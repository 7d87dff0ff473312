// Connects the lists with which a person selects a file or a folder in a dialog: places, folders, files and masks. A
// dialog calls LinkFileBrowser or LinkFolderBrowser once, after setupUi, and connects the signals that it needs.
#pragma once

#include <string>

class QComboBox;
class QLabel;
class QWidget;

namespace pelmar {

class DriveList;
class FileList;
class FolderList;

// The two lists that determine the folder of a dialog.
struct FolderBrowser {
  DriveList* drives;
  FolderList* folders;
};

// The lists `Drive1` and `Dir1` of a dialog.
FolderBrowser FolderBrowserOf(const QWidget& dialog);

// `place` sets the folder of `folders`, `folders` sets the folder of `files`, and `mask` (may be null) sets the pattern
// of `files`. A key released in `folders` shows the files of the highlighted folder. Starts in the current folder of
// the process. The focus is on `files`, not on `place`, where the arrow key Down would change the folder.
void LinkFileBrowser(DriveList* place, FolderList* folders, FileList* files, QComboBox* mask = nullptr);

// Does the same for a dialog without a list of files. Starts with the focus on `folders`.
void LinkFolderBrowser(DriveList* place, FolderList* folders);

// ShowPath shows a path in a label. PathShownBy returns this path without loss, or the text if another text was set
// later.
void ShowPath(QLabel& label, const std::string& path);
std::string PathShownBy(const QLabel& label);

// The path of the selected file as bytes. If no file is selected, the folder with a separator at the end.
std::string PickedPath(const FileList& files);

}  // namespace pelmar
