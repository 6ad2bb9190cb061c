#include "qt/printing/printers.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinterInfo>
#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/faults/fault.h"
#include "platform/services/dialogs.h"
#include "qt/painting/page_surface.h"
#include "qt/printing/file_spool.h"
#include "qt/printing/queue_spool.h"

namespace tagwright {
namespace {

constexpr int kPortrait = 1;
constexpr int kLandscape = 2;
constexpr int kLetter = 1;
constexpr int kA4 = 9;

// --- what became of a job -----------------------------------------------------------------------

// One who has backed out knows it.
void TellOf(const Fault& fault) {
  if (fault.number == kDialogCancelled) return;
  MessageBox(fault.description, MessageButtons::kOk, MessageIcon::kCritical);
}

Fault NoPageOf(const std::string& name) {
  return {kPrinterFault, "The printer " + name + " does not take the job."};
}

// --- a printer ----------------------------------------------------------------------------------

enum class JobState { kNone, kStarted, kPageOpen, kPageDone, kRefused };

// The state of a job moves with what is painted: the first thing opens its page, a page feed ends
// the page, and the next page opens only when something is painted on it.
class ToolkitPrinter : public PrinterDevice {
 public:
  using OpenSpool = std::function<std::unique_ptr<Spool>()>;

  ToolkitPrinter(std::string name, int resolution, OpenSpool open_spool)
      : name_(std::move(name)),
        open_spool_(std::move(open_spool)),
        page_(resolution, kUnitsPerInch, [this]() -> QPainter& { return OpenPage(); }) {
    FitPage();
  }
  ~ToolkitPrinter() override { KillDoc(); }

  std::string DeviceName() const override { return name_; }
  Surface& Page() override { return page_; }
  int Orientation() const override { return orientation_; }
  void SetOrientation(int value) override;
  int PaperSize() const override { return paper_; }
  void SetPaperSize(int value) override;
  double Width() const override { return page_.Scale().WidthTwips(); }
  double Height() const override { return page_.Scale().HeightTwips(); }
  void StartDoc() override;
  void NewPage() override;
  void EndDoc() override;
  void KillDoc() override;
  bool JobLost() const override;

 private:
  QPainter& OpenPage();
  void BeginPages();
  void FollowPage();
  void ForgetJob();
  [[noreturn]] void Refuse(const Fault& fault);
  void FitPage();
  void LayOutPage();

  std::string name_;
  OpenSpool open_spool_;
  PageSurface page_;
  int orientation_ = kPortrait;
  int paper_ = kA4;
  JobState state_ = JobState::kNone;
  Fault refusal_;
  std::unique_ptr<Spool> spool_;
  QPainter painter_;
};

void ToolkitPrinter::SetOrientation(int value) {
  if (value != kPortrait && value != kLandscape) RaiseFault(kBadValue);
  orientation_ = value;
  FitPage();
}

void ToolkitPrinter::SetPaperSize(int value) {
  if (value != kLetter && value != kA4) RaiseFault(kBadValue);
  paper_ = value;
  FitPage();
}

// One by one: a queue refuses a layout as a whole when that has no margins and the queue has some.
void ToolkitPrinter::LayOutPage() {
  QPagedPaintDevice& device = spool_->Device();
  device.setPageSize(QPageSize(paper_ == kA4 ? QPageSize::A4 : QPageSize::Letter));
  device.setPageOrientation(orientation_ == kPortrait ? QPageLayout::Portrait
                                                      : QPageLayout::Landscape);
}

// The paper's own size, not the toolkit's, which is in whole points.
void ToolkitPrinter::FitPage() {
  double width = paper_ == kA4 ? 210 * kTwipsPerMillimetre : 8.5 * kTwipsPerInch;
  double height = paper_ == kA4 ? 297 * kTwipsPerMillimetre : 11 * kTwipsPerInch;
  if (orientation_ == kLandscape) std::swap(width, height);
  page_.Scale().Resize(width, height);
}

void ToolkitPrinter::StartDoc() {
  if (state_ == JobState::kRefused) throw refusal_;
  if (state_ != JobState::kNone) return;
  try {
    spool_ = open_spool_();
  } catch (const Fault& fault) {
    Refuse(fault);
  }
  state_ = JobState::kStarted;
}

// Said once and kept, so that nobody is asked or told again for each thing that is painted.
void ToolkitPrinter::Refuse(const Fault& fault) {
  refusal_ = fault;
  state_ = JobState::kRefused;
  TellOf(fault);
  throw refusal_;
}

QPainter& ToolkitPrinter::OpenPage() {
  if (state_ == JobState::kPageOpen) return painter_;
  StartDoc();
  state_ == JobState::kStarted ? BeginPages() : FollowPage();
  state_ = JobState::kPageOpen;
  return painter_;
}

void ToolkitPrinter::BeginPages() {
  LayOutPage();
  if (!painter_.begin(&spool_->Device())) Refuse(NoPageOf(name_));
}

void ToolkitPrinter::FollowPage() {
  LayOutPage();
  if (!spool_->Device().newPage()) Refuse(NoPageOf(name_));
}

void ToolkitPrinter::NewPage() {
  OpenPage();
  page_.Flush();
  state_ = JobState::kPageDone;
}

void ToolkitPrinter::EndDoc() {
  const bool has_pages = state_ == JobState::kPageOpen || state_ == JobState::kPageDone;
  if (!has_pages) return KillDoc();
  if (state_ == JobState::kPageOpen) page_.Flush();
  painter_.end();
  const std::unique_ptr<Spool> spool = std::move(spool_);
  ForgetJob();
  try {
    spool->Send();
  } catch (const Fault& fault) {
    TellOf(fault);
    throw;
  }
}

void ToolkitPrinter::KillDoc() {
  if (painter_.isActive()) spool_->Drop(painter_);
  ForgetJob();
}

void ToolkitPrinter::ForgetJob() {
  spool_.reset();
  page_.ForgetJob();
  state_ = JobState::kNone;
}

bool ToolkitPrinter::JobLost() const {
  return state_ == JobState::kRefused || (spool_ && spool_->Failed());
}

// --- the list -----------------------------------------------------------------------------------

std::unique_ptr<PrinterDevice> OpenFilePrinter() {
  return std::make_unique<ToolkitPrinter>(kPrintToPdf, kUsualResolution, OpenFileSpool);
}

// Who chooses a queue that has gone meanwhile keeps the former one, and is told.
std::unique_ptr<PrinterDevice> OpenQueue(const std::string& name) {
  try {
    return std::make_unique<ToolkitPrinter>(name, FinestResolution(name),
                                            [name] { return OpenQueueSpool(name); });
  } catch (const Fault& fault) {
    TellOf(fault);
    throw;
  }
}

class ToolkitPrinterService : public PrinterService {
 public:
  std::vector<std::string> Names() override {
    std::vector<std::string> names;
    for (const QString& queue : QPrinterInfo::availablePrinterNames()) {
      names.push_back(queue.toStdString());
    }
    names.emplace_back(kPrintToPdf);
    return names;
  }
  std::string DefaultName() override {
    const std::string queue = QPrinterInfo::defaultPrinterName().toStdString();
    return queue.empty() ? Names().front() : queue;
  }
  std::unique_ptr<PrinterDevice> Open(const std::string& name) override {
    return name == kPrintToPdf ? OpenFilePrinter() : OpenQueue(name);
  }
};

}  // namespace

PrinterService& ToolkitPrinters() {
  static ToolkitPrinterService printers;
  return printers;
}

}  // namespace tagwright
