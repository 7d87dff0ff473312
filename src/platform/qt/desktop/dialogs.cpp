#include "platform/qt/desktop/dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QPointer>
#include <QStyle>
#include <QWindow>
#include <algorithm>
#include <functional>

#include "platform/qt/convert.h"
#include "platform/qt/frames/dialog_parent.h"
#include "platform/qt/frames/outer_geometry.h"
#include "platform/qt/frames/svg_icon.h"
#include "platform/qt/line_edits.h"

namespace pelmar {
namespace {

constexpr QSize kFileDialogSize(720, 440);

// Widens a box with a short text, so that its title is readable.
void LeaveRoomForTitle(QMessageBox& box) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  grid->addItem(new QSpacerItem(WidthOfTitle(box), 0), grid->rowCount(), 0, 1, grid->columnCount());
}

// A message box that distinguishes closing a question (Escape, close button) from answering No. Qt's box doesn't.
class Box : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (IsQuestion() && event->matches(QKeySequence::Cancel)) return done(QMessageBox::NoButton);
    QMessageBox::keyPressEvent(event);
  }

  void closeEvent(QCloseEvent* event) override {
    QMessageBox::closeEvent(event);
    if (IsQuestion()) setResult(QMessageBox::NoButton);
  }

 private:
  [[nodiscard]] bool IsQuestion() const { return standardButtons().testFlag(QMessageBox::No); }
};

// Passes each event of a field that Qt created to TakePasted.
class PasteFilter : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* field, QEvent* event) override {
    return TakePasted(*static_cast<QLineEdit*>(field), *event);
  }
};

// A modal dialog whose parent is DialogParent(). If the parent is deleted, the dialog is deleted too, even while the
// dialog is open.
template <typename Dialog>
class ModalDialog {
 public:
  ModalDialog() : parent_(DialogParent()), dialog_(new Dialog(parent_)) {
    ShowProgramIcon();
    PutAboveAll(*dialog_);
  }
  ModalDialog(const ModalDialog&) = delete;
  ModalDialog& operator=(const ModalDialog&) = delete;
  ~ModalDialog() {
    delete dialog_.data();
    ExpectActive(parent_);
  }
  Dialog* operator->() const { return dialog_.data(); }
  Dialog& operator*() const { return *dialog_; }
  [[nodiscard]] bool RunAccepted() { return Run() == QDialog::Accepted; }
  // Runs the dialog. Returns its result, or 0 if the dialog was deleted.
  [[nodiscard]] int Run() {
    const int result = dialog_->exec();
    return dialog_.isNull() ? 0 : result;
  }

 private:
  QPointer<QWidget> parent_;
  QPointer<Dialog> dialog_;
};

// Chooses icons by file name. Qt's own provider reads the beginning of each listed file, which may take very long on
// network disks and in system folders.
class IconsByName : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  [[nodiscard]] QIcon icon(const QFileInfo& info) const override {
    if (info.isDir()) return icon(info.isRoot() ? Drive : Folder);
    const QMimeType type = TypeOf(info);
    return QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName(), icon(File)));
  }
  [[nodiscard]] QString type(const QFileInfo& info) const override {
    return info.isDir() ? QFileIconProvider::type(info) : TypeOf(info).comment();
  }

 private:
  [[nodiscard]] QMimeType TypeOf(const QFileInfo& info) const {
    return types_.mimeTypeForFile(info.fileName(), QMimeDatabase::MatchExtension);
  }

  QMimeDatabase types_;
};

// This is a base class, so that `icons` is destroyed after QFileDialog. A thread of QFileDialog uses the icons until
// QFileDialog is destroyed.
struct WithIconsByName {
  IconsByName icons;
};

class FileDialog : private WithIconsByName, public QFileDialog {
 public:
  explicit FileDialog(QWidget* parent) : QFileDialog(parent) { setIconProvider(&icons); }
};

