#include "shell/windows/status_strip.h"

#include <QMouseEvent>
#include <algorithm>

#include "platform/qt/convert.h"
#include "platform/twips.h"

namespace pelmar {
namespace {

constexpr int kGap = 2;
constexpr int kTextMargin = 4;

// How many characters the panels have room for at the start, but for panel 4, which begins with none and takes what is
// left. The largest figures of a document fit in, and all seven into the window of the DOS look. Counted in average
// characters, because measuring texts means loading the font's shaping before the first window.
constexpr int kCharacters[kPanelCount] = {23, 24, 25, 0, 6, 6, 5};
constexpr QStringView kTips[kPanelCount] = {
    u"Pozice", u"Délka", u"Řádky (Click - off, DblCick - on)", u"Obsah", u"CAPS", u"NUM", u"INS",
};

}  // namespace

StatusPanel::StatusPanel(QWidget* parent) : ElidedLabel(parent) {
  setElideMode(Qt::ElideRight);
  setIndent(kTextMargin);
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
}

void StatusPanel::SetContent(const std::string& text) {
  if (text == content_) return;
  content_ = text;
  setText(TextToQString(text));
}

void StatusPanel::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) return Q_EMIT Clicked();
  ElidedLabel::mousePressEvent(event);
}

void StatusPanel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) return Q_EMIT DoubleClicked();
  ElidedLabel::mouseDoubleClickEvent(event);
}

StatusStrip::StatusStrip(QWidget* parent) : QStatusBar(parent) {
  setObjectName(QStringLiteral("Bar1"));
  setSizeGripEnabled(false);
  for (int number = 1; number <= kPanelCount; ++number) {
    const auto at = static_cast<std::size_t>(number - 1);
    auto* panel = new StatusPanel(this);
    panel->setObjectName(QStringLiteral("Panel%1").arg(number));
    panel->setToolTip(kTips[at].toString());
    panels_[at] = panel;
    if (kCharacters[at] > 0)
      widths_[at] = TwipsOf(fontMetrics().averageCharWidth() * kCharacters[at] + 2 * kTextMargin);
  }
  for (const std::size_t at : {4u, 5u, 6u}) panels_[at]->setText(kTips[at].toString());
  Show(KeyStates{});
  warning_ = new WarningLabel(this);
  warning_->hide();
}

void StatusStrip::Show(const PanelTexts& texts) {
  cleared_ = false;
  panels_[0]->SetContent(texts.length);
  panels_[1]->SetContent(texts.position);
  panels_[2]->SetContent(texts.lines);
}

void StatusStrip::Clear() {
  Show(PanelTexts());
  ShowContent({});
  cleared_ = true;
}

void StatusStrip::ShowContent(const std::string& text) { panels_[3]->SetContent(text); }

void StatusStrip::Show(const KeyStates& keys) {
  ShowKey(4, keys.caps);
  ShowKey(5, keys.num);
  ShowKey(6, keys.insert);
}

// Who sees the panel knows the state by its grey, who listens by its name.
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
  int& width = widths_[static_cast<std::size_t>(number - 1)];
  if (width == twips) return;
  width = twips;
  Place();
}

QSize StatusStrip::sizeHint() const { return {0, panels_[0]->sizeHint().height() + 2 * kGap}; }

void StatusStrip::resizeEvent(QResizeEvent* event) {
  QStatusBar::resizeEvent(event);
  Place();
}

// The widths are the layout's and stay; where they go beyond a narrow window, the panels of the keys keep theirs and
// what lies before them shares the rest, each with its own dots.
void StatusStrip::Place() {
  constexpr std::size_t kFirstKey = 4;
  const auto sum = [this](std::size_t from, std::size_t to) {
    int pixels = 0;
    for (std::size_t i = from; i < to; ++i) pixels += PixelsOf(widths_[i]);
    return pixels;
  };
  const int texts = sum(0, kFirstKey);
  const int room = width() - kGap - sum(kFirstKey, panels_.size());
  const double share = texts > room && texts > 0 ? std::max(0, room) / static_cast<double>(texts) : 1;
  int left = kGap;
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    const int own = PixelsOf(widths_[i]);
    const int shown = i < kFirstKey ? static_cast<int>(own * share) : own;
    panels_[i]->setGeometry(left, kGap, std::max(0, shown - kGap), height() - 2 * kGap);
    left += shown;
  }
  PlaceWarning();
}

void StatusStrip::PlaceWarning() {
  const QRect content = panels_[3]->geometry();
  const int wanted = warning_->sizeHint().width();
  const int most = width() - kGap;
  // In a narrow window it covers the panels of the keys too.
  const int end = wanted <= content.right() ? std::min(content.right() + 1, most) : most;
  int begin = kGap;
  for (const std::size_t at : {1u, 2u, 3u})
    if (panels_[at]->x() <= end - wanted) begin = panels_[at]->x();
  warning_->setGeometry(begin, kGap, end - begin, content.height());
}

}  // namespace pelmar
