// The plug-in object of the module pelmar-printer.
#include <QLibrary>
#include <QObject>
#include <QPrinter>
#include <QPrinterInfo>

#include "platform/qt/desktop/system_printer.h"

namespace pelmar {
namespace {

// The print server (CUPS) may refuse a job, and Qt doesn't report the refusal. The client library of the server
// remembers the status of the last request of this thread.
bool ServerHasRefused() {
  constexpr int kFirstFailure = 0x0100;  // in the Internet Printing Protocol, a lower status means success
  const auto last_answer = reinterpret_cast<int (*)()>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
  return last_answer != nullptr && last_answer() >= kFirstFailure;
}

}  // namespace

class PrinterPlugin : public QObject, public SystemPrinter {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID PELMAR_SYSTEM_PRINTER)
  Q_INTERFACES(pelmar::SystemPrinter)

 public:
  QString FindPrinter(QString& problem) override {
    const QPrinterInfo standard = QPrinterInfo::defaultPrinter();
    if (!standard.isNull()) return standard.printerName();
    const QStringList all = QPrinterInfo::availablePrinterNames();
    if (all.size() == 1) return all.first();
    problem = all.isEmpty() ? QStringLiteral("Není nastavena žádná tiskárna.")
                            : QStringLiteral("Žádná tiskárna není výchozí (jsou: %1).").arg(all.join(u", "));
    return {};
  }
  std::unique_ptr<QPagedPaintDevice> BeginJob(const QString& printer, const QString& name) override {
    auto job = std::make_unique<QPrinter>(QPrinterInfo::printerInfo(printer), QPrinter::HighResolution);
    job->setDocName(name);
    return job;
  }
  bool HasFailed(const QPagedPaintDevice& job) override {
    return static_cast<const QPrinter&>(job).printerState() == QPrinter::Error || ServerHasRefused();
  }
};

}  // namespace pelmar

#include "module.moc"
