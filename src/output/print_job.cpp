#include "output/print_job.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "layouts/label_layouts.h"
#include "output/data_sources.h"
#include "platform/painting/printer.h"
#include "platform/services/dialogs.h"
#include "platform/services/progress.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

// The whole part of a count, which may be larger than any counter; a negative one is none.
double Whole(double number) { return std::max(0.0, std::floor(number)); }

// How far a step wants the loops around it to be left.
enum class Leave { kNothing, kCopy, kJob };

struct Job {
  Progress& progress;
  double margin_x = 0;    // dead margins of the printer, millimetres
  double margin_y = 0;    // likewise
  std::int64_t page = 1;  // runs on across copies

  std::int64_t labels = 0;   // painted so far
  std::int64_t rows = 0;     // of the data that went by
  bool ended_early = false;  // by the user or the printer
  bool data_ended = false;   // before the range did
  std::string no_source{};   // why there are no data to merge
};

// --- what the boxes say -------------------------------------------------------------------------

double Shown(int box) { return ToNumber(frmMain.txtLabLayout(box).Text()); }

double Across() { return Shown(kAcrossBox); }
double Down() { return Shown(kDownBox); }
double PitchX() { return Shown(kLabelWidthBox) + Shown(kHorizGutterBox); }
double PitchY() { return Shown(kLabelHeightBox) + Shown(kVertGutterBox); }
double LeftMargin() { return Shown(kLeftMarginBox); }
double TopMargin() { return Shown(kTopMarginBox); }

double FirstPage() { return ToNumber(frmMain.txtPrintFrom.Text()); }
double LastPage() { return ToNumber(frmMain.txtPrintTo.Text()); }
bool IsAsked(std::int64_t page) {
  const auto number = static_cast<double>(page);
  return FirstPage() <= number && number <= LastPage();
}

// A number of copies that no counter holds is none.
std::int32_t Copies() {
  std::int32_t copies = 0;
  Traced([&] { copies = ToInt32(ToNumber(frmMain.txtNoCopies.Text())); });
  return copies;
}

bool Merges() { return frmMain.chkMailshot.Value() == 1; }
bool PassesTitles() { return frmMain.chkFirstRow.Value() == 1; }

double CellsOfSheet() { return Whole(Across()) * Whole(Down()); }

// --- one cell -----------------------------------------------------------------------------------

bool PrinterLostJob() {
  bool lost = false;
  CarryOn([&] { lost = !PreviewMode && Printer().JobLost(); });
  return lost;
}

bool GoesOn(Job& job) { return job.progress.GoesOn() && !PrinterLostJob(); }

bool NextRecord() {
  bool more = false;
  Traced([&] { NextMergeRecord(more); });
  return more;
}

// The dead margin is in millimetres and counts as display units: in inches it moves the label 25
// times too far.
void PaintCell(const Job& job, double col, double row) {
  const double x = LeftMargin() + PitchX() * col - job.margin_x;
  const double y = TopMargin() + PitchY() * row - job.margin_y;
  RedrawBoard(x * UnitScale, y * UnitScale, true);
}

// By 1 always: the increment of the serial dialog is kept, but does not act here.
void RaiseSerial() {
  if (SerialValue == std::numeric_limits<std::int32_t>::max()) RaiseFault(kOverflow);
  ++SerialValue;
  if (!PreviewMode) DirtyFlag = kTrue;  // or the next start gives the same numbers out again
}

void PrintLabel(Job& job, double col, double row) {
  Traced([&] { PaintCell(job, col, row); });
  ++job.labels;
}

Leave PrintCell(Job& job, double col, double row) {
  if (!GoesOn(job)) return Leave::kJob;
  if (Merges() && !NextRecord()) {
    job.data_ended = true;
    return Leave::kCopy;
  }
  ++job.rows;
  SerialUsed = false;
  if (IsAsked(job.page)) PrintLabel(job, col, row);
  if (SerialUsed) Traced(RaiseSerial);
  return Leave::kNothing;
}

