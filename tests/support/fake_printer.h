// A printer that prints into memory.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/painting/printer.h"
#include "platform/painting/recorder.h"

namespace tagwright {

// The parts at the paper's edges that a printer cannot reach, in twips.
struct DeadMargins {
  double left = 0, top = 0, right = 0, bottom = 0;
};

// Records its pages. Paper in twips; the surface is what the dead margins leave of it, with its
// origin there.
class FakePrinter : public PrinterDevice {
 public:
  FakePrinter(std::string name, double pixels_per_inch, const DeadMargins& dead = {});
  std::string DeviceName() const override { return name_; }
  Surface& Page() override { return page_; }
  int Orientation() const override { return orientation_; }
  void SetOrientation(int value) override;
  int PaperSize() const override { return paper_; }
  void SetPaperSize(int value) override;
  double Width() const override;
  double Height() const override;
  void StartDoc() override;
  void NewPage() override;
  void EndDoc() override;
  void KillDoc() override;
  bool JobLost() const override;

  RecordingSurface& Recorder() { return page_; }

 private:
  void EndPage();

  std::string name_;
  DeadMargins dead_;
  int orientation_ = 1;
  int paper_ = 9;
  RecordingSurface page_;
};

// Finished pages and jobs of all fake printers, and all that was asked of them in order, such as
// "PaperSize 9".
struct FakePrinterLog {
  std::vector<std::vector<Painted>> pages;
  std::vector<std::string> calls;
  int jobs = 0;
  int dropped = 0;
};

class FakePrinterList : public PrinterService {
 public:
  std::vector<std::string> names = {"Test printer"};
  double pixels_per_inch = 600;
  DeadMargins dead;
  static FakePrinterLog& Log();
  // Runs at each call that the log knows, before it has an effect: a test lets it fault there.
  static std::function<void(const std::string& call)>& OnCall();
  // What the printers answer when they are asked whether the job is lost.
  static bool& Lost();
  // Nothing logged, nothing answered.
  static void Reset();
  std::vector<std::string> Names() override { return names; }
  std::string DefaultName() override { return names.empty() ? "" : names.front(); }
  std::unique_ptr<PrinterDevice> Open(const std::string& name) override;
};

}  // namespace tagwright
