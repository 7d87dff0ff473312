#include "platform/qt/install_folder.h"

#include <QDir>
#include <QFileInfo>

#include "platform/files/folder.h"
#include "platform/qt/convert.h"

namespace pelmar {
namespace {

bool IsPortable(const QDir& folder) {
  const QFileInfo mark(folder.filePath(QStringLiteral("portable")));
  return QFileInfo(folder.filePath(QStringLiteral("pelmar.ini"))).isFile() || (mark.isFile() && mark.size() == 0);
}

}  // namespace

std::string FindInstallFolder(const QString& program_folder, const QString& data_home) {
  if (IsPortable(QDir(program_folder)))
    return Utf8FromQString(program_folder.endsWith(u'/') ? program_folder : program_folder + u'/');
  const std::string own = Utf8FromQString(QDir(data_home).filePath(QStringLiteral("pelmar-vex")));
  MakeFolder(own);
  return own + '/';
}

}  // namespace pelmar
