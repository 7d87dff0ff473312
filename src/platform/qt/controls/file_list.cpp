#include "platform/qt/controls/file_list.h"

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "platform/qt/controls/first_choice.h"
#include "platform/qt/convert.h"
#include "platform/qt/folder_entries.h"

namespace pelmar {
namespace {

// How long a change of the folder waits for others, in milliseconds, and how many times the length of a reading at
// least: a folder of many files that changes all the time costs a tenth of the processor at most.
constexpr int kSettle = 200;
constexpr int kReadings = 10;

}  // namespace

class FileNames : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void Show(QStringList names) {
    beginResetModel();
    names_ = std::move(names);
    endResetModel();
  }

  [[nodiscard]] const QStringList& Names() const { return names_; }

  [[nodiscard]] QModelIndex IndexOf(const QString& name) const {
    return name.isEmpty() ? QModelIndex() : index(static_cast<int>(names_.indexOf(name)), 0);
  }

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(names_.size());
  }

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
    return ShownPath(names_[index.row()]);
  }

  [[nodiscard]] const QString& Name(int row) const { return names_[row]; }

 private:
  QStringList names_;
};

FileList::FileList(QWidget* parent)
    : QListView(parent), names_(new FileNames(this)), path_(CurrentFolder()), pattern_(QStringLiteral("*.*")) {
  setModel(names_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  ChooseFirstByArrows(this);
  connect(this, &QListView::clicked, this, [this] {
    if (!click_told_) Q_EMIT FileClicked();
  });
  connect(this, &QListView::doubleClicked, this, &FileList::FileActivated);
  settle_.setSingleShot(true);
  settle_.setInterval(kSettle);
  connect(&settle_, &QTimer::timeout, this, &FileList::ReadAnew);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] {
    if (!settle_.isActive()) settle_.start();
  });
  Fill({});
}

void FileList::SetPath(const QString& path) {
  if (path.isEmpty()) return;
  const QString clean = CleanFolder(path);
  if (!IsReadableFolder(clean)) return;
  if (clean == path_) return ReadAnew();
  path_ = clean;
  Fill({});
  if (isVisible()) Watch();
  Q_EMIT PathChanged(path_);
}

void FileList::SetPattern(const QString& pattern) {
  const bool changed = pattern != pattern_;
  pattern_ = pattern;
  Fill(FileName());
  if (changed) Q_EMIT PatternChanged(pattern_);
}

// By the selection: the view makes a row current that nobody chose when it comes into focus.
QString FileList::FileName() const {
  const QModelIndexList rows = selectionModel()->selectedIndexes();
  return rows.isEmpty() ? QString() : names_->Name(rows.constFirst().row());
}

void FileList::SetFileName(const QString& name) {
  const QScopedValueRollback<bool> by_program(by_program_, true);
  const QModelIndex row = names_->IndexOf(name);
  if (!row.isValid()) return clearSelection();
  selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect);
}

void FileList::Fill(const QString& selected) {
  const QScopedValueRollback<bool> by_program(by_program_, true);
  names_->Show(FilesOf(path_, pattern_));
  SetFileName(selected);
}

void FileList::ReadAnew() {
  QElapsedTimer clock;
  clock.start();
  QStringList names = FilesOf(path_, pattern_);
  settle_.setInterval(qMax<int>(kSettle, static_cast<int>(clock.elapsed()) * kReadings));
  if (names == names_->Names()) return;
  const QString selected = FileName();
  const int scrolled = verticalScrollBar()->value();
  {
    const QScopedValueRollback<bool> by_program(by_program_, true);
    names_->Show(std::move(names));
    SetFileName(selected);
  }
  executeDelayedItemsLayout();  // which gives the bar its range
  verticalScrollBar()->setValue(scrolled);
  if (FileName() != selected) Q_EMIT FileGone();
}

// The one folder, for as long as it is on show: what changes meanwhile is read when it comes back.
void FileList::Watch() {
  if (const QStringList watched = watcher_.directories(); !watched.isEmpty()) watcher_.removePaths(watched);
  settle_.stop();
  watcher_.addPath(path_);
}

void FileList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  if (by_program_ || selected.isEmpty()) return;
  click_told_ = true;
  Q_EMIT FileClicked();
}

void FileList::mousePressEvent(QMouseEvent* event) {
  click_told_ = false;
  QListView::mousePressEvent(event);
}

void FileList::mouseDoubleClickEvent(QMouseEvent* event) {
  // Its release would count as one click more, when whoever listened has long acted.
  click_told_ = true;
  QListView::mouseDoubleClickEvent(event);
}

void FileList::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) return QListView::keyPressEvent(event);
  if (FileName().isEmpty() || !isSignalConnected(QMetaMethod::fromSignal(&FileList::FileActivated))) {
    event->ignore();
    return;
  }
  event->accept();
  Q_EMIT FileActivated();
}

void FileList::showEvent(QShowEvent* event) {
  QListView::showEvent(event);
  if (event->spontaneous()) return;
  Watch();
  ReadAnew();
}

void FileList::hideEvent(QHideEvent* event) {
  QListView::hideEvent(event);
  if (event->spontaneous()) return;
  settle_.stop();
  if (const QStringList watched = watcher_.directories(); !watched.isEmpty()) watcher_.removePaths(watched);
}

}  // namespace pelmar
