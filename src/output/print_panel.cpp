#include "output/print_panel.h"

#include <cstdint>
#include <limits>
#include <string>

#include "common/arithmetic.h"
#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/objects.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "output/print_job.h"
#include "platform/painting/printer.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"
#include "tools/panels.h"

namespace tagwright {
namespace {

bool HasDataFile() { return !frmMain.lblFileName.Caption().empty(); }

std::int16_t CellsByCounter() {
  return ToInt16(ToNumber(frmMain.txtLabLayout(kAcrossBox).Text()) *
                 ToNumber(frmMain.txtLabLayout(kDownBox).Text()));
}

// Ten times the quotient as text, without its last character: whole pages where the quotient has
// one decimal at most. A longer one only loses its last digit and keeps the factor of ten.
std::int16_t PagesByText(std::int16_t cells) {
  const std::string text = FormatNumber(Quotient(RecordCount, cells) * 10);
  const auto number = ParseNumber(Left(text, Length(text) - 1));
  if (!number) RaiseFault(kTypeMismatch);
  return ToInt16(*number);
}

void AddPageForRest(std::int16_t& pages, std::int16_t cells) {
  if (cells == 0) RaiseFault(kDivisionByZero);
  if (std::int64_t{RecordCount} % cells != 0) pages = ToInt16(pages + 1.0);
}

void ProposeLastPage() {
  std::int16_t cells = 0, pages = 0;
  Traced([&] { cells = CellsByCounter(); });
  Traced([&] { pages = PagesByText(cells); });
  Traced([&] { AddPageForRest(pages, cells); });
  frmMain.txtPrintTo.SetText(std::to_string(pages));
}

void ProposeFirstPageOnly() {
  frmMain.txtPrintFrom.SetText("1");
  frmMain.txtPrintTo.SetText("1");
}

void OfferMerge(bool possible) {
  frmMain.chkMailshot.SetVisible(possible);
  frmMain.chkMailshot.SetValue(possible ? 1 : 0);
}

// A merge passes over the first row, and with the tick for titles over another one. A tick that a
// database hides counts too.
void TellFirstRow() {
  const std::string row = frmMain.chkFirstRow.Value() == 1 ? "third" : "second";
  frmMain.chkMailshot.SetToolTipText("Fill the labels from the data file, beginning with its " +
                                     row + " row");
  frmMain.chkMailshot.SetSpokenName("Include Mailshot Data, beginning with the " + row + " row");
}

}  // namespace

void mnuFilePrint_Click() {
  if (frmMain.txtPrintFrom.Text().empty()) frmMain.txtPrintFrom.SetText("1");
  HasDataFile() ? ProposeLastPage() : ProposeFirstPageOnly();
  ShowPanel(frmMain.picPrint);
  OfferMerge(HasDataFile());
  TellFirstRow();
  HideFontBoxes();
  ShowLabelsOfJob();
}

void ShowLabelsOfJob() { frmMain.lblLabels.SetCaption("Labels: " + FormatNumber(LabelsOfJob())); }

void FollowLabel() {
  if (HasDataFile() != frmMain.chkMailshot.Visible()) OfferMerge(HasDataFile());
  TellFirstRow();
  ShowLabelsOfJob();
}

void cboPrinter_Click() {
  Traced([] { ChoosePrinter(frmMain.cboPrinter.Text()); });
}

void txtNoCopies_KeyPress() { TextEntryActive = true; }
void txtPrintFrom_KeyPress() { TextEntryActive = true; }
void txtPrintTo_KeyPress() { TextEntryActive = true; }

}  // namespace tagwright
