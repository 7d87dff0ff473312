// The file that a picture, a frame or a link leads to, as four dialogs let a person choose it: a file browser with a
// mask, the switch that keeps only the name, the label that shows the path, and the two buttons that need a file.
// While `files` is disabled the choice is switched off, and `ok` is the dialog's own affair.
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

// The controls of the dialog, which outlive the choice.
struct FileChoice {
  // Those that have the same names in all four forms, and the two that haven't.
  template <class Form>
  static FileChoice Of(const Form& ui, QCheckBox* relative, QLabel* path) {
    return {ui.Drive1, ui.Dir1, ui.File1, ui.Combo1, relative, path, ui.Command1, ui.Command3};
  }

  // Links the controls, once: the lists with each other; the choice of a file, another folder or mask and the switch to
  // Refresh; the show button to `show_in_browser`, which takes the label's path. Until something is chosen or switched,
  // label and buttons stay as the form has them.
  void Link(std::function<void(const std::string& path)> show_in_browser) const;

  // Writes folder and name into the label, or the name alone, and enables the buttons as far as they have what they
  // need.
  void Refresh() const;

  [[nodiscard]] bool HasFile() const;

  // Copies the label's path into the dialog's hidden working copy, with slashes for backslashes, and returns it as a
  // link names it.
  std::string TakePath(QLineEdit& working_copy) const;

  DriveList* places;
  FolderList* folders;
  FileList* files;
  QComboBox* mask;
  QCheckBox* relative;
  QLabel* path;
  QAbstractButton* ok;    // needs a file
  QAbstractButton* show;  // needs a file with its folder; gets its picture here
};

}  // namespace pelmar
