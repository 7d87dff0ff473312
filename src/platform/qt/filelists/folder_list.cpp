#include "platform/qt/filelists/folder_list.h"

#include <QAbstractListModel>
#include <QFileInfo>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <vector>

#include "platform/qt/controls/list_rows.h"
#include "platform/qt/convert.h"
#include "platform/qt/folder_entries.h"

namespace pelmar {

// The rows with their depths below "/": the folders from "/" down to the entered folder, then its subfolders.
class FolderModel : public QAbstractListModel {
 public:
  enum Role { kPath = Qt::UserRole, kDepth };

  explicit FolderModel(QListView* view)
      : QAbstractListModel(view),
        open_(view->style()->standardIcon(QStyle::SP_DirOpenIcon)),
        closed_(view->style()->standardIcon(QStyle::SP_DirClosedIcon)) {}

  // Fills the rows for the entered folder `path`.
  void Show(const QString& path) {
    beginResetModel();
    rows_.assign(1, {QStringLiteral("/"), QStringLiteral("/")});
    QString below;
    for (const QString& name : path.split(u'/', Qt::SkipEmptyParts)) {
      below += u'/' + name;
      rows_.push_back({name, below});
    }
    open_rows_ = static_cast<int>(rows_.size());
    for (const QString& name : SubfoldersOf(path)) rows_.push_back({name, below + u'/' + name});
    endResetModel();
  }

  // The row of the folder, or of the entered folder if the folder isn't listed.
  [[nodiscard]] int RowOf(const QString& path) const {
    for (std::size_t row = 0; row < rows_.size(); ++row)
      if (rows_[row].path == path) return static_cast<int>(row);
    return open_rows_ - 1;
  }

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
  }

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    if (!index.isValid()) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
      case Qt::DisplayRole:
        return ShownPath(row.name);
      case Qt::DecorationRole:
        return index.row() < open_rows_ ? open_ : closed_;
      case Qt::ToolTipRole:
      case Qt::AccessibleDescriptionRole:
        return ShownPath(row.path);
      case kPath:
        return row.path;
      case kDepth:
        return qMin(index.row(), open_rows_);
      default:
        return {};
    }
  }

 private:
  struct Row {
    QString name, path;
  };
  std::vector<Row> rows_;
  int open_rows_ = 0;
  QIcon open_, closed_;
};

namespace {

class IndentingDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem indented = option;
    indented.rect.adjust(IndentOf(option, index), 0, 0, 0);
    QStyledItemDelegate::paint(painter, indented, index);
  }

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(IndentOf(option, index), 0);
  }

 private:
  static int IndentOf(const QStyleOptionViewItem& option, const QModelIndex& index) {
    return index.data(FolderModel::kDepth).toInt() * option.fontMetrics.averageCharWidth() * 3 / 2;
  }
};

// The folder itself if readable, otherwise its nearest readable parent, or "/" if no parent is readable.
QString Climb(QString path) {
  while (!IsReadableFolder(path) && path != QLatin1String("/")) path = QFileInfo(path).path();
  return path;
}

}  // namespace

FolderList::FolderList(QWidget* parent) : QListView(parent), model_(new FolderModel(this)) {
  setModel(model_);
  setItemDelegate(new IndentingDelegate(this));
  connect(this, &QListView::doubleClicked, this, &FolderList::EnterHighlighted);
  path_ = Climb(CurrentFolder());
}

void FolderList::SetPath(const QString& path) {
  if (path.isEmpty()) return;
  const QString clean = CleanFolder(path);
  if (!IsReadableFolder(clean)) return;
  const bool changed = clean != path_;
  path_ = clean;
  Fill(path_);
  Q_EMIT Entered();
  if (changed) Q_EMIT PathChanged(path_);
}

QString FolderList::HighlightedPath() const {
  return currentIndex().isValid() ? currentIndex().data(FolderModel::kPath).toString() : path_;
}

void FolderList::Fill(const QString& highlighted) {
  if (!read_) return;
  model_->Show(path_);
  setCurrentIndex(model_->index(model_->RowOf(highlighted), 0));
}

QItemSelectionModel::SelectionFlags FolderList::selectionCommand(const QModelIndex& index, const QEvent* event) const {
  return WithoutDeselection(QListView::selectionCommand(index, event));
}

void FolderList::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QListView::keyPressEvent(event);
  // Otherwise the dialog would get Enter too.
  event->accept();
  EnterHighlighted();
}

void FolderList::EnterHighlighted() {
  const QString highlighted = HighlightedPath();
  SetPath(IsReadableFolder(highlighted) ? highlighted : Climb(path_));
}

void FolderList::keyReleaseEvent(QKeyEvent* event) {
  QListView::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) Q_EMIT Highlighted();
}

void FolderList::showEvent(QShowEvent* event) {
  QListView::showEvent(event);
  if (event->spontaneous()) return;
  read_ = true;
  if (const QString there = Climb(path_); there != path_) return SetPath(there);
  const QString highlighted = HighlightedPath();
  Fill(highlighted);
  if (HighlightedPath() != highlighted) Q_EMIT Highlighted();  // the folder was removed
}

}  // namespace pelmar
