// The status bar `Bar1` with its seven panels.
#pragma once

#include <QStatusBar>
#include <array>
#include <map>
#include <string>

#include "platform/platform.h"
#include "platform/qt/controls/elided_label.h"
#include "shell/status.h"
#include "shell/window_geometry.h"
#include "shell/windows/main/warning_label.h"
#include "text/index.h"

namespace pelmar {

class StatusPanel : public ElidedLabel {
  Q_OBJECT

 public:
  explicit StatusPanel(QWidget* parent);

  // Sets the text, Windows-1250. False if the panel already shows this text.
  bool SetContent(const std::string& text);
  // The width for the whole text, in pixels.
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

// What the status bar warns about, the most serious first. The first two are warnings, the others are mere hints.
enum class Warning {
  kUnkept,          // unsaved work can't be kept in a rescue file
  kFilesStuck,      // no file can be opened or saved
  kTooLong,         // the text is too long to be opened again
  kNoExtension,     // the file name has no extension, so the file can't be opened again
  kChangedOutside,  // the document's file was changed or removed since it was opened or saved
  kFormat,          // the text is in UTF-8, mixes UTF-8 with Windows-1250, or has LF line ends
};

class StatusStrip : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusStrip(QWidget* parent = nullptr);

  [[nodiscard]] StatusPanel* Panel(int number) const { return panels_[IndexFromOne(number)]; }
  void Show(const PanelTexts& texts);
  void ShowContent(const std::string& text);
  // Clears panels 1 to 4. Panel 4 may show a part of the text, which a locked program must hide.
  void Clear();
  void Show(const KeyStates& keys);
  // Sets the text of a warning or hint ("" removes it). Then shows the most serious one that has a text. A hint covers
  // only panel 4 and is cut there. A warning covers as many panels as its text needs. Without `tip` the text is also
  // the tool tip.
  void Warn(Warning of, const QString& text, const QString& tip = {});
  // Shows the warning kUnkept. `error` is the errno of the failed write; 0 removes the warning.
  void WarnOfUnkept(int error);

  // Widths in twips.
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
  struct Said {
    QString text, tip;
  };
  std::map<Warning, Said> warnings_;
  bool is_hint_ = false;  // `warning_` shows a hint
};

}  // namespace pelmar
