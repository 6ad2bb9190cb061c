#include "qt/printing/queue_spool.h"

#include <cups/cups.h>

#include <QList>
#include <QPainter>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QString>
#include <QStringList>
#include <algorithm>

#include "platform/faults/fault.h"
#include "platform/painting/printer.h"

namespace tagwright {
namespace {

// Hands options through to the print service; the toolkit has this key but gives it no name.
constexpr auto kServiceOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

// A millimetre is a millimetre: the service must not fit the page to the printable area.
void KeepSize(QPrinter& printer) {
  printer.setFullPage(true);
  QStringList options = printer.printEngine()->property(kServiceOptions).toStringList();
  options << QStringLiteral("print-scaling") << QStringLiteral("none");
  printer.printEngine()->setProperty(kServiceOptions, options);
}

// The queue is looked up anew: it may have gone since it was chosen.
QPrinterInfo QueueNamed(const std::string& name) {
  QPrinterInfo info = QPrinterInfo::printerInfo(QString::fromStdString(name));
  if (info.isNull()) RaiseFault(kPrinterFault, "The printer " + name + " is not there any more.");
  return info;
}

class QueueSpool : public Spool {
 public:
  explicit QueueSpool(const std::string& name)
      : name_(name), printer_(QueueNamed(name), QPrinter::HighResolution) {
    printer_.setResolution(kUnitsPerInch);
    printer_.setDocName(QStringLiteral("Labels"));
    KeepSize(printer_);
  }
  QPagedPaintDevice& Device() override { return printer_; }
  // The toolkit hands the job over and does not ask what became of it; the service's library knows.
  void Send() override {
    if (Failed()) Refuse("");
    if (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE) Refuse(cupsLastErrorString());
  }
  // With the painter's end the toolkit sends what there is, an aborted job as well. Out of reach of
  // the service that comes to nothing; afterwards the service is looked up anew.
  void Drop(QPainter& painter) override {
    cupsSetServer("/dev/null");
    painter.end();
    cupsSetServer(nullptr);
  }
  bool Failed() const override {
    return printer_.printerState() == QPrinter::Error ||
           printer_.printerState() == QPrinter::Aborted;
  }

 private:
  [[noreturn]] void Refuse(const std::string& reason) const {
    RaiseFault(kPrinterFault, "The printer " + name_ + " does not take the job" +
                                  (reason.empty() ? "." : ": " + reason));
  }

  std::string name_;
  QPrinter printer_;
};

}  // namespace

int FinestResolution(const std::string& name) {
  const QList<int> known = QueueNamed(name).supportedResolutions();
  const auto finest = std::max_element(known.begin(), known.end());
  return finest == known.end() ? kUsualResolution : *finest;
}

std::unique_ptr<Spool> OpenQueueSpool(const std::string& name) {
  return std::make_unique<QueueSpool>(name);
}

}  // namespace tagwright
