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
  // A job on the default printer, sent when its painting ends; nothing where the system has no such printer.
  [[nodiscard]] virtual std::unique_ptr<QPagedPaintDevice> BeginJob(const QString& name) = 0;
  // What became of a job of BeginJob whose painting has ended.
  [[nodiscard]] virtual bool HasFailed(const QPagedPaintDevice& job) = 0;
};

}  // namespace pelmar

#define PELMAR_SYSTEM_PRINTER "cz.pelmar.vex.SystemPrinter/1"
Q_DECLARE_INTERFACE(pelmar::SystemPrinter, PELMAR_SYSTEM_PRINTER)
