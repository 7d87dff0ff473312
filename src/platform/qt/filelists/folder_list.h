// The folder list of the file browser dialogs: the folders from "/" down to the entered folder, then its subfolders. A
// click only highlights a folder; a double click or Enter enters the highlighted folder. PathChanged is emitted exactly
// when the path changes, by the person or by the program.
#pragma once

#include <QListView>

namespace pelmar {

class FolderModel;

class FolderList : public QListView {
  Q_OBJECT
  Q_PROPERTY(QString Path READ Path WRITE SetPath NOTIFY PathChanged)

 public:
  // Begins at the current folder of the process or, if this folder can't be read, at its nearest readable parent.
  explicit FolderList(QWidget* parent = nullptr);

  // The absolute path from PathToQString, without "/" at the end unless the path is "/".
  [[nodiscard]] const QString& Path() const { return path_; }
  // Enters the folder and highlights the row of the folder. Reads the folder, even if the path is the present path, but
  // not before the list is first shown. A path that isn't a readable folder changes nothing.
  void SetPath(const QString& path);

  [[nodiscard]] QString HighlightedPath() const;

 Q_SIGNALS:
  void PathChanged(const QString& path);
  // A folder was entered, perhaps the same folder again. The row of this folder is highlighted.
  void Entered();
  // Another folder may be highlighted: a key was released, except while it repeats, or the list was shown again and the
  // highlighted folder was gone.
  void Highlighted();

 protected:
  // Ctrl with a click keeps the folder highlighted.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  // Reads the folder again, since it may have changed while the dialog was hidden.
  void showEvent(QShowEvent* event) override;

 private:
  void Fill(const QString& highlighted);
  // Enters the highlighted folder. If the highlighted folder can't be read, highlights the entered folder again.
  void EnterHighlighted();

  FolderModel* model_;
  QString path_;
  bool read_ = false;  // false until the list is first shown, so that paths set before cost nothing
};

}  // namespace pelmar
