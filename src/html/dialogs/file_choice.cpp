#include "html/dialogs/file_choice.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "html/attributes.h"
#include "platform/qt/convert.h"
#include "platform/qt/filelists/file_browser.h"
#include "platform/qt/filelists/file_list.h"
#include "platform/qt/filelists/folder_list.h"
#include "platform/qt/frames/svg_icon.h"

namespace pelmar {

void FileChoice::Link(std::function<void(const std::string&)> show_in_browser) const {
  show->setIcon(SvgIcon(QStringLiteral(":/icons/browser.svg")));
  LinkFileBrowser(drives, folders, files, mask);
  const auto refresh = [choice = *this] { choice.Refresh(); };
  QObject::connect(files, &FileList::FileClicked, path, refresh);
  QObject::connect(files, &FileList::PathChanged, path, refresh);
  QObject::connect(files, &FileList::PatternChanged, path, refresh);
  QObject::connect(relative, &QCheckBox::toggled, path, refresh);
  QObject::connect(show, &QAbstractButton::clicked, path,
                   [shown = path, show_path = std::move(show_in_browser)] { show_path(PathShownBy(*shown)); });
}

void FileChoice::Refresh() const {
  const bool name_only = relative->isChecked();
  ShowPath(*path, name_only ? PathFromQString(files->FileName()) : PickedPath(*files));
  show->setEnabled(HasFile() && !name_only);
  if (files->isEnabled()) ok->setEnabled(HasFile());
}

bool FileChoice::HasFile() const { return !files->FileName().isEmpty(); }

std::string FileChoice::TakePath(QLineEdit& working_copy) const {
  const std::string taken = ForwardSlashes(PathShownBy(*path));
  working_copy.setText(Utf8ToQString(taken));
  return LinkText(taken);
}

}  // namespace pelmar
