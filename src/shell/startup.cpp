#include "shell/startup.h"

#include <string>

#include "barcode/formats.h"
#include "common/prog_settings.h"
#include "common/public_functions.h"
#include "document/objects.h"
#include "document/recent_files.h"
#include "document/redraw.h"
#include "editing/magnetic_rule.h"
#include "forms/frmAbout.h"
#include "forms/frmMain.h"
#include "forms/frmSerialNumber.h"
#include "layouts/label_layouts.h"
#include "layouts/layout_list.h"
#include "platform/controls/menu.h"
#include "platform/controls/outlines.h"
#include "platform/controls/pointers.h"
#include "platform/controls/shapes.h"
#include "platform/controls/text_controls.h"
#include "platform/controls/windows.h"
#include "platform/files/files.h"
#include "platform/painting/printer.h"
#include "platform/services/desktop.h"
#include "shell/help.h"
#include "shell/reset.h"
#include "shell/settings_file.h"
#include "shell/window.h"
#include "shell/wiring.h"
#include "tools/font_box.h"
#include "tools/panels.h"
#include "tools/view.h"

namespace tagwright {
namespace {

// --- the steps ----------------------------------------------------------------------------------

void TakeAppFolder() {
  AppFolder = ExecutableFolder();
  if (!AppFolder.ends_with('/')) AppFolder += '/';
}

// The six fields may have gaps, the list never does. Only the trimmed text goes back to a field:
// the gaps stay in the file until the list changes.
void TakeRecentFile(FixedText<150>& field) {
  field = field.Trimmed();
  if (field.Trimmed().empty()) return;
  RecentFiles[++RecentUB] = field.Trimmed();
}

void TakeRecentFiles() {
  RecentUB = -1;
  TakeRecentFile(ProgSettings.RecentFile1);
  TakeRecentFile(ProgSettings.RecentFile2);
  TakeRecentFile(ProgSettings.RecentFile3);
  TakeRecentFile(ProgSettings.RecentFile4);
  TakeRecentFile(ProgSettings.RecentFile5);
  TakeRecentFile(ProgSettings.RecentFile6);
}

// Only a folder without the file gives the defaults. One that is there and cannot be read is as an
// empty one: every field keeps the zero of unread memory.
void ReadOrBuildSettings() {
  ProgSettings = {};
  RecentUB = -1;
  if (!FileExists(SettingsPath())) return;
  ProgSettings = SettingsFromBytes("");
  CarryOn([] { ProgSettings = ReadSettings(SettingsPath()); });
  TakeRecentFiles();
  ShowRecentFiles();
  if (RecentUB >= 0) RememberProjectFolder(RecentFiles[0]);
}

void CheckMagneticZone() {
  frmMain.mnuMagRule(ToInt16(2 * ProgSettings.MagneticZone - 1)).SetChecked(true);
}

void SetHelpFile() { HelpFile = AppFolder + "twlabel.chm"; }

void SetUntitledCaption() { frmMain.SetCaption(ProductTitle + " [untitled]"); }

void HideContextMenus() {
  for (Menu* menu :
       {&frmMain.mnuFields, &frmMain.mnuDrawing, &frmMain.mnuGraphic, &frmMain.mnuText}) {
    menu->SetVisible(false);
  }
}

void DisableEditCommands() {
  for (Menu* entry :
       {&frmMain.mnuUndo, &frmMain.mnuEditCopy, &frmMain.mnuEditCut, &frmMain.mnuArrAlign,
        &frmMain.mnuArrSize, &frmMain.mnuAHoriz, &frmMain.mnuArrangeBTF, &frmMain.mnuArrangeSTB}) {
    entry->SetEnabled(false);
  }
}

void PrepareCrossHairs() {
  CrossHairsShown = ProgSettings.ShowCrossHairs;
  for (LineControl* line : {&frmMain.HairX, &frmMain.HairY}) {
    if (!CrossHairsShown) {
      line->SetVisible(false);
      continue;
    }
    line->SetX1(0);
    line->SetX2(0);
    line->SetY1(0);
    line->SetY2(0);
  }
}

void ForgetRedrawSkip() { RedrawSkip = -1; }

void SetUnits() { ProgSettings.MetricUnits ? UseMillimetres() : UseInches(); }

void CheckViewEntries() {
  frmMain.mnuFileRulers.SetChecked(ProgSettings.ShowRulers != 0);
  frmMain.mnuOptXHair.SetChecked(ProgSettings.ShowCrossHairs != 0);
}

void ForgetGroup() { SelectedUpper = -1; }

void SetFullZoom() { ZoomFactor = 1.0; }

void FillBarcodeList() { FillBarcodeFormats(frmMain.cboBCode); }

void MakeHitAreasTransparent() {
  frmMain.lblHold(0).SetBackStyle(kTransparentBack);
  frmMain.lblHold(1).SetBackStyle(kTransparentBack);
}

void ForgetDocument() {
  ObjectUB = -1;
  SelectedObject = -1;
  ResetMagneticRules();
}

void FillPalette() {
  for (int i = kFirstGrey; i <= kLastGrey; ++i) {
    const int grey = 255 - 51 * i;
    frmMain.lblFCol(i).SetBackColor(Rgb(grey, grey, grey));
    frmMain.lblBCol(i).SetBackColor(Rgb(grey, grey, grey));
  }
}

void FillWeights() {
  for (int n = 0; n <= 10; ++n) frmMain.cboWeight.AddItem(std::to_string(n));
  frmMain.cboWeight.SetListIndex(1);
}

void SetColourSamples() {
  frmMain.lblFCol(kCurrentSample).SetBackColor(Rgb(0, 0, 0));
  frmMain.lblBCol(kCurrentSample).SetBackColor(Rgb(255, 255, 255));
}

// A print service that refuses one answer may still give the other.
void ListPrinters() {
  ComboBox& list = frmMain.cboPrinter;
  CarryOn([&] {
    for (const std::string& name : Printers()) list.AddItem(name);
  });
  list.SetVisible(true);
  CarryOn([&] { list.SetText(PrinterList().DefaultName()); });
  CarryOn([&] { list.SetToolTipText(PrinterList().DefaultName()); });
  ExpectPrinter(list.Text());  // what is shown is what prints
}

void FillSizes() {
  for (int n = 6; n <= 14; ++n) frmMain.cboSize.AddItem(std::to_string(n));
  for (int n = 16; n <= 48; n += 2) frmMain.cboSize.AddItem(std::to_string(n));
  frmMain.cboSize.SetListIndex(6);
}

void ListFonts() {
  SetScreenMousePointer(kWaitPointer);
  CarryOn([] { frmMain.cboFont.Clear(); });
  CarryOn([] { FillFontList(frmMain.cboFont); });
  SetScreenMousePointer(kDefaultPointer);
}

// The comparison is with the padded field, so that only a name of all 50 characters is ever found:
// the box stays blank until a tool that needs it brings the default font.
void SelectDefaultFont() { SelectRow(frmMain.cboFont, ProgSettings.DefaultFontName.Padded()); }

void SelectFullZoom() { SelectRow(frmMain.cboZoom, "100%"); }

void FillImportTypes() {
  frmMain.cboImportType.AddItem("Microsoft Access 97 Database");
  frmMain.cboImportType.AddItem("Comma Separated Text File");
  frmMain.cboImportType.AddItem("Tab Delimited Text File");
}

void ForgetDataSource() { FieldUB = -1; }

constexpr StartStep kSteps[] = {
    {"take the application folder", TakeAppFolder},
    {"read the settings or build fresh ones", ReadOrBuildSettings},
    {"check the magnetic zone", CheckMagneticZone},
    {"place the window", PlaceWindow},
    {"set the serial defaults", SetSerialDefaults},
    {"set the help file", SetHelpFile},
    {"set the caption", SetUntitledCaption},
    {"load the label layouts", LoadLabelLayouts},
    {"hide the context menus", HideContextMenus},
    {"disable the edit commands", DisableEditCommands},
    {"prepare the cross hairs", PrepareCrossHairs},
    {"forget the object to skip", ForgetRedrawSkip},
    {"set the units", SetUnits},
    {"check rulers and cross hairs", CheckViewEntries},
    {"forget the group", ForgetGroup},
    {"fill the zoom list", FillZoomList},
    {"set the zoom factor", SetFullZoom},
    {"fill the barcode formats", FillBarcodeList},
    {"draw on the board", DrawOnBoard},
    {"make the hit areas transparent", MakeHitAreasTransparent},
    {"forget the document", ForgetDocument},
    {"fill the palette", FillPalette},
    {"fill the pen weights", FillWeights},
    {"set the colour samples", SetColourSamples},
    {"list the printers", ListPrinters},
    {"draw on the board again", DrawOnBoard},
    {"fill the font sizes", FillSizes},
    {"list the fonts", ListFonts},
    {"select the default font", SelectDefaultFont},
    {"select full zoom", SelectFullZoom},
    {"fill the layout list", FillLayoutList},
    {"fill the import types", FillImportTypes},
    {"forget the data source", ForgetDataSource},
};

// A window that appears has a size, whether or not that is news to the model.
void LayOutFirstTime() { frmMain.WindowEvents().Resize.Raise(-1); }

}  // namespace

std::string SettingsPath() { return AppFolder + "progsettings.twd"; }

std::span<const StartStep> StartSteps() { return kSteps; }

void Form_Load() {
  for (const StartStep& step : kSteps) CarryOn(step.run);
}

void Form_Activate() {
  if (BoardReady != 0) return;
  BoardReady = kTrue;
  ShowPanel(frmMain.picProperties);
  RedrawBoard();
}

void StartProgram() {
  ResetProgram();
  WireForm<FrmMain> = WireMainWindow;
  WireForm<FrmAbout> = WireAboutWindow;
  WireForm<FrmSerialNumber> = WireSerialNumberWindow;
  Load(frmMain);
  LayOutFirstTime();
  Show(frmMain);
}

}  // namespace tagwright
