// The interface of the module pelmar-printer. Only this module uses the system's printers.
#pragma once

#include <QPagedPaintDevice>
#include <QString>
#include <QtPlugin>
#include <memory>

namespace pelmar {

// Implemented by the plug-in object of the module.
class SystemPrinter {
 public:
  SystemPrinter() = default;
  SystemPrinter(const SystemPrinter&) = delete;
  SystemPrinter& operator=(const SystemPrinter&) = delete;
  virtual ~SystemPrinter() = default;
  // The name of the default printer or of the only printer. If there is neither, returns "" and sets `problem`.
  [[nodiscard]] virtual QString FindPrinter(QString& problem) = 0;
  // Starts the job `name` on the printer `printer`. The job is sent when the painting ends.
  [[nodiscard]] virtual std::unique_ptr<QPagedPaintDevice> BeginJob(const QString& printer, const QString& name) = 0;
  // Whether a job of BeginJob has failed. Call right after the painting has ended.
  [[nodiscard]] virtual bool HasFailed(const QPagedPaintDevice& job) = 0;
};

}  // namespace pelmar

#define PELMAR_SYSTEM_PRINTER "cz.pelmar.vex.SystemPrinter/2"
Q_DECLARE_INTERFACE(pelmar::SystemPrinter, PELMAR_SYSTEM_PRINTER)