// --- sheets and copies --------------------------------------------------------------------------

// Down the first column, then down the second: labels come off the sheet in strips.
Leave PrintSheet(Job& job) {
  const double last_col = Across() - 1;
  for (std::int64_t col = 0; static_cast<double>(col) <= last_col; ++col) {
    const double last_row = Down() - 1;
    if (last_row < 0 && !GoesOn(job)) return Leave::kJob;  // there is no cell to ask at
    for (std::int64_t row = 0; static_cast<double>(row) <= last_row; ++row) {
      const Leave leave = PrintCell(job, static_cast<double>(col), static_cast<double>(row));
      if (leave != Leave::kNothing) return leave;
    }
  }
  return Leave::kNothing;
}

void TellPages(Job& job) {
  const std::int64_t done = job.page - 1;
  const double last = LastPage();
  job.progress.Tell("Pages done: " + std::to_string(done),
                    last >= 1 ? static_cast<double>(done) / last : kUnknownShare);
}

// A page is fed after each sheet, the last one included; paper goes out with the first mark on it,
// so none follows.
Leave PrintPages(Job& job) {
  do {
    TellPages(job);
    if (!GoesOn(job)) return Leave::kJob;
    const Leave leave = PrintSheet(job);
    if (leave != Leave::kNothing || PreviewMode) return leave;
    if (IsAsked(job.page)) Traced([] { Printer().NewPage(); });
    ++job.page;
  } while (static_cast<double>(job.page) <= LastPage());
  return Leave::kNothing;
}

Leave PrintCopy(Job& job) {
  if (Merges()) {
    Traced(OpenMergeSource);
    job.no_source = WhyNoSource();
  }
  if (PassesTitles()) NextRecord();
  const Leave leave = PrintPages(job);
  if (Merges()) Traced(CloseMergeSource);
  return leave;
}

void PrintCopies(Job& job) {
  const std::int32_t copies = Copies();
  for (std::int32_t copy = 1; copy <= copies; ++copy) {
    job.ended_early = PrintCopy(job) == Leave::kJob;
    if (job.ended_early) return;
  }
}

// --- the job ------------------------------------------------------------------------------------

void MeasureDeadMargins(Job& job) {
  PrinterDevice& printer = Printer();
  const Surface& page = printer.Page();
  const double width = page.ScaleX(printer.Width(), kTwips, kMillimetres);
  const double height = page.ScaleY(printer.Height(), kTwips, kMillimetres);
  job.margin_x = (width - page.ScaleWidth()) / 2;
  job.margin_y = (height - page.ScaleHeight()) / 2;
}

// A cell whose picture could not be read has left the factor of its page.
void RestoreScreen(double zoom) {
  DrawOnBoard();
  PreviewMode = false;
  ZoomFactor = zoom;
  RedrawBoard();
}

Job PrintLabels(Progress& progress) {
  const double zoom = ZoomFactor;
  const MissingPictures told(MissingPictures::kOnce);
  Job job{progress};
  Traced([&] { MeasureDeadMargins(job); });
  PrintCopies(job);
  RestoreScreen(zoom);
  return job;
}

// --- how many labels it has, and why none -------------------------------------------------------

// The pages asked for that a job of so many pages has.
double FirstPageAsked() { return std::max(1.0, std::ceil(FirstPage())); }
double PagesAsked(double pages) {
  return Whole(std::min(pages, Whole(LastPage())) - FirstPageAsked() + 1);
}

// Without data the first copy goes to the end of the range, and nothing is left for the others.
double LabelsWithoutData() { return PagesAsked(LastPage()) * CellsOfSheet(); }

// The rows that labels show: the first one is passed over, and another one with titles.
double RowsToMerge() { return Whole(RecordCount - 1.0 - (PassesTitles() ? 1 : 0)); }

// How many of the multiples of `step`, up to `count` times, lie from `first` to `last`.
double MultiplesBetween(double first, double last, double step, double count) {
  const double from = std::max(1.0, std::ceil(first / step));
  return Whole(std::min(count, std::floor(last / step)) - from + 1);
}

