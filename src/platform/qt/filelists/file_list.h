// The file list of the file browser dialogs: the files of a folder whose names match a mask. Each time the list is
// shown, the folder is read again. The selection and the scroll position stay. The selected name then stays in the list
// even if its file was removed. Paths and names come from PathToQString; the rows show them with ShownPath. Only
// actions of the person emit FileClicked and FileActivated.
#pragma once

#include <QListView>

namespace pelmar {

class FileNames;

class FileList : public QListView {
  Q_OBJECT
  Q_PROPERTY(QString Path READ Path WRITE SetPath NOTIFY PathChanged)
  Q_PROPERTY(QString Pattern READ Pattern WRITE SetPattern NOTIFY PatternChanged)
  Q_PROPERTY(QString FileName READ FileName WRITE SetFileName)

 public:
  // Begins at the current folder of the process, with "*.*".
  explicit FileList(QWidget* parent = nullptr);

  // The absolute path, without "/" at the end unless the path is "/".
  [[nodiscard]] const QString& Path() const { return path_; }
  // A path that isn't a readable folder changes nothing. A new path clears the selection. The present path is read
  // again if the list is visible; a hidden list is read when it is shown.
  void SetPath(const QString& path);

  [[nodiscard]] const QString& Pattern() const { return pattern_; }
  // The mask for MaskPattern. The selection stays if the selected file is still listed.
  void SetPattern(const QString& pattern);

  // The selected name or "". Setting a name that isn't in the list clears the selection.
  [[nodiscard]] QString FileName() const;
  void SetFileName(const QString& name);

 Q_SIGNALS:
  void PathChanged(const QString& path);
  void PatternChanged(const QString& pattern);
  // A file was clicked, perhaps the same file again, or selected with the keyboard.
  void FileClicked();
  // Double click or Enter. If no file is selected or the signal isn't connected, the dialog gets Enter instead.
  void FileActivated();

 protected:
  // Ctrl with a click or with the space bar doesn't deselect the chosen file.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Fill(const QString& selected);
  void Show(const QStringList& names, const QString& selected);
  void Reload();

  FileNames* names_;
  QString path_, pattern_;
  bool read_ = false;  // false until the list is first shown or a name is set, so that earlier settings cost nothing
  bool by_program_ = false;
  bool click_emitted_ = false;  // the release of the mouse must not emit FileClicked
};

}  // namespace pelmar
