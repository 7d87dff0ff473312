#include "platform/qt/glyph_table.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QTextLayout>
#include <QtMath>
#include <algorithm>

#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::size_t kTabColumns = 8;
constexpr qreal kSignScale = 0.65;
constexpr qreal kSmallestSign = 8;  // pixels
constexpr qreal kSignPadding = 2;
constexpr qreal kSignGap = 1;  // after each sign

constexpr std::array<const char*, 32> kControlNames = {
    "NUL", "SOH", "STX", "ETX", "EOT", "ENQ", "ACK", "BEL", "BS",  "HT", "LF",  "VT",  "FF", "CR", "SO", "SI",
    "DLE", "DC1", "DC2", "DC3", "DC4", "NAK", "SYN", "ETB", "CAN", "EM", "SUB", "ESC", "FS", "GS", "RS", "US"};

std::int32_t AdvanceOf(qreal pixels) { return static_cast<std::int32_t>(NearestUnits(pixels)); }

QRawFont SignFace(const QFont& font) {
  const qreal size = QRawFont::fromFont(font).pixelSize();
  QFont small(font);
  small.setPixelSize(qRound(std::max(size * kSignScale, std::min(size, kSmallestSign))));
  return QRawFont::fromFont(small);
}

}  // namespace

QString SignName(unsigned char code) {
  if (code < kControlNames.size()) return QString::fromLatin1(kControlNames[code]);
  if (code == 0x7F) return QStringLiteral("DEL");
  return QString::number(code, 16).toUpper();
}

bool IsControlSign(unsigned char code) {
  return (code < 0x20 && code != '\t') || (code >= 0x7F && UnicodeOf(code) == code && code < 0xA0);
}

QString ReadableText(std::string_view text) {
  QString readable;
  for (const char ch : text) {
    const auto code = static_cast<unsigned char>(ch);
    readable += IsControlSign(code) || ch == '\t' ? SignName(code) : QString(QChar(UnicodeOf(code)));
  }
  return readable;
}

GlyphTable::GlyphTable(const QFont& font) : underline_(font.underline()), strike_out_(font.strikeOut()) {
  QFont plain(font);
  plain.setKerning(false);
  FillFromFont(plain);
  FillSigns(plain);
  advances_.tab_stop = std::max<std::int32_t>(advances_.of[' '] * static_cast<std::int32_t>(kTabColumns), 1);
  const QFontMetricsF metrics(plain);
  ascent_ = qCeil(metrics.ascent());
  row_height_ = std::max(ascent_ + qCeil(metrics.descent()) + qCeil(std::max<qreal>(metrics.leading(), 0)), 1);
  runs_.resize(faces_.size());
}

void GlyphTable::FillFromFont(const QFont& font) {
  faces_.push_back(QRawFont::fromFont(font));
  for (std::size_t code = 0; code < 256; ++code) {
    const auto byte = static_cast<unsigned char>(code);
    if (IsControlSign(byte) || byte == '\t') continue;
    const QString letter(QChar(UnicodeOf(byte)));
    const QList<quint32> glyphs = faces_[0].glyphIndexesForString(letter);
    if (glyphs.isEmpty() || glyphs[0] == 0) {
      FillFromFallback(font, code);
      continue;
    }
    cells_[code] = {glyphs[0], 0};
    const QList<QPointF> advances = faces_[0].advancesForGlyphIndexes(glyphs);
    if (!advances.isEmpty()) advances_.of[code] = AdvanceOf(advances[0].x());
  }
}

// Lays out the letter, so that Qt picks a fallback font that has the glyph.
void GlyphTable::FillFromFallback(const QFont& font, std::size_t code) {
  QTextLayout layout(QString(QChar(UnicodeOf(static_cast<unsigned char>(code)))), font);
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  const QList<QGlyphRun> runs = layout.glyphRuns();
  if (line.isValid()) advances_.of[code] = AdvanceOf(line.naturalTextWidth());
  if (!runs.isEmpty() && !runs[0].glyphIndexes().isEmpty())
    cells_[code] = {runs[0].glyphIndexes()[0], FaceIndex(runs[0].rawFont())};
  const qreal size = faces_[0].pixelSize();
  if (advances_.of[code] <= 0) advances_.of[code] = AdvanceOf(size / 2);
}