// A copy fills whole sheets; the rest of its rows stand on the page where the next copy begins.
double LabelsOfData(double copies) {
  const double cells = CellsOfSheet(), rows = RowsToMerge();
  if (cells < 1) return 0;
  const double sheets = Whole(rows / cells);
  const double rest = rows - sheets * cells;
  if (sheets < 1) return rest * copies * PagesAsked(1);
  return PagesAsked(sheets * copies) * cells +
         MultiplesBetween(FirstPageAsked() - 1, Whole(LastPage()) - 1, sheets, copies) * rest;
}

std::string RangeWithoutLabels() {
  return "there is none from page " + FormatNumber(FirstPage()) + " to page " +
         FormatNumber(LastPage());
}

std::string WhyNoLabel(const Job& job) {
  if (Copies() < 1) return "the number of copies is less than 1";
  if (CellsOfSheet() < 1) {
    return "the layout has " + FormatNumber(Across()) + " labels across and " +
           FormatNumber(Down()) + " down";
  }
  if (!job.no_source.empty()) return job.no_source;
  const bool range_is_empty = PagesAsked(LastPage()) < 1;
  if (job.data_ended && (job.rows == 0 || !range_is_empty)) {
    return "no rows are left in the data file " + frmMain.lblFileName.Caption();
  }
  return RangeWithoutLabels();
}

bool job_under_way = false;

class JobUnderWay {
 public:
  JobUnderWay() { job_under_way = true; }
  ~JobUnderWay() { job_under_way = false; }
  JobUnderWay(const JobUnderWay&) = delete;
  JobUnderWay& operator=(const JobUnderWay&) = delete;
};

// A printer that is not there says so here, once, and is not asked for again.
bool OpenJob() {
  PrinterDevice* printer = nullptr;
  try {
    printer = &Printer();
    if (Copies() > 0) printer->StartDoc();
    return true;
  } catch (const Fault& fault) {
    if (fault.number != kDialogCancelled) MarkerTail(fault);
    // Or its refusal would stand for the next job as well.
    if (printer) CarryOn([&] { printer->KillDoc(); });
    return false;
  }
}

int PaperOfLayout() {
  const int index = frmMain.cboLabelLayout.ListIndex();
  if (index < 0 || index > LabelLayoutTop) RaiseFault(kOutOfBounds);
  return LabelLayouts[static_cast<std::size_t>(index)].Paper == kPaperA4 ? kPrinterA4
                                                                         : kPrinterLetter;
}

// Returns why no label was printed; nothing where some were, and where the user or the printer has
// ended the job: both know. The window of the job stands until it has been sent: what is pressed
// meanwhile prints nothing.
std::string SendJob() {
  Progress progress("Printing");
  PreparePrinter();
  Traced([] { DrawTarget = &Printer().Page(); });
  const Job job = PrintLabels(progress);
  Traced([] { Printer().EndDoc(); });
  DrawOnBoard();
  return job.labels > 0 || job.ended_early ? "" : WhyNoLabel(job);
}

}  // namespace

void cmdPrint_Click() {
  if (job_under_way) return;
  const JobUnderWay mark;
  if (!OpenJob()) return;
  const std::string nothing = SendJob();
  if (!nothing.empty()) MessageBox("No label was printed: " + nothing);
}

void PreparePrinter() {
  Traced([] { Printer().Page().Scale().SetScaleMode(kMillimetres); });
  Traced([] { Printer().SetOrientation(kPrinterPortrait); });
  Traced([] { Printer().SetPaperSize(PaperOfLayout()); });
}

double LabelsOfJob() {
  const double copies = Copies();
  if (copies < 1) return 0;
  return Merges() ? LabelsOfData(copies) : LabelsWithoutData();
}

void PrintLabels() {
  Progress progress("Printing");
  PrintLabels(progress);
}

}  // namespace tagwright
