#include "platform/printer.h"

#include "platform/fault.h"

namespace tagwright {
namespace {

class NoPrinters : public PrinterService {
 public:
  std::vector<std::string> Names() override { return {}; }
  std::string DefaultName() override { return {}; }
  std::unique_ptr<PrinterDevice> Open(const std::string&) override { RaiseFault(kPrinterFault); }
};

PrinterService* service_in_force = nullptr;
std::unique_ptr<PrinterDevice> chosen;

}  // namespace

PrinterService& PrinterList() {
  static NoPrinters none;
  return service_in_force ? *service_in_force : none;
}

void SetPrinterList(PrinterService* service) { service_in_force = service; }

std::vector<std::string> Printers() { return PrinterList().Names(); }

PrinterDevice& Printer() {
  if (!chosen) ChoosePrinter(PrinterList().DefaultName());
  return *chosen;
}

// The former one stays chosen when the new one refuses.
void ChoosePrinter(const std::string& name) {
  if (name.empty()) RaiseFault(kPrinterFault);
  chosen = PrinterList().Open(name);
}

void ResetPrinter() { chosen.reset(); }

}  // namespace tagwright
