#include "qt/printing/printers.h"

#include <cups/cups.h>

#include <QList>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStringList>
#include <algorithm>
#include <memory>
#include <optional>

#include "platform/controls/controls.h"
#include "platform/faults/fault.h"
#include "platform/services/dialog_folders.h"
#include "platform/services/dialogs.h"
#include "qt/fonts/fonts.h"
#include "qt/painting/surfaces.h"

namespace tagwright {
namespace {

constexpr int kPortrait = 1;
constexpr int kLandscape = 2;
constexpr int kLetter = 1;
constexpr int kA4 = 9;
constexpr int kUsualResolution = 600;  // pixels an inch, where a queue names none

// Millimetres have three decimals on a page, and fonts the size that is asked for: the toolkit
// counts both in whole units.
constexpr int kUnitsPerInch = static_cast<int>(kPageStepsPerInch);

// What one printer paints a job on.
class Spool {
 public:
  virtual ~Spool() = default;
  virtual QPagedPaintDevice& Device() = 0;
  virtual void Send() = 0;                   // after the painter has ended
  virtual void Drop(QPainter& painter) = 0;  // ends the painter; nothing comes of the job
  virtual bool Failed() const = 0;
};

// --- what became of a job -----------------------------------------------------------------------

// One who has backed out knows it.
void TellOf(const Fault& fault) {
  if (fault.number == kDialogCancelled) return;
  MessageBox(fault.description, MessageButtons::kOk, MessageIcon::kCritical);
}

Fault NoPageOf(const std::string& name) {
  return {kPrinterFault, "The printer " + name + " does not take the job."};
}

// --- a file -------------------------------------------------------------------------------------

std::string AskForFile() {
  static const std::string kFilter = "PDF files (*.pdf)|*.pdf";
  ModalOpens();
  const std::optional<std::string> path = Dialogs().SaveFile({kFilter, "pdf", ""});
  if (!path) RaiseFault(kDialogCancelled);
  RememberFile(kFilter, *path);
  return *path;
}

QPageLayout WholePage() {
  QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

// Aside first, so that a job that fails or is dropped leaves a former file of that name alone.
class FileSpool : public Spool {
 public:
  explicit FileSpool(const std::string& path) : path_(path), file_(QString::fromStdString(path)) {
    if (!file_.open(QIODevice::WriteOnly)) Refuse(kFileAccess);
    writer_.emplace(&file_);
    writer_->setResolution(kUnitsPerInch);
    writer_->setPageLayout(WholePage());
    writer_->setCreator(QStringLiteral("Tagwright"));
    writer_->setTitle(QStringLiteral("Labels"));
  }
  QPagedPaintDevice& Device() override { return *writer_; }
  void Send() override {
    writer_.reset();
    if (!file_.commit()) Refuse(kDeviceFault);
  }
  void Drop(QPainter& painter) override {
    file_.cancelWriting();
    painter.end();
  }
  bool Failed() const override { return file_.error() != QFileDevice::NoError; }

 private:
  [[noreturn]] void Refuse(int fault) const {
    RaiseFault(fault, "The file " + path_ +
                          " cannot be written: " + file_.errorString().toStdString() + ".");
  }

  std::string path_;
  QSaveFile file_;
  std::optional<QPdfWriter> writer_;
};

// --- a queue ------------------------------------------------------------------------------------

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

int FinestResolution(const QPrinterInfo& info) {
  const QList<int> known = info.supportedResolutions();
  const auto finest = std::max_element(known.begin(), known.end());
  return finest == known.end() ? kUsualResolution : *finest;
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
  return std::make_unique<ToolkitPrinter>(kPrintToPdf, kUsualResolution,
                                          [] { return std::make_unique<FileSpool>(AskForFile()); });
}

// Who chooses a queue that has gone meanwhile keeps the former one, and is told.
std::unique_ptr<PrinterDevice> OpenQueue(const std::string& name) {
  try {
    const int resolution = FinestResolution(QueueNamed(name));
    return std::make_unique<ToolkitPrinter>(name, resolution,
                                            [name] { return std::make_unique<QueueSpool>(name); });
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
