// The controls with which four dialogs choose a file for a picture, a frame or a link: a file browser with a mask, a
// check box that shortens the path to the name, a label with the path, and two buttons that need a file. While `files`
// is disabled, the dialog itself enables and disables `ok`.
#pragma once

#include <functional>
#include <string>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace pelmar {

class DriveList;
class FileList;
class FolderList;

// Pointers to the controls of the dialog. The controls must outlive this object.
struct FileChoice {
  // All four forms use the same names, except for `relative` and `path`.
  template <class Form>
  static FileChoice Of(const Form& ui, QCheckBox* relative, QLabel* path) {
    return {ui.Drive1, ui.Dir1, ui.File1, ui.Combo1, relative, path, ui.Command1, ui.Command3};
  }

  // Connects the controls. Call once. Doesn't call Refresh(), so the label and the buttons stay as in the form. Later
  // Refresh() is called at each choice of a file, folder or mask and at each toggle of `relative`. The button `show`
  // calls `show_in_browser` with the label's path.
  void Link(std::function<void(const std::string& path)> show_in_browser) const;

  // Writes the path, or only the name if `relative` is checked, into the label. Then enables or disables `show` and, if
  // `files` is enabled, `ok`.
  void Refresh() const;

  [[nodiscard]] bool HasFile() const;

  // Copies the label's path, with slashes in place of backslashes, into the hidden field `working_copy`. Returns the
  // LinkText of the copied path.
  std::string TakePath(QLineEdit& working_copy) const;

  DriveList* drives;
  FolderList* folders;
  FileList* files;
  QComboBox* mask;
  QCheckBox* relative;
  QLabel* path;
  QAbstractButton* ok;    // needs a file while `files` is enabled
  QAbstractButton* show;  // needs a file, and the whole path in the label
};

}  // namespace pelmar
