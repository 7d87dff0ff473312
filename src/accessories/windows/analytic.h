// `Analytic`: how often each character occurs in the document or in a scratch text, as a graph and as a ranked list.
#pragma once

#include <QTimer>

#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class Analytic;
}

namespace pelmar {

class Analytic : public FormDialog<Ui::Analytic> {
  Q_OBJECT

 public:
  Analytic(const TextBuffer& buffer, QWidget* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void ConnectEvents();
  void AnalyseText(std::string_view text);
  void ShowRows(const std::vector<std::string>& rows);
  void Command1_Click();
  void Command3_Click();
  void Pic_Pointed(double x);
  void Text1_Change();
  void Timer1_Timer();
  [[nodiscard]] const std::string& Source() const;

  const TextBuffer& buffer_;
  QTimer timer1_{this};
};

}  // namespace pelmar
