#include "platform/qt/filelists/file_list.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSet>
#include <QStringListModel>
#include <algorithm>

#include "platform/qt/controls/list_rows.h"
#include "platform/qt/convert.h"
#include "platform/qt/folder_entries.h"

namespace pelmar {

// Stores the names and displays them with ShownPath.
class FileNames : public QStringListModel {
 public:
  using QStringListModel::QStringListModel;

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    return ShownPath(QStringListModel::data(index, Qt::EditRole).toString());
  }
};

FileList::FileList(QWidget* parent)
    : QListView(parent), names_(new FileNames(this)), path_(CurrentFolder()), pattern_(QStringLiteral("*.*")) {
  setModel(names_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  ChooseFirstByArrows(this);
  connect(this, &QListView::clicked, this, [this] {
    if (!click_emitted_) Q_EMIT FileClicked();
  });
  connect(this, &QListView::doubleClicked, this, &FileList::FileActivated);
}

void FileList::SetPath(const QString& path) {
  if (path.isEmpty()) return;
  const QString clean = CleanFolder(path);
  if (!IsReadableFolder(clean)) return;
  if (clean == path_) return isVisible() ? Reload() : void();
  path_ = clean;
  Fill({});
  Q_EMIT PathChanged(path_);
}

void FileList::SetPattern(const QString& pattern) {
  const bool changed = pattern != pattern_;
  pattern_ = pattern;
  Fill(FileName());
  if (changed) Q_EMIT PatternChanged(pattern_);
}

// Uses the selection, since a view that gets the focus makes a row current that the person has not chosen.
QString FileList::FileName() const {
  const QModelIndexList rows = selectionModel()->selectedIndexes();
  return rows.isEmpty() ? QString() : names_->stringList().at(rows.constFirst().row());
}

void FileList::SetFileName(const QString& name) {
  if (!read_) Reload();
  const QScopedValueRollback<bool> by_program(by_program_, true);
  const auto row = static_cast<int>(names_->stringList().indexOf(name));
  if (row < 0) return clearSelection();
  selectionModel()->setCurrentIndex(names_->index(row), QItemSelectionModel::ClearAndSelect);
}

void FileList::Fill(const QString& selected) {
  if (read_) Show(FilesOf(path_, pattern_), selected);
}

void FileList::Show(const QStringList& names, const QString& selected) {
  const QScopedValueRollback<bool> by_program(by_program_, true);
  names_->setStringList(names);
  SetFileName(selected);
}

void FileList::Reload() {
  read_ = true;
  QStringList names = FilesOf(path_, pattern_);
  const QString selected = FileName();
  // The name of a selected file stays in the list after the file was removed.
  if (!selected.isEmpty() && !names.contains(selected)) {
    const QStringList old = names_->stringList();
    const QSet<QString> after(old.cbegin() + old.indexOf(selected), old.cend());
    const auto follows = [&after](const QString& name) { return after.contains(name); };
    names.insert(std::ranges::find_if(std::as_const(names), follows), selected);
  }
  if (names != names_->stringList()) {
    const int scrolled = verticalScrollBar()->value();
    Show(names, selected);
    executeDelayedItemsLayout();  // sets the range of the scroll bar
    verticalScrollBar()->setValue(scrolled);
  }
}

void FileList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  if (by_program_ || selected.isEmpty()) return;
  click_emitted_ = true;
  Q_EMIT FileClicked();
}

QItemSelectionModel::SelectionFlags FileList::selectionCommand(const QModelIndex& index, const QEvent* event) const {
  return WithoutDeselection(QListView::selectionCommand(index, event));
}

void FileList::mousePressEvent(QMouseEvent* event) {
  click_emitted_ = false;
  QListView::mousePressEvent(event);
}

void FileList::mouseDoubleClickEvent(QMouseEvent* event) {
  // Keeps the release from emitting FileClicked, even if the release arrives while FileActivated is handled.
  click_emitted_ = true;
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
  if (!event->spontaneous()) Reload();
}

}  // namespace pelmar
