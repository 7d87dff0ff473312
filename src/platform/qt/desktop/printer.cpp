#include "platform/qt/desktop/printer.h"

#include <QDir>
#include <QFile>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QStandardPaths>
#include <algorithm>
#include <cerrno>

#include "platform/qt/convert.h"
#include "platform/qt/desktop/system_printer.h"
#include "platform/qt/glyph_table.h"
#include "platform/qt/module.h"

namespace pelmar {
namespace {

constexpr qreal kPdfMargin = 15;  // millimetres

QFont FontOn(const QPagedPaintDevice& device, const PrintFont& font) {
  QFont result(TextToQString(font.name));
  result.setPointSizeF(font.size);
  result.setBold(font.bold);
  result.setItalic(font.italic);
  return {result, &device};
}

class QtPaper : public Paper {
 public:
  QtPaper(QPagedPaintDevice& device, QPainter& painter, const QFont& font)
      : device_(device), painter_(painter), glyphs_(font) {}

  // The width of the area inside the margins. The painter's origin is the top left corner of this area.
  [[nodiscard]] double Width() const override { return device_.width(); }
  [[nodiscard]] std::size_t LinesPerPage() const override {
    return std::max<std::size_t>(1, static_cast<std::size_t>(device_.height() / glyphs_.RowHeight()));
  }
  [[nodiscard]] double EndOf(double x, std::string_view text) const override {
    return ExactPixels(glyphs_.EndOf(NearestUnits(x), text));
  }
  void Put(std::size_t line, double x, std::string_view text) override {
    const QPointF row(0, static_cast<qreal>(line) * glyphs_.RowHeight());
    glyphs_.Draw(painter_, row, NearestUnits(x), text, Qt::black);
  }
  void NewPage() override { device_.newPage(); }

 private:
  QPagedPaintDevice& device_;
  QPainter& painter_;
  GlyphTable glyphs_;
};

bool PrintOn(QPagedPaintDevice& device, const PrintFont& font, const std::function<void(Paper&)>& draw) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  QtPaper paper(device, painter, FontOn(device, font));
  draw(paper);
  return painter.end();
}

// Loads the module unless an earlier call has loaded it. Returns null on failure and sets `problem` to the reason.
SystemPrinter* LoadPrinters(QString& problem) {
  static SystemPrinter* printer = nullptr;
  if (printer != nullptr) return printer;
  const LoadedModule module = LoadModule(ModuleFolders(), QStringLiteral("pelmar-printer.so"));
  printer = qobject_cast<SystemPrinter*>(module.plugin);
  if (printer == nullptr)
    problem = module.error.isEmpty() ? QStringLiteral("Chybí modul pro tisk (pelmar-printer.so).")
                                     : QStringLiteral("Modul pro tisk nelze použít (%1).").arg(module.error);
  return printer;
}

// Whether the end of the PDF file was written. QPdfWriter does not report a full disk.
bool IsWholePdf(QFile& file) {
  constexpr qint64 kEnd = 32;
  errno = 0;
  return file.flush() && file.size() > kEnd && file.seek(file.size() - kEnd) && file.readAll().contains("%%EOF");
}

PrintOutcome PrintIntoPdf(const PrintFont& font, const QString& name, const std::function<void(Paper&)>& draw) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QFile file(NewPdfPath(folder, name));
  PrintOutcome outcome{.pdf = Utf8FromQString(file.fileName())};
  errno = 0;
  const auto failed = [&outcome] {
    outcome.error = errno != 0 ? errno : EIO;
    return outcome;
  };
  if (!QDir().mkpath(folder)) {
    if (errno == EEXIST) errno = ENOTDIR;  // a file has the folder's name
    return failed();
  }
  if (!file.open(QIODevice::ReadWrite | QIODevice::NewOnly)) return failed();
  QPdfWriter writer(&file);
  writer.setTitle(name);
  writer.setCreator(QStringLiteral("Pelmar VEX"));
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins(QMarginsF(kPdfMargin, kPdfMargin, kPdfMargin, kPdfMargin), QPageLayout::Millimeter);
  if (!PrintOn(writer, font, draw) || !IsWholePdf(file)) {
    failed();
    // file.remove() would keep the file if closing the file fails, as on a full disk.
    file.close();
    QFile::remove(file.fileName());
  }
  return outcome;
}

}  // namespace

QString NewPdfPath(const QString& folder, const QString& name) {
  constexpr qsizetype kLongestName = 80;  // characters of up to three bytes; a file name has at most 255 bytes
  const QString base = folder + QLatin1Char('/') + name.left(kLongestName);
  QString path = base + QStringLiteral(".pdf");
  for (int number = 2; QFile::exists(path); ++number) path = base + QStringLiteral(" (%1).pdf").arg(number);
  return path;
}

PrintOutcome PrintOnDefault(const PrintFont& font, const QString& name, const std::function<void(Paper&)>& draw) {
  QString problem;
  SystemPrinter* const printers = LoadPrinters(problem);
  const QString printer = printers == nullptr ? QString() : printers->FindPrinter(problem);
  if (printer.isEmpty()) {
    PrintOutcome outcome = PrintIntoPdf(font, name, draw);
    outcome.problem = Utf8FromQString(problem);
    return outcome;
  }
  const std::unique_ptr<QPagedPaintDevice> job = printers->BeginJob(printer, name);
  const bool printed = PrintOn(*job, font, draw) && !printers->HasFailed(*job);
  return {.error = printed ? 0 : EIO, .printer = Utf8FromQString(printer)};
}

}  // namespace pelmar
