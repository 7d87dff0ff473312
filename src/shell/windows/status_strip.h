// The status bar `Bar1` with its seven panels, whose widths the program sets itself.
#pragma once

#include <QStatusBar>
#include <array>
#include <map>
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

  // Windows-1250; false where the panel shows it already.
  bool SetContent(const std::string& text);
  // What the whole text needs.
  [[nodiscard]] int WholeWidth() const;

 Q_SIGNALS:
  void Clicked();
  void DoubleClicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  std::string content_;
};

// What the bar warns of, the gravest first: unsaved work can't be kept in a rescue file; no file can be opened or
// saved; the text is longer than what can be opened; the file of the document was changed meanwhile; that file is in
// UTF-8 or has other line ends.
enum class Warning { kUnkept, kFilesStuck, kTooLong, kChangedOutside, kFormat };

class StatusStrip : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusStrip(QWidget* parent = nullptr);

  [[nodiscard]] StatusPanel* Panel(int number) const { return panels_[static_cast<std::size_t>(number - 1)]; }
  void Show(const PanelTexts& texts);
  void ShowContent(const std::string& text);
  // Panels 1 to 4, which may show a part of the text, say nothing until they are shown anew.
  void Clear();
  [[nodiscard]] bool Cleared() const { return cleared_; }
  void Show(const KeyStates& keys);
  // "" where there is no more to warn of. One line over the panels, which go on beneath, says the gravest; from the
  // fourth to the left, it covers as many as it needs. The tip says what there is more to say.
  void Warn(Warning of, const QString& text, const QString& tip = {});
  // With the errno; 0 takes it away.
  void WarnOfUnkept(int error);

  // Widths in twips, as the layout counts them.
  [[nodiscard]] std::array<int, kPanelCount> Widths() const { return widths_; }
  void SetWidth(int number, int twips);

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Place();
  void ShowKey(std::size_t at, bool on);
  void PlaceWarning();

  std::array<StatusPanel*, kPanelCount> panels_{};
  std::array<int, kPanelCount> widths_{};
  WarningLabel* warning_ = nullptr;
  bool cleared_ = true;
  struct Said {
    QString text, tip;
  };
  std::map<Warning, Said> warnings_;
};

}  // namespace pelmar
