#include "platform/qt/printer.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <algorithm>
#include <cerrno>
#include <cmath>

#include "platform/qt/controls/glyph_table.h"
#include "platform/qt/convert.h"

namespace pelmar {
namespace {

constexpr qreal kPdfMargin = 15;  // millimetres

QFont FontOn(QPrinter& printer, const PrintFont& font) {
  QFont result(TextToQString(font.name));
  result.setPointSizeF(font.size);
  result.setBold(font.bold);
  result.setItalic(font.italic);
  return {result, &printer};
}

class QtPaper : public Paper {
 public:
  QtPaper(QPrinter& printer, QPainter& painter, const QFont& font)
      : printer_(printer), painter_(painter), glyphs_(font), page_(printer.pageRect(QPrinter::DevicePixel)) {}

  [[nodiscard]] double Width() const override { return page_.width(); }
  [[nodiscard]] std::size_t LinesPerPage() const override {
    return std::max<std::size_t>(1, static_cast<std::size_t>(page_.height() / glyphs_.RowHeight()));
  }
  [[nodiscard]] double EndOf(double x, std::string_view text) const override {
    return ToDots(glyphs_.EndOf(ToUnits(x), text));
  }
  void Put(std::size_t line, double x, std::string_view text) override {
    const QPointF row(0, static_cast<qreal>(line) * glyphs_.RowHeight());
    glyphs_.Draw(painter_, row, ToUnits(x), text, Qt::black);
  }
  void NewPage() override { printer_.newPage(); }

 private:
  static std::int64_t ToUnits(double dots) { return std::llround(dots * kUnitsPerPixel); }
  static double ToDots(std::int64_t units) { return static_cast<double>(units) / kUnitsPerPixel; }

  QPrinter& printer_;
  QPainter& painter_;
  GlyphTable glyphs_;
  QRectF page_;
};

// A full disk shows only by what is missing.
bool IsWholePdf(const QString& path) {
  constexpr qint64 kEnd = 32;
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.size() > kEnd && file.seek(file.size() - kEnd) &&
         file.readAll().contains("%%EOF");
}

}  // namespace

QString NewPdfPath(const QString& folder, const QString& name) {
  const QString base = folder + QLatin1Char('/') + name;
  QString path = base + QStringLiteral(".pdf");
  for (int number = 2; QFile::exists(path); ++number) path = QStringLiteral("%1 (%2).pdf").arg(base).arg(number);
  return path;
}

PrintOutcome PrintOnDefault(const PrintFont& font, const QString& name, const std::function<void(Paper&)>& draw) {
  const QPrinterInfo standard = QPrinterInfo::defaultPrinter();
  QPrinter printer(standard, QPrinter::HighResolution);
  printer.setDocName(name);
  QString pdf;
  if (standard.isNull()) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QDir().mkpath(folder)) return {.error = EACCES, .pdf = {}};
    pdf = NewPdfPath(folder, name);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pdf);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageMargins(QMarginsF(kPdfMargin, kPdfMargin, kPdfMargin, kPdfMargin), QPageLayout::Millimeter);
  }
  QPainter painter;
  if (!painter.begin(&printer)) return {.error = EIO, .pdf = {}};
  QtPaper paper(printer, painter, FontOn(printer, font));
  draw(paper);
  painter.end();
  if (printer.printerState() == QPrinter::Error || (!pdf.isEmpty() && !IsWholePdf(pdf))) {
    if (!pdf.isEmpty()) QFile::remove(pdf);
    return {.error = EIO, .pdf = {}};
  }
  return {.error = 0, .pdf = Utf8FromQString(pdf)};
}

}  // namespace pelmar
