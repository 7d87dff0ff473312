#include "platform/qt/filelists/drive_list.h"

#include <QAbstractItemView>
#include <QDir>
#include <QSignalBlocker>

#include "platform/qt/folder_entries.h"

namespace pelmar {

DriveList::DriveList(QWidget* parent) : QComboBox(parent) {
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(4);
  Fill();
  SetDrive(QDir::currentPath());
  view()->setTextElideMode(Qt::ElideMiddle);
  connect(this, &QComboBox::textActivated, this, &QWidget::setToolTip);
  connect(this, &QComboBox::textActivated, this, &DriveList::DriveChanged);
}

void DriveList::SetDrive(const QString& path) {
  QStringList places;
  for (int row = 0; row < count(); ++row) places.append(itemText(row));
  const QString place = PlaceOf(path, places);
  if (place.isEmpty()) return;
  const QSignalBlocker silence(this);
  setCurrentText(place);
  setToolTip(place);
}

void DriveList::showPopup() {
  Fill();
  QComboBox::showPopup();
}

void DriveList::Fill() {
  const QSignalBlocker silence(this);
  const QString chosen = Drive();
  clear();
  addItems(MountedPlaces(QDir::homePath()));
  SetDrive(chosen);  // If the selected disk was removed, selects the place that contained the disk.
}

}  // namespace pelmar
