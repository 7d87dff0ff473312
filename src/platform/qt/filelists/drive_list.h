// A drop-down list of places: the home folder, "/" and the disks of MountedPlaces.
#pragma once

#include <QComboBox>

namespace pelmar {

class DriveList : public QComboBox {
  Q_OBJECT
  Q_PROPERTY(QString Drive READ Drive WRITE SetDrive)

 public:
  explicit DriveList(QWidget* parent = nullptr);

  [[nodiscard]] QString Drive() const { return currentText(); }
  // Reads the places and selects the deepest place that contains the path, without a signal. An empty or relative path
  // changes nothing.
  void SetDrive(const QString& path);

  void showPopup() override;

 Q_SIGNALS:
  // The person has chosen a place, perhaps the same place again.
  void DriveChanged(const QString& path);
};

}  // namespace pelmar
