// The door to the module pelmar-printer, which alone knows the system's printers.
#pragma once

#include <QPagedPaintDevice>
#include <QString>
#include <QtPlugin>
#include <memory>

namespace pelmar {

// What the module's plug-in object is.
class SystemPrinter {
 public:
  SystemPrinter() = default;
  SystemPrinter(const SystemPrinter&) = delete;
  SystemPrinter& operator=(const SystemPrinter&) = delete;
  virtual ~SystemPrinter() = default;
  // The default one, or the only one that there is; "" where there is neither, and `problem` tells so then.
  [[nodiscard]] virtual QString FindPrinter(QString& problem) = 0;
  // A job on this printer, sent when its painting ends.
  [[nodiscard]] virtual std::unique_ptr<QPagedPaintDevice> BeginJob(const QString& printer, const QString& name) = 0;
  // What became of a job of BeginJob whose painting has ended.
  [[nodiscard]] virtual bool HasFailed(const QPagedPaintDevice& job) = 0;
};

}  // namespace pelmar

#define PELMAR_SYSTEM_PRINTER "cz.pelmar.vex.SystemPrinter/2"
Q_DECLARE_INTERFACE(pelmar::SystemPrinter, PELMAR_SYSTEM_PRINTER)
