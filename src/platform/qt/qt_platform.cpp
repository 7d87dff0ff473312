#include "platform/qt/qt_platform.h"

#include <QApplication>
#include <QCursor>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <numeric>

#include "platform/files/disk_file.h"
#include "platform/qt/convert.h"
#include "platform/qt/desktop/dialogs.h"
#include "platform/qt/desktop/printer.h"
#include "platform/qt/folder_entries.h"
#include "platform/qt/key_router.h"
#include "platform/qt/x11.h"

namespace pelmar {
namespace {

QString DataHome() { return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation); }

std::optional<std::string> ToPath(const std::optional<QString>& answer) {
  if (!answer) return std::nullopt;
  return PathFromQString(*answer);
}

// Shows the arrow while a message or a dialog is open during a long command.
class OrdinaryPointer {
 public:
  OrdinaryPointer() {
    if (busy_) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  OrdinaryPointer(const OrdinaryPointer&) = delete;
  OrdinaryPointer& operator=(const OrdinaryPointer&) = delete;
  ~OrdinaryPointer() {
    if (busy_) QGuiApplication::restoreOverrideCursor();
  }

 private:
  const bool busy_ = QGuiApplication::overrideCursor() != nullptr;
};

}  // namespace

QtPlatform::QtPlatform()
    : recent_(DataHome() + QStringLiteral("/recently-used.xbel")),
      install_folder_(FindInstallFolder(QCoreApplication::applicationDirPath(), DataHome())) {}

Answer QtPlatform::Message(MessageType type, std::string_view text, std::string_view title) {
  const OrdinaryPointer pointer;
  return ShowMessage(type, Utf8ToQString(text), Utf8ToQString(title));
}

void QtPlatform::ShowAbout(std::string_view title, std::string_view text) {
  const OrdinaryPointer pointer;
  pelmar::ShowAbout(Utf8ToQString(title), Utf8ToQString(text));
}

std::optional<std::string> QtPlatform::InputBox(std::string_view prompt, std::string_view title,
                                                std::string_view initial) {
  const OrdinaryPointer pointer;
  const auto answer = AskForText(Utf8ToQString(prompt), Utf8ToQString(title), Utf8ToQString(initial));
  if (!answer) return std::nullopt;
  return Utf8FromQString(*answer);
}

std::optional<std::string> QtPlatform::OpenDialog(std::string_view filter, int filter_index) {
  const OrdinaryPointer pointer;
  return ToPath(AskForFile(FileDialogKind::kOpen, Utf8ToQString(filter), filter_index, dialog_folder_));
}

std::optional<std::string> QtPlatform::SaveDialog(std::string_view filter, int filter_index) {
  const OrdinaryPointer pointer;
  return ToPath(AskForFile(FileDialogKind::kSave, Utf8ToQString(filter), filter_index, dialog_folder_));
}

void QtPlatform::SetClipboardText(std::string_view text) { clipboard_.SetText(text); }

void QtPlatform::ClearClipboard() { clipboard_.Clear(); }

bool QtPlatform::CanRead(const std::string& path) { return CanReadFile(path); }

FileBytes QtPlatform::ReadFile(const std::string& path, std::optional<std::uint64_t> limit) {
  return ReadWholeFile(path, limit);
}

WriteOutcome QtPlatform::WriteDocument(const std::string& path, std::string_view bytes) {
  return ReplaceFile(path, bytes, InstallFolder());
}

int QtPlatform::WritePrivateFile(const std::string& path, std::string_view bytes) {
  return ReplaceFile(path, bytes, InstallFolder(), 0600).error;
}

int QtPlatform::WriteNewFile(const std::string& path, std::string_view bytes) { return CreateFile(path, bytes); }

bool QtPlatform::IsSameFile(const std::string& left, const std::string& right) {
  std::error_code ignored;
  return std::filesystem::equivalent(left, right, ignored);
}

std::optional<FileStamp> QtPlatform::Stamp(const std::string& path) { return StampOf(path); }

// The share folder of the installation. If there is none, as in a build tree, the program's folder.
std::string QtPlatform::ShareFolder() {
  const QString installed = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/pelmar-vex/");
  const QString beside = QCoreApplication::applicationDirPath() + QLatin1Char('/');
  return Utf8FromQString(QDir(installed).exists() ? QDir::cleanPath(installed) + QLatin1Char('/') : beside);
}

void QtPlatform::ReportRefusedFolder() {
  const std::string notice = InstallFolderNotice(install_folder_);
  if (!notice.empty()) Message(MessageType::kOkInfo, notice, "Pelmar VEX");
}

// Reads TMPDIR itself, because QDir::tempPath returns "" if the folder in TMPDIR is missing. With this result, files
// would be written to "/", the root of the disk.
std::string QtPlatform::TempFolder() {
  const QString set = QFile::decodeName(qgetenv("TMPDIR"));
  const QString folder = set.isEmpty() ? QStringLiteral("/tmp") : QDir::cleanPath(QFileInfo(set).absoluteFilePath());
  return Utf8FromQString(folder.endsWith(u'/') ? folder : folder + u'/');
}

PrintOutcome QtPlatform::Print(const PrintFont& font, const std::string& name,
                               const std::function<void(Paper&)>& draw) {
  return PrintOnDefault(font, Utf8ToQString(name), draw);
}

void QtPlatform::AddToRecentDocuments(const std::string& path) { recent_.Add(CleanFolder(PathToQString(path))); }

void QtPlatform::OpenWithDefaultProgram(const std::string& path) { QDesktopServices::openUrl(UrlOfPath(path)); }

void QtPlatform::StartAnotherCopy() {
  QProcess::startDetached(QCoreApplication::applicationFilePath(), {}, Utf8ToQString(InstallFolder()));
}

LocalTime QtPlatform::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

KeyStates QtPlatform::Keys() {
  const LockKeys lock = ReadLockKeys();
  return {.caps = lock.caps, .num = lock.num, .insert = KeyRouter::Get().InsertIsOn()};
}

double QtPlatform::Random() { return static_cast<double>(random_()) / 4294967296.0; }

void QtPlatform::ReseedRandom() {
  const auto ticks = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  std::seed_seq seed{static_cast<std::uint32_t>(ticks), static_cast<std::uint32_t>(ticks >> 32)};
  random_.seed(seed);
}

// Makes a sort key for each text once, which is much faster than comparing the texts themselves.
std::vector<std::size_t> QtPlatform::SortedOrder(const std::vector<std::string_view>& texts) {
  std::vector<QCollatorSortKey> keys;
  keys.reserve(texts.size());
  for (const std::string_view text : texts) keys.push_back(collator_.sortKey(TextToQString(text)));
  std::vector<std::size_t> order(texts.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) { return keys[a].compare(keys[b]) < 0; });
  return order;
}

void QtPlatform::SetBusyPointer(bool busy, BusyLook look) {
  if (!busy) return QGuiApplication::restoreOverrideCursor();
  QGuiApplication::setOverrideCursor(look == BusyLook::kHourglass ? Qt::WaitCursor : Qt::BusyCursor);
}

void QtPlatform::FinishBackgroundWork() { recent_.Wait(); }

}  // namespace pelmar
