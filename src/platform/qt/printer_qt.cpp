#include "platform/qt/printer_qt.h"

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

#include "platform/dialogs.h"
#include "platform/fault.h"
#include "platform/qt/surface_qt.h"

namespace tagwright {
namespace {

constexpr int kPortrait = 1;
constexpr int kLandscape = 2;
constexpr int kLetter = 1;
constexpr int kA4 = 9;
constexpr int kUsualResolution = 600;  // pixels an inch, where a queue names none

// What one printer paints a job on.
class Spool {
 public:
  virtual ~Spool() = default;
  virtual QPagedPaintDevice& Device() = 0;
  virtual void Send() = 0;  // after the painter has ended
  virtual void Drop() = 0;  // before it ends
};

// --- a file -------------------------------------------------------------------------------------

std::string AskForFile() {
  const FileDialogRequest request{"PDF files (*.pdf)|*.pdf", "pdf", ""};
  const std::optional<std::string> path = Dialogs().SaveFile(request);
  if (!path) RaiseFault(kDialogCancelled);
  return *path;
}

// Aside first, so that a job that fails or is dropped leaves a former file of that name alone.
class FileSpool : public Spool {
 public:
  explicit FileSpool(const std::string& path) : file_(QString::fromStdString(path)) {
    if (!file_.open(QIODevice::WriteOnly)) RaiseFault(kFileAccess);
    writer_.emplace(&file_);
    writer_->setResolution(kUsualResolution);
    writer_->setCreator(QStringLiteral("Tagwright"));
  }
  QPagedPaintDevice& Device() override { return *writer_; }
  void Send() override {
    writer_.reset();
    if (!file_.commit()) RaiseFault(kDeviceFault);
  }
  void Drop() override { file_.cancelWriting(); }

 private:
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

class QueueSpool : public Spool {
 public:
  QueueSpool(const QPrinterInfo& info, int resolution) : printer_(info, QPrinter::HighResolution) {
    printer_.setResolution(resolution);
    printer_.setDocName(QStringLiteral("Labels"));
    KeepSize(printer_);
  }
  QPagedPaintDevice& Device() override { return printer_; }
  void Send() override {
    if (printer_.printerState() == QPrinter::Error) RaiseFault(kPrinterFault);
  }
  void Drop() override { printer_.abort(); }

 private:
  QPrinter printer_;
};

int FinestResolution(const QPrinterInfo& info) {
  const QList<int> known = info.supportedResolutions();
  const auto finest = std::max_element(known.begin(), known.end());
  return finest == known.end() ? kUsualResolution : *finest;
}

// --- a printer ----------------------------------------------------------------------------------

enum class JobState { kNone, kPageOpen, kPageDone, kRefused };

// The state of a job moves with what is painted: the first thing opens the job and its page, a page
// feed ends the page, and the next page opens only when something is painted on it.
class ToolkitPrinter : public PrinterDevice {
 public:
  using OpenSpool = std::function<std::unique_ptr<Spool>()>;

  ToolkitPrinter(std::string name, int resolution, OpenSpool open_spool)
      : name_(std::move(name)),
        open_spool_(std::move(open_spool)),
        page_(resolution, [this]() -> QPainter& { return OpenPage(); }) {
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
  void NewPage() override;
  void EndDoc() override;
  void KillDoc() override;

 private:
  QPainter& OpenPage();
  void BeginJob();
  void FollowPage();
  void ForgetJob();
  void FitPage();
  QPageLayout Layout() const;

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

QPageLayout ToolkitPrinter::Layout() const {
  QPageLayout layout(QPageSize(paper_ == kA4 ? QPageSize::A4 : QPageSize::Letter),
                     orientation_ == kPortrait ? QPageLayout::Portrait : QPageLayout::Landscape,
                     QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

// The paper's own size, not the toolkit's, which is in whole points.
void ToolkitPrinter::FitPage() {
  double width = paper_ == kA4 ? 210 * kTwipsPerMillimetre : 8.5 * kTwipsPerInch;
  double height = paper_ == kA4 ? 297 * kTwipsPerMillimetre : 11 * kTwipsPerInch;
  if (orientation_ == kLandscape) std::swap(width, height);
  page_.Scale().Resize(width, height);
}

QPainter& ToolkitPrinter::OpenPage() {
  switch (state_) {
    case JobState::kNone:
      BeginJob();
      break;
    case JobState::kPageDone:
      FollowPage();
      break;
    case JobState::kRefused:
      throw refusal_;
    case JobState::kPageOpen:
      break;
  }
  return painter_;
}

void ToolkitPrinter::BeginJob() {
  try {
    spool_ = open_spool_();
  } catch (const Fault& fault) {
    refusal_ = fault;  // once asked, not again for each thing that is painted
    state_ = JobState::kRefused;
    throw;
  }
  spool_->Device().setPageLayout(Layout());
  if (!painter_.begin(&spool_->Device())) {
    spool_.reset();
    RaiseFault(kPrinterFault);
  }
  state_ = JobState::kPageOpen;
}

void ToolkitPrinter::FollowPage() {
  spool_->Device().setPageLayout(Layout());
  if (!spool_->Device().newPage()) RaiseFault(kPrinterFault);
  state_ = JobState::kPageOpen;
}

void ToolkitPrinter::NewPage() {
  OpenPage();
  state_ = JobState::kPageDone;
}

void ToolkitPrinter::EndDoc() {
  if (painter_.isActive()) painter_.end();
  const std::unique_ptr<Spool> spool = std::move(spool_);
  ForgetJob();
  if (spool) spool->Send();
}

void ToolkitPrinter::KillDoc() {
  if (spool_) spool_->Drop();
  if (painter_.isActive()) painter_.end();
  ForgetJob();
}

void ToolkitPrinter::ForgetJob() {
  spool_.reset();
  page_.ForgetPictures();
  state_ = JobState::kNone;
}

// --- the list -----------------------------------------------------------------------------------

std::unique_ptr<PrinterDevice> OpenFilePrinter() {
  return std::make_unique<ToolkitPrinter>(kPrintToPdf, kUsualResolution,
                                          [] { return std::make_unique<FileSpool>(AskForFile()); });
}

std::unique_ptr<PrinterDevice> OpenQueue(const std::string& name) {
  const QPrinterInfo info = QPrinterInfo::printerInfo(QString::fromStdString(name));
  if (info.isNull()) RaiseFault(kPrinterFault);
  const int resolution = FinestResolution(info);
  return std::make_unique<ToolkitPrinter>(name, resolution, [info, resolution] {
    return std::make_unique<QueueSpool>(info, resolution);
  });
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
