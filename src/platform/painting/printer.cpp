#include "platform/painting/printer.h"

#include "platform/faults/fault.h"

namespace tagwright {
namespace {

class NoPrinters : public PrinterService {
 public:
  std::vector<std::string> Names() override { return {}; }
  std::string DefaultName() override { return {}; }
  std::unique_ptr<PrinterDevice> Open(const std::string&) override { RaiseFault(kPrinterFault); }
};

PrinterService* service_in_force = nullptr;
std::string expected;
std::unique_ptr<PrinterDevice> chosen;

}  // namespace

PrinterService& PrinterList() {
  static NoPrinters none;
  return service_in_force ? *service_in_force : none;
}

void SetPrinterList(PrinterService* service) { service_in_force = service; }

std::vector<std::string> Printers() { return PrinterList().Names(); }

PrinterDevice& Printer() {
  if (!chosen) ChoosePrinter(expected.empty() ? PrinterList().DefaultName() : expected);
  return *chosen;
}

void ExpectPrinter(const std::string& name) { expected = name; }

// The former one stays chosen when the new one refuses.
void ChoosePrinter(const std::string& name) {
  if (name.empty()) RaiseFault(kPrinterFault);
  chosen = PrinterList().Open(name);
}

void ResetPrinter() {
  expected.clear();
  chosen.reset();
}

}  // namespace tagwright
