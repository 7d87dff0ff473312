#include "accessories/windows/poznamka.h"

#include <QCloseEvent>
#include <QToolButton>

#include "platform/qt/controls/accessible_face.h"
#include "platform/qt/controls/tab_keys.h"
#include "platform/qt/convert.h"
#include "platform/qt/frames/dialog_parent.h"
#include "platform/qt/frames/outer_geometry.h"
#include "platform/qt/frames/placement.h"
#include "platform/qt/frames/svg_icon.h"
#include "platform/twips.h"
#include "shell/windows/main/warning_label.h"
#include "text/index.h"
#include "ui_poznamka.h"

namespace pelmar {
namespace {

constexpr int kTick = 10;  // ms

QFont FontOf(const EditorLook& look) {
  QFont font(TextToQString(look.font_name));
  if (look.font_size > 0) font.setPointSizeF(look.font_size);
  font.setBold(look.bold);
  font.setItalic(look.italic);
  return font;
}

std::string KeptTwiceMessage(int page) {
  return "Poznámku " + std::to_string(page) + " mezitím změnila i jiná kopie programu. Uložena jsou obě znění.";
}

}  // namespace

Poznamka::Poznamka(Surroundings around) : around_(std::move(around)), ui_(std::make_unique<Ui::Poznamka>()) {
  SetAccessibleRole(*this, QAccessible::Window);  // first: Qt 6.8 asks for the role during setupUi
  ui_->setupUi(this);
  ShowOnParentsScreen(*this);
  CentreOnScreen(*this);
  SetAlwaysOnTop(*this, true);
  ui_->Text1->setFont(FontOf(around_.main.Look()));
  record_ = stored_ = LoadNotes(around_.platform, around_.file_number);
  ShowPage(1);
  ConnectCommands();
  changes_ = ui_->Text1->Buffer().OnChange([this](const TextChange&) { keeper_.KeepSoon(); });
  ui_->Text1->setFocus();
  timer1_.setObjectName(QStringLiteral("Timer1"));
  connect(&timer1_, &QTimer::timeout, this, &Poznamka::Timer1_Timer);
}

Poznamka::~Poznamka() { keeper_.KeepNow(); }

void Poznamka::ConnectCommands() {
  const std::pair<QAction*, const char*> pictures[] = {
      {ui_->Copy, "copy"}, {ui_->Paste, "paste"}, {ui_->Dock, "dock"}, {ui_->Close, "close"}};
  QWidget* before = ui_->TabStrip1;
  for (const auto& [action, picture] : pictures) {
    action->setIcon(SvgIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(picture))));
    QWidget* button = ui_->Toolbar1->widgetForAction(action);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(action->text());
    setTabOrder(before, button);
    before = button;
  }
  connect(ui_->Copy, &QAction::triggered, this, [this] { around_.platform.SetClipboardText(Buffer().SelText()); });
  connect(ui_->Paste, &QAction::triggered, this,
          [this] { Buffer().ReplaceSelection(around_.platform.ClipboardText()); });
  connect(ui_->Close, &QAction::triggered, this, &Poznamka::close);
  connect(ui_->TabStrip1, &QTabBar::currentChanged, this, &Poznamka::TabStrip1_Click);
  AddTabKeys(*this, *ui_->TabStrip1);
  auto* unkept = new WarningLabel(ui_->Toolbar1);
  unkept->setText(QStringLiteral("Nezachovává se !"));
  QAction* warning = ui_->Toolbar1->addWidget(unkept);
  warning->setVisible(false);
  keeper_.on_failure = [unkept, warning](int error) {
    unkept->setToolTip(UnkeptTip(error));
    warning->setVisible(error != 0);
  };
}

TextBuffer& Poznamka::Buffer() { return ui_->Text1->Buffer(); }

void Poznamka::Present() { BringToFront(*this); }

NotesRecord Poznamka::Now() const {
  NotesRecord now = record_;
  now.Page(page_) = ui_->Text1->Buffer().Text();
  return now;
}

Poznamka::Rescue::Rescue(Poznamka& notes)
    : RescueContent(kNotesRescue, {.found = "Poznámky minule nebyly uloženy.\r\nPočet zachovaných stránek: ",
                                   .wanted = "Vrátit je do poznámek ?",
                                   .kept = "Neuložené poznámky",
                                   .next_time = "Příští otevření poznámek je nabídne zpět.",
                                   .rest_name = "notes-rescued.txt",
                                   .rest_message = "Všechny stránky se do poznámek nevešly. Zbylé jsou v souboru"}),
      notes_(notes) {}

RescueRecord Poznamka::Rescue::Unsaved() const { return NotesToKeep(notes_.stored_, notes_.Now(), notes_.page_); }

