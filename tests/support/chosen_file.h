// Chooses a file in the lists of a dialog, as a person's click does.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/qt/controls/file_list.h"
#include "platform/qt/controls/folder_list.h"
#include "platform/qt/convert.h"
#include "support/controls.h"

namespace pelmar {

inline void ChooseFile(const QWidget& window, const std::string& folder, const char* name) {
  Find<FolderList>(window, "Dir1")->SetPath(Utf8ToQString(folder));
  auto* files = Find<FileList>(window, "File1");
  const QModelIndexList found =
      files->model()->match(files->model()->index(0, 0), Qt::DisplayRole, QString::fromUtf8(name));
  ASSERT_EQ(found.size(), 1) << name;
  files->setCurrentIndex(found.first());
}

}  // namespace pelmar
