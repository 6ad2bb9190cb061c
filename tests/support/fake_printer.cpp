#include "support/fake_printer.h"

#include "platform/faults/fault.h"

namespace tagwright {
namespace {

constexpr double kA4Width = 210 * kTwipsPerMillimetre;
constexpr double kA4Height = 297 * kTwipsPerMillimetre;
constexpr double kLetterWidth = 8.5 * kTwipsPerInch;
constexpr double kLetterHeight = 11 * kTwipsPerInch;

void Note(const std::string& call) {
  if (FakePrinterList::OnCall()) FakePrinterList::OnCall()(call);
  FakePrinterList::Log().calls.push_back(call);
}

}  // namespace

FakePrinter::FakePrinter(std::string name, double pixels_per_inch, const DeadMargins& dead)
    : name_(std::move(name)), dead_(dead), page_(0, 0, pixels_per_inch) {
  page_.Scale().Resize(Width() - dead_.left - dead_.right, Height() - dead_.top - dead_.bottom);
}

void FakePrinter::SetOrientation(int value) {
  if (value != 1 && value != 2) RaiseFault(kBadValue);
  Note("Orientation " + std::to_string(value));
  orientation_ = value;
}

void FakePrinter::SetPaperSize(int value) {
  if (value != 1 && value != 9) RaiseFault(kBadValue);
  Note("PaperSize " + std::to_string(value));
  paper_ = value;
  page_.Scale().Resize(Width() - dead_.left - dead_.right, Height() - dead_.top - dead_.bottom);
}

double FakePrinter::Width() const { return paper_ == 9 ? kA4Width : kLetterWidth; }
double FakePrinter::Height() const { return paper_ == 9 ? kA4Height : kLetterHeight; }

void FakePrinter::StartDoc() { Note("StartDoc"); }

void FakePrinter::NewPage() {
  Note("NewPage");
  EndPage();
}

void FakePrinter::EndPage() {
  FakePrinterList::Log().pages.push_back(std::move(page_.painted));
  page_.painted.clear();
}

void FakePrinter::EndDoc() {
  Note("EndDoc");
  if (!page_.painted.empty()) EndPage();
  ++FakePrinterList::Log().jobs;
}

void FakePrinter::KillDoc() {
  Note("KillDoc");
  page_.painted.clear();
  ++FakePrinterList::Log().dropped;
}

bool FakePrinter::JobLost() const { return FakePrinterList::Lost(); }

FakePrinterLog& FakePrinterList::Log() {
  static FakePrinterLog log;
  return log;
}

std::function<void(const std::string& call)>& FakePrinterList::OnCall() {
  static std::function<void(const std::string& call)> on_call;
  return on_call;
}

bool& FakePrinterList::Lost() {
  static bool lost = false;
  return lost;
}

void FakePrinterList::Reset() {
  Log() = {};
  OnCall() = nullptr;
  Lost() = false;
}

std::unique_ptr<PrinterDevice> FakePrinterList::Open(const std::string& name) {
  for (const std::string& known : names) {
    if (known == name) return std::make_unique<FakePrinter>(name, pixels_per_inch, dead);
  }
  RaiseFault(kPrinterFault);
}

}  // namespace tagwright
