// The file list of the file browser dialogs: the names of a folder's files that match a mask. While it is on show it
// follows the folder, with the selection and the scrolling as they are; the selected name stays also where its file has
// gone.
// Paths and names are as PathToQString gives them; the rows show them as ShownPath does.
// Setting a property is the program's doing and raises no click; FileClicked and FileActivated are the person's.
#pragma once

#include <QFileSystemWatcher>
#include <QListView>
#include <QTimer>

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

  // Absolute, without "/" at the end (but for the root itself).
  [[nodiscard]] const QString& Path() const { return path_; }
  // A path that isn't a readable folder changes nothing. A new path selects nothing; the same one reads the folder
  // anew.
  void SetPath(const QString& path);

  [[nodiscard]] const QString& Pattern() const { return pattern_; }
  // Masks as MatchesMask takes them. The selection stays where the file still shows.
  void SetPattern(const QString& pattern);

  // The selected file's name, "" where none is. Writing a name that isn't in the list selects nothing.
  [[nodiscard]] QString FileName() const;
  void SetFileName(const QString& name);

 Q_SIGNALS:
  void PathChanged(const QString& path);
  void PatternChanged(const QString& pattern);
  // A file was clicked (again), or selected with the keyboard.
  void FileClicked();
  // The selected file went out of the folder. Its name stays.
  void FileGone();
  // Double click or Enter. Where nobody listens, Enter goes on to the dialog's default button.
  void FileActivated();

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void Fill(const QString& selected);
  void Show(const QStringList& names, const QString& selected);
  // The same folder again.
  void ReadAnew();
  void Watch(bool watch);

  FileNames* names_;
  QString path_, pattern_;
  QFileSystemWatcher watcher_;
  QTimer settle_;      // from a change of the folder until it is read
  bool read_ = false;  // a dialog sets path and mask before its first opening, and none of that needs the names
  bool by_program_ = false;
  bool click_told_ = false;  // by the change of the selection that the press at hand made
};

}  // namespace pelmar
