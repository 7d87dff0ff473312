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
#include "shell/windows/main/warning_label.h"

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

// What the bar warns of, the gravest first. The first two are warnings, the others mere hints.
enum class Warning {
  kUnkept,          // unsaved work can't be kept in a rescue file
  kFilesStuck,      // no file can be opened or saved
  kTooLong,         // the text is longer than what can be opened
  kNoExtension,     // the document's file can't be opened by its name
  kChangedOutside,  // the document's file was changed or removed since it was opened or saved
  kFormat,          // the document's file is in UTF-8 or has the line ends of another system
};

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
  // Shows the gravest of the warnings that have a text; "" takes one away. A hint covers panel 4 alone and is cut
  // there; a warning covers as many panels as its text needs. The tip is the text where none is given.
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
  bool is_hint_ = false;  // what `warning_` shows
};

}  // namespace pelmar
