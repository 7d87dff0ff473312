#include "platform/qt/filelists/drive_list.h"

#include <QAbstractItemView>
#include <QDir>
#include <QSignalBlocker>

#include "platform/qt/folder_entries.h"

namespace pelmar {

DriveList::DriveList(QWidget* parent) : QComboBox(parent) {
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(4);
  view()->setTextElideMode(Qt::ElideMiddle);
  connect(this, &QComboBox::textActivated, this, &QWidget::setToolTip);
  connect(this, &QComboBox::textActivated, this, &DriveList::DriveChanged);
}

void DriveList::SetDrive(const QString& path) {
  const QStringList places = MountedPlaces(QDir::homePath());
  const QString place = PlaceOf(path, places);
  if (place.isEmpty()) return;
  const QSignalBlocker silence(this);
  clear();
  addItems(places);
  setCurrentText(place);
  setToolTip(place);
}

void DriveList::showPopup() {
  SetDrive(Drive());  // If the selected disk was removed, selects the place that contained the disk.
  QComboBox::showPopup();
}

}  // namespace pelmar
