#include "html/dialogs/file_choice.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <filesystem>

#include "platform/qt/controls/drive_list.h"
#include "platform/qt/controls/file_browser.h"
#include "platform/qt/controls/file_list.h"
#include "platform/qt/controls/folder_list.h"
#include "platform/qt/convert.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct FileChoiceTest : testing::Test {
  TempFolder temp;
  QWidget window;
  DriveList places;
  FolderList folders;
  FileList files;
  QComboBox mask;
  QCheckBox relative;
  QLabel path;
  QPushButton ok, show;
  FileChoice choice{&places, &folders, &files, &mask, &relative, &path, &ok, &show};
  std::vector<std::string> shown;

  FileChoiceTest() {
    temp.Put("a.GIF", "");
    temp.Put("žába.gif", "");
    temp.Put("b.jpg", "");
    temp.Put("sub/c.gif", "");
    auto* rows = new QVBoxLayout(&window);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{&places, &folders, &files, &mask, &relative, &path, &ok, &show})
      rows->addWidget(widget);
    mask.setEditable(true);
    mask.addItems({QStringLiteral("*.gif"), QStringLiteral("*.jpg")});
    ok.setEnabled(false);
    show.setEnabled(false);
    window.show();
    choice.Link([this](const std::string& chosen) { shown.push_back(chosen); });
  }
  void Choose(const char* name) {
    for (int row = 0; row < files.model()->rowCount(); ++row) {
      const QModelIndex index = files.model()->index(row, 0);
      if (index.data().toString() != QString::fromUtf8(name)) continue;
      files.scrollTo(index);
      return QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, files.visualRect(index).center());
    }
    FAIL() << name << " isn't in the list";
  }
  // Label, then the enabled buttons.
  [[nodiscard]] std::string State() const {
    return Utf8FromQString(path.text()) + (ok.isEnabled() ? " ok" : "") + (show.isEnabled() ? " show" : "");
  }
};

TEST_F(FileChoiceTest, EveryEventKeepsLabelAndButtonsRight) {
  EXPECT_EQ(State(), "");
  folders.SetPath(Utf8ToQString(temp.Path()));
  EXPECT_EQ(State(), temp.Path() + "/");
  Choose("a.GIF");
  EXPECT_EQ(State(), temp.Path() + "/a.GIF ok show");
  relative.setChecked(true);
  EXPECT_EQ(State(), "a.GIF ok");
  relative.setChecked(false);
  EXPECT_EQ(State(), temp.Path() + "/a.GIF ok show");
  mask.setCurrentText(QStringLiteral("*.jpg"));
  EXPECT_EQ(State(), temp.Path() + "/");
  Choose("b.jpg");
  folders.SetPath(Utf8ToQString(temp.File("sub")));
  EXPECT_EQ(State(), temp.Path() + "/sub/");
  relative.setChecked(true);
  EXPECT_EQ(State(), "");
  relative.setChecked(false);
  mask.setCurrentText(QStringLiteral("*.gif"));
  Choose("c.gif");
  window.hide();
  std::filesystem::remove(temp.File("sub/c.gif"));
  window.show();
  EXPECT_EQ(State(), temp.Path() + "/sub/");
  relative.setChecked(true);
  folders.SetPath(QStringLiteral("/"));
  relative.setChecked(false);
  EXPECT_EQ(State(), "/");  // one separator, not two
}

TEST_F(FileChoiceTest, AChoiceThatIsSwitchedOffLeavesTheButtonsAlone) {
  folders.SetPath(Utf8ToQString(temp.Path()));
  Choose("a.GIF");
  files.setEnabled(false);
  folders.SetPath(Utf8ToQString(temp.File("sub")));  // as when the folder was removed while the dialog was hidden
  EXPECT_EQ(State(), temp.Path() + "/sub/ ok show");
  EXPECT_FALSE(choice.HasFile());
  files.setEnabled(true);
  choice.Refresh();
  EXPECT_EQ(State(), temp.Path() + "/sub/");
}

TEST_F(FileChoiceTest, ThePathGoesToTheBrowserAndToTheTag) {
  folders.SetPath(Utf8ToQString(temp.Path()));
  Choose("žába.gif");
  show.click();
  EXPECT_EQ(shown, std::vector<std::string>{temp.Path() + "/žába.gif"});
  QLineEdit copy;
  EXPECT_EQ(choice.TakePath(copy), temp.Path() + std::string("/žába.gif"_w));
  path.setText(QStringLiteral("C:\\a\\č.gif"));
  EXPECT_EQ(choice.TakePath(copy), "C:/a/č.gif"_w);
  EXPECT_EQ(copy.text(), QStringLiteral("C:/a/č.gif"));
  ShowPath(path, "/Ж/k\xF9.gif");
  EXPECT_EQ(choice.TakePath(copy), "/%D0%96/k%F9.gif");
  show.click();
  EXPECT_EQ(shown.back(), "/Ж/k\xF9.gif");
}

}  // namespace
}  // namespace pelmar