std::string Poznamka::Rescue::Readable(const std::vector<RescuedText>& texts) const { return ReadableNotes(texts); }

bool Poznamka::Rescue::IsHere(const RescuedText& note) const { return notes_.Now().Page(note.place) == note.text; }

std::vector<RescuedText> Poznamka::Rescue::BringBack(const std::vector<RescueRecord>& records) {
  NotesRecord all = notes_.Now();
  std::vector<RescuedText> left = BringBackNotes(all, records);
  notes_.record_ = all;
  notes_.ShowPage(records.front().shown);
  return left;
}

void Poznamka::ShowPage(int page) {
  const auto caret = [this]() -> std::size_t& { return carets_[IndexFromOne(page_)]; };
  caret() = Buffer().Caret();
  page_ = page;
  const QSignalBlocker quiet(ui_->TabStrip1);
  ui_->TabStrip1->setCurrentIndex(page - 1);
  Buffer().SetText(record_.Page(page));
  Buffer().Select(caret(), caret());
}

void Poznamka::TabStrip1_Click(int index) {
  const NotesRecord now = Now();
  if (RefuseOverlong(now)) return;
  record_ = now;
  ShowPage(index + 1);
}

bool Poznamka::RefuseOverlong(const NotesRecord& record) {
  const int page = OverlongPage(record);
  if (page == 0) return false;
  record_ = record;
  if (page == page_) {
    const QSignalBlocker quiet(ui_->TabStrip1);
    ui_->TabStrip1->setCurrentIndex(page - 1);
  } else {
    ShowPage(page);
  }
  around_.platform.Message(MessageType::kOk, OverlongMessage(page, record.Page(page).size()),
                           Utf8FromQString(windowTitle()));
  return true;
}

bool Poznamka::Unload() {
  const NotesRecord now = Now();
  const NotesRecord before = stored_;
  stored_ = LoadNotesAnew(before, around_.platform, around_.file_number);
  const MergedNotes merged = MergeNotes(before, now, stored_);
  record_ = merged.record;
  if (const int page = merged.page_in_conflict; page != 0) kept_twice_ = {page, record_.Page(page)};
  if (record_.Page(page_) != now.Page(page_)) ShowPage(page_);
  if (RefuseOverlong(record_)) return false;
  StoreNotes(record_, around_.platform, around_.file_number);
  stored_ = record_;
  keeper_.End();
  const auto [page, text] = std::exchange(kept_twice_, {});
  if (page != 0 && record_.Page(page) == text)
    around_.platform.Message(MessageType::kOk, KeptTwiceMessage(page), Utf8FromQString(windowTitle()));
  return around_.mode != StartMode::kNotes || MayEndStandAlone(around_.platform, "Poznámky");
}

void Poznamka::closeEvent(QCloseEvent* event) {
  if (!Unload()) {
    event->ignore();
    return Present();
  }
  event->accept();
  around_.end();
}

void Poznamka::resizeEvent(QResizeEvent*) {
  const int toolbar = ui_->Toolbar1->sizeHint().height();
  const int row = ui_->TabStrip1->RowHeight();
  ui_->Toolbar1->setGeometry(0, 0, width(), toolbar);
  ui_->TabStrip1->setGeometry(0, toolbar, width(), ui_->TabStrip1->height());
  if (toolbar + row >= height()) return;
  ui_->TabStrip1->resize(width(), height() - toolbar);
  ui_->Text1->setGeometry(0, toolbar + row, width(), height() - row - toolbar);
}

void Poznamka::showEvent(QShowEvent*) {
  ShowProgramIcon();
  timer1_.start(kTick);
}

NotesSurroundings Poznamka::Measures() const {
  NotesSurroundings now;
  now.notes = OuterGeometry(*this);
  now.main = around_.main.Place();
  now.main_state = around_.main.WindowState();
  now.mode = around_.mode;
  now.docked = ui_->Dock->isChecked();
  now.snap_distance = around_.settings.AutosnapDistance;
  const bool beside_main = now.docked && now.mode == StartMode::kEditor && now.main_state != WindowMode::kMinimised;
  now.screen = beside_main ? ScreenTwips(now.main) : ScreenTwips(*this);
  now.narrowest = now.notes.width - TwipsOf(width() - minimumWidth());
  return now;
}

void Poznamka::Timer1_Timer() {
  if (isMinimized() || isMaximized()) return;
  const NotesSurroundings now = Measures();
  const TwipsRect place = PlaceNotes(now);
  if (requests_.MayRequest(now.notes, place)) SetOuterPlace(*this, place);
}

}  // namespace pelmar
