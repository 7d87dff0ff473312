// The list of places to begin from, above a folder list: home, "/" and the mounted disks, each by its path.
// The disks are looked for each time that the list opens.
#pragma once

#include <QComboBox>

namespace pelmar {

class DriveList : public QComboBox {
  Q_OBJECT
  Q_PROPERTY(QString Drive READ Drive WRITE SetDrive)

 public:
  explicit DriveList(QWidget* parent = nullptr);

  [[nodiscard]] QString Drive() const { return currentText(); }
  // Chooses the place that the path lies in, without a signal; an empty or relative path changes nothing.
  void SetDrive(const QString& path);

  void showPopup() override;

 Q_SIGNALS:
  // The person has chosen, be it the same place again.
  void DriveChanged(const QString& path);

 private:
  void Fill();
};

}  // namespace pelmar
