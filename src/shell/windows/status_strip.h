// The status bar `Bar1` with its seven panels, whose widths the program sets itself.
#pragma once

#include <QStatusBar>
#include <array>
#include <string>

#include "platform/platform.h"
#include "platform/qt/controls/elided_label.h"
#include "shell/status.h"
#include "shell/window_geometry.h"
#include "shell/windows/unkept_label.h"

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
  // With an errno, the warning lies over the panels from the fourth on, which go on beneath; 0 takes it away.
  void ShowUnkept(int error);

  // A line over the panels for as long as it isn't empty; what they show stays as it is. From the fourth to the left,
  // it covers as many as it needs.
  void SetNotice(const QString& text);

  // Widths in twips, as the layout counts them.
  [[nodiscard]] std::array<int, kPanelCount> Widths() const { return widths_; }
  void SetWidth(int number, int twips);

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Place();
  void ShowKey(std::size_t at, bool on);
  void PlaceNotice();

  std::array<StatusPanel*, kPanelCount> panels_{};
  UnkeptLabel* unkept_ = nullptr;
  std::array<int, kPanelCount> widths_{};
  ElidedLabel* notice_;
};

}  // namespace pelmar
