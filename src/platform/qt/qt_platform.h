// The implementation of Platform with Qt. Most functions only call a function of this folder, of a subfolder or of
// platform/files. The object must be created after the application object and destroyed before the application object.
#pragma once

#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "platform/qt/czech_collation.h"
#include "platform/qt/desktop/clipboard.h"
#include "platform/qt/desktop/recent_documents.h"
#include "platform/qt/install_folder.h"

namespace pelmar {

class QtPlatform : public Platform {
 public:
  QtPlatform();

  Answer Message(MessageType type, std::string_view text, std::string_view title) override;
  void ShowAbout(std::string_view title, std::string_view text) override;
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                      std::string_view initial) override;
  std::optional<std::string> OpenDialog(std::string_view filter, int filter_index) override;
  std::optional<std::string> SaveDialog(std::string_view filter, int filter_index) override;

  const std::optional<std::string>& ClipboardContent() override { return clipboard_.Content(); }
  void SetClipboardText(std::string_view text) override;
  void ClearClipboard() override;

  bool CanRead(const std::string& path) override;
  FileBytes ReadFile(const std::string& path, std::optional<std::uint64_t> limit) override;
  WriteOutcome WriteDocument(const std::string& path, std::string_view bytes) override;
  int WritePrivateFile(const std::string& path, std::string_view bytes) override;
  int WriteNewFile(const std::string& path, std::string_view bytes) override;
  std::optional<FileStamp> Stamp(const std::string& path) override;
  bool IsSameFile(const std::string& left, const std::string& right) override;

  std::string InstallFolder() override { return install_folder_.path; }
  std::string TempFolder() override;
  std::string ShareFolder() override;

  PrintOutcome Print(const PrintFont& font, const std::string& name, const std::function<void(Paper&)>& draw) override;

  void AddToRecentDocuments(const std::string& path) override;
  void OpenWithDefaultProgram(const std::string& path) override;
  void StartAnotherCopy() override;

  LocalTime Now() override;
  KeyStates Keys() override;
  double Random() override;
  void ReseedRandom() override;
  std::vector<std::size_t> SortedOrder(const std::vector<std::string_view>& texts) override;
  void SetBusyPointer(bool busy, BusyLook look) override;

  // Shows the text of InstallFolderNotice, unless this text is empty.
  void ReportRefusedFolder();

  // Waits for the writing of the list of recent documents. Call before an exit that skips destructors.
  void FinishBackgroundWork();

 private:
  Clipboard clipboard_;
  QCollator collator_ = CzechCollator();
  RecentDocuments recent_;
  const ChosenFolder install_folder_;
  QString dialog_folder_;  // the folder of the last chosen file
  std::mt19937 random_{std::random_device{}()};
};

}  // namespace pelmar
