// `Poznamka`: five pages of notes, always on top, docked to the main window or snapped to the screen's edges. It lives
// from its first use until it is closed; the file changes only then. What isn't stored yet lies in a rescue file, which
// outlives the program and is offered back when the notes are next opened.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>

#include "accessories/notes.h"
#include "accessories/notes_place.h"
#include "shell/main_view.h"
#include "shell/services/rescue_keeper.h"
#include "shell/settings_record.h"
#include "shell/stand_alone.h"
#include "text/text_buffer.h"

namespace Ui {
class Poznamka;
}

namespace pelmar {

class Poznamka : public QWidget {
  Q_OBJECT

 public:
  struct Surroundings {
    Platform& platform;
    FileNumber& file_number;
    const SettingsRecord& settings;
    const MainView& main;
    QObject* main_window = nullptr;  // the same as an object, whose moves are followed
    StartMode mode = StartMode::kEditor;
    std::function<void()> end;  // after the close: forgets the window, or ends the program that it is
  };

  // Throws RuntimeError where the file can't be read or made.
  explicit Poznamka(Surroundings around);
  ~Poznamka() override;

  void Present();
  // Asks once about what earlier runs left behind, where they did.
  void OfferRescued() { keeper_.Offer(); }
  // The page on show.
  [[nodiscard]] TextBuffer& Text();
  // Keeps what isn't stored, at once. Returns what a person is told of that, "" where there was nothing to keep.
  std::string KeepNow() { return keeper_.NoticeOf(keeper_.KeepNow()); }

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  class Rescue : public RescueContent {
   public:
    explicit Rescue(Poznamka& notes);
    [[nodiscard]] RescueRecord Unsaved() const override;
    [[nodiscard]] std::string Readable(const std::vector<RescuedText>& texts) const override;
    [[nodiscard]] bool IsHere(const RescuedText& note) const override;
    std::vector<RescuedText> BringBack(const std::vector<RescueRecord>& records) override;

   private:
    Poznamka& notes_;
  };

  void ConnectCommands();
  void TabStrip1_Click(int index);
  void Timer1_Timer();
  void Wake();
  void SetPace();
  bool Unload();
  bool RefuseOverlong(const NotesRecord& record);
  void ShowPage(int page);
  // The record with the text of the page on show.
  [[nodiscard]] NotesRecord Now() const;
  [[nodiscard]] NotesSurroundings Measures() const;

  Surroundings around_;
  std::unique_ptr<Ui::Poznamka> ui_;
  NotesRecord record_;  // the page on show as it was when it was turned to
  NotesRecord stored_;  // what the file holds, as far as this window knows
  int page_ = 1;
  std::array<std::size_t, kNotePages> carets_{};  // where each page is gone on with
  QTimer timer1_{this};
  NotesTimer tick_;
  Rescue rescue_{*this};
  RescueKeeper keeper_{rescue_, around_.platform};
  Listening changes_;
};

}  // namespace pelmar
