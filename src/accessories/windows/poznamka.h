// `Poznamka`: five notes pages, always on top, docked to the main window or snapped to the screen's edges. The notes
// are saved only when the person closes the window. Until then a rescue file keeps the changes. If the program ends
// first, by a crash or with the window still open, the next opening of the notes offers these changes.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "accessories/notes.h"
#include "accessories/notes_place.h"
#include "shell/main_view.h"
#include "shell/services/rescue_keeper.h"
#include "shell/settings_record.h"
#include "shell/stand_alone.h"
#include "shell/window_geometry.h"
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
    StartMode mode = StartMode::kEditor;
    std::function<void()> end;  // called after closing: unloads the window, or ends the program started for the notes
  };

  // Throws RuntimeError if the file can't be read or created.
  explicit Poznamka(Surroundings around);
  ~Poznamka() override;

  void Present();
  // Offers the notes that earlier runs left unsaved, if there are any. Asks only once in a run about the same notes.
  void OfferRescued() { keeper_.Offer(); }
  // The text of the selected notes page.
  [[nodiscard]] TextBuffer& Buffer();
  // Writes unsaved notes to the rescue file now. Returns the notice for the person, or "" if all notes were saved.
  std::string KeepNow() { return keeper_.NoticeOf(keeper_.KeepNow()); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

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
  bool Unload();
  bool RefuseOverlong(const NotesRecord& record);
  void ShowPage(int page);
  // record_ with the present text of the selected notes page.
  [[nodiscard]] NotesRecord Now() const;
  [[nodiscard]] NotesSurroundings Measures() const;

  Surroundings around_;
  std::unique_ptr<Ui::Poznamka> ui_;
  NotesRecord record_;  // the notes; the text of page_ may be out of date, see Now()
  NotesRecord stored_;  // the contents of the file, as far as this window knows
  int page_ = 1;
  // A page that both copies changed and that no message has named yet, with its merged text. Page 0 if there is none.
  std::pair<int, std::string> kept_twice_;
  std::array<std::size_t, kNotePages> carets_{};  // the caret's place in each notes page
  QTimer timer1_{this};
  PlaceRequests requests_;
  Rescue rescue_{*this};
  RescueKeeper keeper_{rescue_, around_.platform};
  Listening changes_;
};

}  // namespace pelmar
