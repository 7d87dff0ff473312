// The folder list of the file browser dialogs: the way from "/" down to the folder, then its subfolders.
// A click only highlights; a double click or Enter moves into the highlighted folder. Every move that changes the path,
// the person's or the program's, is told by PathChanged, and nothing else is.
#pragma once

#include <QListView>

namespace pelmar {

class FolderModel;

class FolderList : public QListView {
  Q_OBJECT
  Q_PROPERTY(QString Path READ Path WRITE SetPath NOTIFY PathChanged)

 public:
  // Begins at the current folder of the process.
  explicit FolderList(QWidget* parent = nullptr);

  // Absolute, without "/" at the end (but for the root itself), as PathToQString gives it.
  [[nodiscard]] const QString& Path() const { return path_; }
  // A path that isn't a readable folder changes nothing. The folder's own row is highlighted. The same path again
  // reads the folder anew.
  void SetPath(const QString& path);

  [[nodiscard]] QString HighlightedPath() const;

 Q_SIGNALS:
  void PathChanged(const QString& path);
  // Once at the end of a held key.
  void KeyReleased();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  // What happened to the folders while the dialog was hidden shows when it comes back.
  void showEvent(QShowEvent* event) override;

 private:
  void Fill(const QString& highlighted);
  // Moves into the highlighted folder; the highlight goes back where that can't be read.
  void EnterHighlighted();

  FolderModel* model_;
  QString path_;
  bool read_ = false;  // a dialog sets the path before its first opening, which doesn't need the rows
};

}  // namespace pelmar
