// The status bar `Bar1` with its seven panels, whose widths the program sets itself.
#pragma once

#include <QStatusBar>
#include <array>
#include <string>

#include "platform/platform.h"
#include "platform/qt/controls/elided_label.h"
#include "shell/status.h"
#include "shell/window_geometry.h"
#include "shell/windows/warning_label.h"

namespace pelmar {

class StatusPanel : public ElidedLabel {
  Q_OBJECT

 public:
  explicit StatusPanel(QWidget* parent);

  // Windows-1250; nothing happens where the panel shows it already.
  void SetContent(const std::string& text);

 Q_SIGNALS:
  void Clicked();
  void DoubleClicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  std::string content_;
};

class StatusStrip : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusStrip(QWidget* parent = nullptr);

  [[nodiscard]] StatusPanel* Panel(int number) const { return panels_[static_cast<std::size_t>(number - 1)]; }
  void Show(const PanelTexts& texts);
  void Show(const KeyStates& keys);
  // Two things to warn of, "" and 0 for none, in one line over the panels, which go on beneath: a notice, and before it
  // the errno with which unsaved work can't be kept. From the fourth to the left, it covers as many as it needs.
  void SetNotice(const QString& text);
  void SetUnkept(int error);

  // Widths in twips, as the layout counts them.
  [[nodiscard]] std::array<int, kPanelCount> Widths() const { return widths_; }
  void SetWidth(int number, int twips);

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Place();
  void ShowKey(std::size_t at, bool on);
  void ShowWarning();
  void PlaceWarning();

  std::array<StatusPanel*, kPanelCount> panels_{};
  std::array<int, kPanelCount> widths_{};
  WarningLabel* warning_ = nullptr;
  QString notice_;
  int unkept_ = 0;
};

}  // namespace pelmar