QMessageBox::Icon IconOf(MessageType type) {
  switch (type) {
    case MessageType::kYesNoQuestion:
      return QMessageBox::Question;
    case MessageType::kYesNoWarning:
      return QMessageBox::Warning;
    case MessageType::kYesNoStop:
      return QMessageBox::Critical;
    case MessageType::kOkInfo:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

// Returns the pressed standard button, or NoButton if a question was closed or the box was deleted.
int Show(const QString& text, const QString& title, const std::function<void(Box&)>& configure) {
  ModalDialog<Box> box;
  box->setWindowTitle(title);
  box->setTextFormat(Qt::PlainText);
  box->setText(text);
  configure(*box);
  LeaveRoomForTitle(*box);
  return box.Run();
}

}  // namespace

Answer ShowMessage(MessageType type, const QString& text, const QString& title) {
  const bool question = type != MessageType::kOk && type != MessageType::kOkInfo;
  const int button = Show(text, title, [&](Box& box) {
    box.setIcon(IconOf(type));
    if (!question) return box.setStandardButtons(QMessageBox::Ok);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(type == MessageType::kYesNoStop ? QMessageBox::No : QMessageBox::Yes);
  });
  if (!question) return Answer::kOk;
  return button == QMessageBox::Yes ? Answer::kYes : button == QMessageBox::No ? Answer::kNo : Answer::kNone;
}

void ShowAbout(const QString& title, const QString& text) {
  Show(text, title, [](Box& box) {
    const int size = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    box.setIconPixmap(QApplication::windowIcon().pixmap(QSize(size, size), box.devicePixelRatio()));
    box.setStandardButtons(QMessageBox::Ok);
  });
}

std::optional<QString> AskForText(const QString& prompt, const QString& title, const QString& initial) {
  ModalDialog<QInputDialog> dialog;
  dialog->setWindowTitle(title);
  dialog->setLabelText(prompt);
  dialog->setInputMode(QInputDialog::TextInput);
  auto* field = dialog->findChild<QLineEdit*>();
  TakeAnyLength(*field);
  field->setProperty(kHoldsLines, true);
  field->installEventFilter(new PasteFilter(field));
  dialog->setTextValue(initial);
  if (!dialog.RunAccepted()) return std::nullopt;
  return dialog->textValue();
}

QStringList NameFilters(const QString& filter) {
  const QStringList parts = filter.split(u'|');
  QStringList result;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
    // In Qt "*.*" excludes names without a dot.
    for (QString& pattern : patterns)
      if ((pattern = pattern.trimmed()) == QLatin1String("*.*")) pattern = QStringLiteral("*");
    result += parts[i] + QStringLiteral(" (") + patterns.join(u' ') + u')';
  }
  return result;
}

std::optional<QString> AskForFile(FileDialogKind kind, const QString& filter, int filter_index, QString& folder) {
  const QStringList filters = NameFilters(filter);
  ModalDialog<FileDialog> dialog;
  dialog->setSupportedSchemes({QStringLiteral("file")});  // a dialog of the desktop may offer remote files
  if (!folder.isEmpty()) dialog->setDirectory(folder);
  // Show names only: in the detailed view the columns are too narrow and their titles are not in Czech.
  dialog->setViewMode(QFileDialog::List);
  dialog->resize(kFileDialogSize.boundedTo(RoomOnScreen(*dialog)));
  // The captions already contain the patterns.
  dialog->setOption(QFileDialog::HideNameFilterDetails);
  if (kind == FileDialogKind::kSave) {
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
  }
  // Accept the name of a missing file for opening too. The command that asked decides what happens with such a name.
  dialog->setFileMode(QFileDialog::AnyFile);
  dialog->setNameFilters(filters);
  dialog->selectNameFilter(filters.value(filter_index - 1));  // a number that no filter has selects nothing
  if (!dialog.RunAccepted() || dialog->selectedUrls().isEmpty()) return std::nullopt;
  // Use the URL: a dialog of the desktop may return a path that is not UTF-8. selectedFiles() would lose bytes of the
  // path.
  const QString path = PathToQString(PathOfUrl(dialog->selectedUrls().constFirst()));
  folder = QFileInfo(path).path();
  return path;
}

}  // namespace pelmar
