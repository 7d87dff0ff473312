// The warning that unsaved work can't be kept in a rescue file just now, as on a full disk. Whoever owns it shows it
// for as long as that holds.
#pragma once

#include <QLabel>

namespace pelmar {

class UnkeptLabel : public QLabel {
  Q_OBJECT

 public:
  explicit UnkeptLabel(const QString& text, QWidget* parent);

  // The errno of the failed write, for the tool-tip.
  void SetError(int error);

 protected:
  void showEvent(QShowEvent* event) override;
};

}  // namespace pelmar
