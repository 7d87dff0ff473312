#include "html/dialogs/file_choice.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "html/attributes.h"
#include "platform/qt/controls/drive_list.h"
#include "platform/qt/controls/file_browser.h"
#include "platform/qt/controls/file_list.h"
#include "platform/qt/controls/folder_list.h"
#include "platform/qt/convert.h"
#include "platform/qt/svg_icon.h"

namespace pelmar {

void LinkFileChoice(const FileChoice& choice, std::function<void(const std::string&)> show_in_browser) {
  choice.show->setIcon(SvgIcon(QStringLiteral(":/icons/browser.svg")));
  LinkFileBrowser(choice.places, choice.folders, choice.files, choice.mask);
  const auto refresh = [choice] { RefreshFileChoice(choice); };
  QObject::connect(choice.files, &FileList::FileClicked, choice.path, refresh);
  QObject::connect(choice.files, &FileList::FileGone, choice.path, refresh);
  QObject::connect(choice.files, &FileList::PathChanged, choice.path, refresh);
  QObject::connect(choice.files, &FileList::PatternChanged, choice.path, refresh);
  QObject::connect(choice.relative, &QCheckBox::toggled, choice.path, refresh);
  QObject::connect(choice.show, &QAbstractButton::clicked, choice.path,
                   [path = choice.path, show = std::move(show_in_browser)] { show(PathOn(*path)); });
}

void RefreshFileChoice(const FileChoice& choice) {
  const bool relative = choice.relative->isChecked();
  ShowPath(*choice.path, relative ? PathFromQString(choice.files->FileName()) : PickedPath(*choice.files));
  if (!choice.files->isEnabled()) return;
  choice.ok->setEnabled(HasFile(choice));
  choice.show->setEnabled(HasFile(choice) && !relative);
}

bool HasFile(const FileChoice& choice) { return !choice.files->FileName().isEmpty(); }

std::string TakePath(const FileChoice& choice, QLineEdit& working_copy) {
  const std::string path = ForwardSlashes(PathOn(*choice.path));
  working_copy.setText(Utf8ToQString(path));
  return LinkText(path);
}

}  // namespace pelmar
