#include "platform/qt/install_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/error_text.h"
#include "platform/files/folder.h"
#include "platform/qt/convert.h"

namespace pelmar {
namespace {

bool IsPortable(const QDir& folder) {
  const QFileInfo mark(folder.filePath(QStringLiteral("portable")));
  return QFileInfo(folder.filePath(QStringLiteral("pelmar.ini"))).isFile() || (mark.isFile() && mark.size() == 0);
}

std::string PathIn(const QString& folder) {
  return Utf8FromQString(QDir(folder).filePath(QStringLiteral("pelmar-vex")));
}

}  // namespace

ChosenFolder FindInstallFolder(const QString& program_folder, const QString& data_home) {
  if (IsPortable(QDir(program_folder)))
    return {.path = Utf8FromQString(program_folder.endsWith(u'/') ? program_folder : program_folder + u'/')};
  const std::string own = PathIn(data_home);
  const int error = MakeFolder(own);
  if (error == 0) return {.path = own + '/'};
  const QString session_folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  const std::string runtime = PathIn(session_folder);
  // If neither folder can be created, the first write of a file reports the error.
  if (session_folder.isEmpty() || MakeFolder(runtime) != 0) return {.path = own + '/'};
  return {.path = runtime + '/', .refused = own, .error = error};
}

std::string InstallFolderNotice(const ChosenFolder& folder) {
  if (folder.error == 0) return {};
  return "Složku " + folder.refused + " nelze vytvořit: " + ErrorText(folder.error) +
         "\r\n\r\nNastavení, poznámky a zachované dokumenty vydrží jen do odhlášení, ve složce\r\n" + folder.path;
}

}  // namespace pelmar
