#include "platform/qt/install_folder.h"

#include <QDir>
#include <QFileInfo>

namespace pelmar {
namespace {

bool IsPortable(const QDir& folder) {
  const QFileInfo mark(folder.filePath(QStringLiteral("portable")));
  return QFileInfo(folder.filePath(QStringLiteral("pelmar.ini"))).isFile() || (mark.isFile() && mark.size() == 0);
}

QString WithSeparator(const QString& path) { return path.endsWith(u'/') ? path : path + u'/'; }

}  // namespace

QString FindInstallFolder(const QString& program_folder, const QString& data_home) {
  if (IsPortable(QDir(program_folder))) return WithSeparator(program_folder);
  QDir data(data_home);
  const QString own = QStringLiteral("pelmar-vex");
  if (!data.exists(own)) {
    data.mkpath(data_home);
    data.mkdir(own, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  }
  return WithSeparator(data.filePath(own));
}

}  // namespace pelmar