std::uint8_t GlyphTable::FaceIndex(const QRawFont& face) {
  const auto known = std::find(faces_.begin(), faces_.end(), face);
  if (known != faces_.end()) return static_cast<std::uint8_t>(known - faces_.begin());
  faces_.push_back(face);
  return static_cast<std::uint8_t>(faces_.size() - 1);
}

void GlyphTable::FillSigns(const QFont& font) {
  sign_face_ = SignFace(font);
  for (std::size_t code = 0; code < 256; ++code) {
    if (!IsControlSign(static_cast<unsigned char>(code))) continue;
    advances_.of[code] = AdvanceOf(SignWidth(static_cast<unsigned char>(code)));
  }
}

// The width in pixels, rounded up, with the gap after the sign.
qreal GlyphTable::SignWidth(unsigned char code) const {
  qreal width = 2 * kSignPadding + kSignGap;
  const QList<quint32> glyphs = sign_face_.glyphIndexesForString(SignName(code));
  for (const QPointF advance : sign_face_.advancesForGlyphIndexes(glyphs)) width += advance.x();
  return qCeil(width);
}

qreal GlyphTable::WidthAlone(char ch) const {
  const auto code = static_cast<unsigned char>(ch);
  return ch == '\t' ? SignWidth(code) : ExactPixels(advances_.of[code]);
}

void GlyphTable::DrawAlone(QPainter& painter, QPointF at, char ch, const QColor& colour) const {
  if (ch == '\t') return DrawSign(painter, at, static_cast<unsigned char>(ch), colour);
  Draw(painter, at, 0, {&ch, 1}, colour);
}

std::int64_t GlyphTable::EndOf(std::int64_t x, std::string_view text) const {
  for (const char ch : text) x = advances_.After(x, ch);
  return x;
}

void GlyphTable::Draw(QPainter& painter, QPointF origin, std::int64_t x, std::string_view text,
                      const QColor& colour) const {
  for (const char ch : text) {
    const auto code = static_cast<unsigned char>(ch);
    if (IsControlSign(code)) {
      DrawSign(painter, origin + QPointF(ExactPixels(x), 0), code, colour);
    } else if (ch != '\t' && (ch != ' ' || underline_ || strike_out_)) {
      Run& run = runs_[cells_[code].face];
      run.glyphs.push_back(cells_[code].glyph);
      run.places.push_back(origin + QPointF(ExactPixels(x), ascent_));
    }
    x = advances_.After(x, ch);
  }
  DrawRuns(painter, colour);
}

void GlyphTable::DrawRuns(QPainter& painter, const QColor& colour) const {
  painter.setPen(colour);
  for (std::size_t face = 0; face < runs_.size(); ++face) {
    Run& run = runs_[face];
    if (run.glyphs.empty()) continue;
    QGlyphRun glyphs;
    glyphs.setRawFont(faces_[face]);
    glyphs.setRawData(run.glyphs.data(), run.places.data(), static_cast<int>(run.glyphs.size()));
    glyphs.setUnderline(underline_);
    glyphs.setStrikeOut(strike_out_);
    painter.drawGlyphRun(QPointF(), glyphs);
    run.glyphs.clear();
    run.places.clear();
  }
}

void GlyphTable::DrawSign(QPainter& painter, QPointF at, unsigned char code, const QColor& colour) const {
  QColor tint = colour;
  tint.setAlphaF(0.18F);
  painter.fillRect(QRectF(at.x(), at.y() + 1, WidthAlone(static_cast<char>(code)) - kSignGap, row_height_ - 2), tint);

  const QList<quint32> glyphs = sign_face_.glyphIndexesForString(SignName(code));
  const QList<QPointF> advances = sign_face_.advancesForGlyphIndexes(glyphs);
  QPointF place(at.x() + kSignPadding, at.y() + qRound((row_height_ + sign_face_.capHeight()) / 2));
  QList<QPointF> places;
  for (const QPointF advance : advances) {
    places.append(place);
    place.rx() += advance.x();
  }
  QGlyphRun run;
  run.setRawFont(sign_face_);
  run.setGlyphIndexes(glyphs);
  run.setPositions(places);
  painter.setPen(colour);
  painter.drawGlyphRun(QPointF(), run);
}

}  // namespace pelmar
