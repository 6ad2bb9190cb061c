// Print jobs on a printer that records: the panels with their handlers, a label, and what came of
// it as texts with their places in millimetres.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "common/public_functions.h"
#include "layouts/label_layouts.h"
#include "layouts/layout_list.h"
#include "output/print_job.h"
#include "output/print_panel.h"
#include "output/source_fixture.h"
#include "platform/controls/windows.h"
#include "platform/text/locale.h"

namespace tagwright {

// One text on a page, and where its top left corner stands.
struct Cell {
  std::string text;
  double x = 0, y = 0;
};

class JobTest : public SourceTest {
 protected:
  JobTest() {
    LabelLayouts = BuiltInLabelLayouts();
    LabelLayoutTop = static_cast<std::int16_t>(LabelLayouts.size() - 1);
    frmMain.cboLabelLayout.Events().Click = cboLabelLayout_Click;
    frmMain.cmdPrint.Events().Click = cmdPrint_Click;
    frmMain.mnuFilePrint.Events().Click = mnuFilePrint_Click;
    frmMain.cboPrinter.Events().Click = cboPrinter_Click;
    ReadyBoard();
    FillLayoutList();
    SerialBarcodeType = -1;  // as text
    SetRange("1", "1");
  }

  // --- the label ---
  static ObjectRecord& Add(std::int16_t kind, const std::string& text) {
    GrowObjects();
    ObjectRecord& record = ObjectAt(ObjectUB);
    record = ObjectRecord{};
    record.ObjType = kind;
    record.Text = text;
    record.FontName = "Arial";
    record.FontSize = 10;
    return record;
  }
  static ObjectRecord& AddSerial() { return Add(kText, "[#SRNO]"); }
  static ObjectRecord& AddField(std::int16_t column = 0) {
    ObjectRecord& record = Add(kDataField, "field");
    record.Param = column;
    return record;
  }

  // --- the job ---
  static void SetRange(const std::string& from, const std::string& to) {
    frmMain.txtPrintFrom.SetText(from);
    frmMain.txtPrintTo.SetText(to);
  }
  static void SetCells(int across, int down) {
    frmMain.txtLabLayout(0).SetText(std::to_string(across));
    frmMain.txtLabLayout(1).SetText(std::to_string(down));
  }
  // A source of this many rows under a line of titles, with "row 1" in the first of them, merged
  // from now on.
  void Merge(int rows) {
    std::string text = "title\n";
    for (int i = 1; i <= rows; ++i) text += "row " + std::to_string(i) + "\n";
    BrowseCsv(text);
    frmMain.chkMailshot.SetValue(1);
  }
  static void Print() { frmMain.cmdPrint.Press(); }

  // --- what came of it ---
  static const FakePrinterLog& Log() { return FakePrinterList::Log(); }
  static int CountOf(const std::string& call) {
    return static_cast<int>(std::count(Log().calls.begin(), Log().calls.end(), call));
  }
  std::vector<std::vector<Cell>> Pages() const {
    const double pixel = 25.4 / printers.pixels_per_inch;
    std::vector<std::vector<Cell>> pages;
    for (const std::vector<Painted>& painted : Log().pages) {
      std::vector<Cell>& page = pages.emplace_back();
      for (const Painted& entry : painted) {
        if (entry.what != Painted::What::kText) continue;
        page.push_back({entry.Text(), entry.x1 * pixel, entry.y1 * pixel});
      }
    }
    return pages;
  }
  std::vector<Texts> Printed() const {
    std::vector<Texts> texts;
    for (const std::vector<Cell>& page : Pages()) {
      Texts& row = texts.emplace_back();
      for (const Cell& cell : page) row.push_back(cell.text);
    }
    return texts;
  }
  // "row 3" to "row 5", or whatever stands before the numbers.
  static Texts Run(const std::string& prefix, int first, int last) {
    Texts texts;
    for (int i = first; i <= last; ++i) texts.push_back(prefix + std::to_string(i));
    return texts;
  }
};

}  // namespace tagwright
