#include "shell/windows/main/status_strip.h"

#include <QMouseEvent>
#include <algorithm>
#include <numeric>

#include "platform/qt/convert.h"
#include "platform/twips.h"

namespace pelmar {
namespace {

constexpr int kGap = 2;
constexpr int kTextMargin = 4;
constexpr std::size_t kFigures = 3;  // the number of panels with figures, which come first
constexpr std::size_t kFirstKey = 4;

// The initial widths of the panels in average characters, enough for the largest figures. Panel 4 gets the remaining
// width. Measuring real texts would start the slow text shaping before the first window appears.
constexpr int kCharacters[kPanelCount] = {23, 24, 25, 0, 6, 6, 5};
// required: the first two tips are interchanged
constexpr QStringView kTips[kPanelCount] = {
    u"Pozice", u"Délka", u"Řádky (Click - off, DblCick - on)", u"Obsah", u"CAPS", u"NUM", u"INS",
};

}  // namespace

StatusPanel::StatusPanel(QWidget* parent) : ElidedLabel(parent) {
  setElideMode(Qt::ElideRight);
  setIndent(kTextMargin);
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
}

bool StatusPanel::SetContent(const std::string& text) {
  if (text == content_) return false;
  content_ = text;
  setText(TextToQString(text));
  return true;
}

int StatusPanel::WholeWidth() const {
  return fontMetrics().horizontalAdvance(text()) + 1 + 2 * (kTextMargin + frameWidth()) + kGap;
}

void StatusPanel::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Q_EMIT Clicked();
}

void StatusPanel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Q_EMIT DoubleClicked();
}

StatusStrip::StatusStrip(QWidget* parent) : QStatusBar(parent) {
  setObjectName(QStringLiteral("Bar1"));
  setSizeGripEnabled(false);
  for (int number = 1; number <= kPanelCount; ++number) {
    const auto at = IndexFromOne(number);
    auto* panel = new StatusPanel(this);
    panel->setObjectName(QStringLiteral("Panel%1").arg(number));
    panel->setToolTip(kTips[at].toString());
    panels_[at] = panel;
    if (at < kFigures) panel->setElideMode(Qt::ElideLeft);  // the figures are at the end of the text
    widths_[at] = TwipsOf(fontMetrics().averageCharWidth() * kCharacters[at] + 2 * kTextMargin);
  }
  for (const std::size_t at : {4u, 5u, 6u}) panels_[at]->setText(kTips[at].toString());
  Show(KeyStates{});
  warning_ = new WarningLabel(this);
  warning_->hide();
}

void StatusStrip::Show(const PanelTexts& texts) {
  const bool length = panels_[0]->SetContent(texts.length), position = panels_[1]->SetContent(texts.position);
  if (panels_[2]->SetContent(texts.lines) || length || position) Place();
}

void StatusStrip::Clear() {
  Show(PanelTexts());
  ShowContent({});
}

void StatusStrip::ShowContent(const std::string& text) { panels_[3]->SetContent(text); }

void StatusStrip::Show(const KeyStates& keys) {
  ShowKey(4, keys.caps);
  ShowKey(5, keys.num);
  ShowKey(6, keys.insert);
}

// Shows the state of a key by the colour of its panel, and by the accessible name of the panel.
void StatusStrip::ShowKey(std::size_t at, bool on) {
  StatusPanel& panel = *panels_[at];
  if (panel.isEnabled() == on && !panel.accessibleName().isEmpty()) return;
  panel.setEnabled(on);
  panel.setAccessibleName(kTips[at].toString() + (on ? QStringLiteral(" zapnuto") : QStringLiteral(" vypnuto")));
}

void StatusStrip::Warn(Warning of, const QString& text, const QString& tip) {
  auto& warning = warnings_[of];
  if (warning.text == text && warning.tip == tip) return;
  warning = {text, tip};
  const auto gravest = std::ranges::find_if(warnings_, [](const auto& one) { return !one.second.text.isEmpty(); });
  warning_->hide();
  if (gravest == warnings_.end()) return;
  is_hint_ = gravest->first > Warning::kFilesStuck;
  const Said& said = gravest->second;
  warning_->setText(said.text);
  warning_->setToolTip(said.tip.isEmpty() ? said.text : said.tip);
  PlaceWarning();
  warning_->show();
}

void StatusStrip::WarnOfUnkept(int error) {
  if (error == 0) return Warn(Warning::kUnkept, {});
  Warn(Warning::kUnkept, QStringLiteral("Neuložená práce se teď nezachovává !"), UnkeptTip(error));
}

void StatusStrip::SetWidth(int number, int twips) {
  int& width = widths_[IndexFromOne(number)];
  if (width == twips) return;
  width = twips;
  Place();
}

QSize StatusStrip::sizeHint() const { return {0, panels_[0]->sizeHint().height() + 2 * kGap}; }

void StatusStrip::resizeEvent(QResizeEvent* event) {
  QStatusBar::resizeEvent(event);
  Place();
}

// Places the panels. In a narrow window the panels of the keys keep their width, and the others share the rest. If this
// would cut a figure, panels 1 to 3 get the width of their texts, as far as there is room, and panel 4 gets the rest.
// `widths_` doesn't change.
void StatusStrip::Place() {
  std::array<int, kPanelCount> shown{};
  std::ranges::transform(widths_, shown.begin(), PixelsOf);
  const auto sum = [&shown](std::size_t from, std::size_t to) {
    return std::accumulate(shown.begin() + from, shown.begin() + to, 0);
  };
  const auto scale = [&shown](std::size_t count, int room, int wanted) {
    for (std::size_t i = 0; i < count && wanted > room; ++i) shown[i] = shown[i] * room / wanted;
  };
  const int room = std::max(0, width() - kGap - sum(kFirstKey, kPanelCount));
  const int texts = sum(0, kFirstKey);
  scale(kFirstKey, room, texts);
  const auto is_cut = [this, &shown](std::size_t at) { return panels_[at]->WholeWidth() > shown[at]; };
  if (texts > room && (is_cut(0) || is_cut(1) || is_cut(2))) {
    for (std::size_t i = 0; i < kFigures; ++i) shown[i] = panels_[i]->WholeWidth();
    scale(kFigures, room, sum(0, kFigures));
    shown[kFigures] = room - sum(0, kFigures);
  }
  int left = kGap;
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i]->setGeometry(left, kGap, std::max(0, shown[i] - kGap), height() - 2 * kGap);
    left += shown[i];
    if (i >= kFigures) continue;
    const QString tip = kTips[i].toString();
    panels_[i]->setToolTip(texts > room && is_cut(i) ? tip + QLatin1Char('\n') + panels_[i]->text() : tip);
  }
  PlaceWarning();
}

void StatusStrip::PlaceWarning() {
  const QRect content = panels_[3]->geometry();
  if (is_hint_) return warning_->setGeometry(content);
  const int wanted = warning_->sizeHint().width();
  const int most = width() - kGap;
  // A warning wider than panels 1 to 4 covers the panels of the keys too.
  const int end = wanted <= content.right() ? std::min(content.right() + 1, most) : most;
  int begin = kGap;
  for (const std::size_t at : {1u, 2u, 3u})
    if (panels_[at]->x() <= end - wanted) begin = panels_[at]->x();
  warning_->setGeometry(begin, kGap, end - begin, content.height());
}

}  // namespace pelmar
