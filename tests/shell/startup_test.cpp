#include "shell/startup.h"

#include <cmath>
#include <filesystem>
#include <functional>
#include <random>
#include <vector>

#include "barcode/formats.h"
#include "document/objects.h"
#include "document/overlays.h"
#include "document/project_record.h"
#include "document/project_save.h"
#include "document/recent_files.h"
#include "editing/magnetic_rule.h"
#include "layouts/label_layouts.h"
#include "platform/painting/fonts.h"
#include "platform/services/desktop.h"
#include "platform/services/dialog_folders.h"
#include "shell/help.h"
#include "shell/reset.h"
#include "shell/shell_fixture.h"
#include "shell/window.h"
#include "shell/wiring.h"
#include "tools/tool_buttons.h"
#include "tools/view.h"

namespace tagwright {
namespace {

class StartUpTest : public ShellTest {};

// --- the order ----------------------------------------------------------------------------------

// Before each step the state is made to differ from what the step leaves; right after it, and not
// before, its mark must be there. So the n-th step is the one that does the n-th thing.
struct Mark {
  std::function<void()> spoil;
  std::function<bool()> done;
};

std::vector<Mark> MarksInOrder() {
  static FrmMain& f = frmMain;
  const auto nothing = [] {};
  return {
      {[] { AppFolder = "elsewhere/"; }, [] { return AppFolder == ExecutableFolder() + "/"; }},
      {[] { ProgSettings.WindowWidth = 1; }, [] { return ProgSettings.WindowWidth == 15000; }},
      {nothing, [] { return f.mnuMagRule(6).Checked(); }},
      {nothing, [] { return f.Left() == 450 && f.Top() == 600 && f.Width() == 15000; }},
      {[] { SerialValue = 5; }, [] { return SerialValue == 1001; }},
      {nothing, [] { return HelpFile == AppFolder + "twlabel.chm"; }},
      {nothing, [] { return f.Caption() == "Tagwright Designer Gold [untitled]"; }},
      {nothing, [] { return LabelLayoutTop == 13; }},
      {nothing, [] { return !f.mnuText.Visible(); }},
      {nothing, [] { return !f.mnuUndo.Enabled(); }},
      {[] { f.HairX.SetX2(5); }, [] { return f.HairX.X2() == 0; }},
      {[] { RedrawSkip = 4; }, [] { return RedrawSkip == -1; }},
      {[] { UnitScale = 7; }, [] { return UnitScale == 25.4; }},
      {nothing, [] { return f.mnuFileRulers.Checked(); }},
      {[] { SelectedUpper = 3; }, [] { return SelectedUpper == -1; }},
      {nothing, [] { return f.cboZoom.ListCount() == 28; }},
      {[] { ZoomFactor = 3; }, [] { return ZoomFactor == 1.0; }},
      {nothing, [] { return f.cboBCode.ListCount() == 14; }},
      {[] { DrawTarget = nullptr; }, [] { return DrawTarget == &f.picBoard.Canvas(); }},
      {[] { f.lblHold(1).SetBackStyle(1); }, [] { return f.lblHold(1).BackStyle() == 0; }},
      {[] { SelectedObject = 2; }, [] { return SelectedObject == -1 && MagRuleX == -1; }},
      {nothing, [] { return f.lblBCol(5).BackColor() == 0 && f.lblBCol(1).BackColor() != 0; }},
      {nothing, [] { return f.cboWeight.Text() == "1"; }},
      {[] { f.lblFCol(6).SetBackColor(7); }, [] { return f.lblFCol(6).BackColor() == 0; }},
      {nothing, [] { return f.cboPrinter.Text() == "Test printer"; }},
      {[] { DrawTarget = nullptr; }, [] { return DrawTarget == &f.picBoard.Canvas(); }},
      {nothing, [] { return f.cboSize.Text() == "12"; }},
      {nothing, [] { return f.cboFont.ListCount() == 3; }},
      {[] { f.cboFont.AddItem(std::string(50, 'F')); },
       [] { return f.cboFont.Text() == std::string(50, 'F'); }},
      {nothing, [] { return f.cboZoom.Text() == "100%"; }},
      {nothing, [] { return f.cboLabelLayout.ListCount() == 14; }},
      {nothing, [] { return f.cboImportType.ListCount() == 3; }},
      {[] { FieldUB = 9; }, [] { return FieldUB == -1; }},
  };
}

TEST_F(StartUpTest, ThirtyThreeStepsInTheirOrder) {
  SettingsRecord settings;
  settings.DefaultFontName = std::string(50, 'F');
  settings.WindowLeft = 450;
  settings.WindowTop = 600;
  settings.WindowWidth = 15000;
  settings.WindowHeight = 9000;
  settings.MagneticZone = 3.5;
  settings.MetricUnits = 0;
  WriteSettingsFile(settings);
  ResetProgram();
  Load(frmMain);  // nothing is wired: the steps run one by one below

  const auto steps = StartSteps();
  const std::vector<Mark> marks = MarksInOrder();
  ASSERT_EQ(steps.size(), 33U);
  ASSERT_EQ(marks.size(), 33U);
  for (std::size_t i = 0; i < steps.size(); ++i) {
    marks[i].spoil();
    EXPECT_FALSE(marks[i].done()) << "before step " << i + 1 << ": " << steps[i].name;
    steps[i].run();
    EXPECT_TRUE(marks[i].done()) << "after step " << i + 1 << ": " << steps[i].name;
  }
}

// What the outside sees of the order: the services that are asked and the events that are raised.
std::vector<std::string> seen;

class WatchedPrinters : public FakePrinterList {
 public:
  std::vector<std::string> Names() override {
    seen.push_back("printers");
    return FakePrinterList::Names();
  }
};

class WatchedFonts : public FontService {
 public:
  double Width(std::string_view text, const FontSpec& font) override {
    return FixedFonts().Width(text, font);
  }
  double Ascent(const FontSpec& font) override { return FixedFonts().Ascent(font); }
  double Descent(const FontSpec& font) override { return FixedFonts().Descent(font); }
  std::vector<std::string> Families() override {
    seen.push_back(ScreenMousePointer() == 11 ? "fonts, waiting" : "fonts");
    return FixedFonts().Families();
  }
};

void WireWatched(FrmMain& f) {
  WireMainWindow(f);
  f.WindowEvents().Resize = [] {
    Form_Resize();
    seen.push_back(frmMain.cboZoom.ListCount() == 0 ? "resize, early" : "resize");
  };
  f.cboWeight.Events().Click = [] { seen.push_back("weight"); };
  f.cboSize.Events().Click = [] { seen.push_back("size"); };
  f.cboZoom.Events().Click = [] {
    cboZoom_Click();
    seen.push_back("zoom");
  };
  f.cboLabelLayout.Events().Click = [] { seen.push_back("layout"); };
  f.chkXHair.Events().Click = [] { seen.push_back("cross hairs"); };
}

TEST_F(StartUpTest, EventsAndServicesInTheOrderOfTheSteps) {
  SettingsRecord settings;
  settings.WindowLeft = 450;
  settings.WindowTop = 600;
  settings.WindowWidth = 15000;
  settings.WindowHeight = 9000;
  WriteSettingsFile(settings);
  WatchedPrinters watched_printers;
  WatchedFonts fonts;
  ResetProgram();
  SetPrinterList(&watched_printers);
  SetFonts(&fonts);
  WireForm<FrmMain> = WireWatched;
  seen.clear();
  Load(frmMain);
  SetPrinterList(&printers);
  SetFonts(nullptr);
  const std::vector<std::string> expected = {"resize, early", "resize, early", "weight",
                                             "printers",      "size",          "fonts, waiting",
                                             "zoom",          "layout"};
  EXPECT_EQ(seen, expected);
  EXPECT_EQ(ScreenMousePointer(), 0);
  EXPECT_EQ(RedrawCount, 0);  // the board is not ready: no step paints
}

// --- the first run ------------------------------------------------------------------------------

TEST_F(StartUpTest, FirstRunInAnEmptyFolder) {
  StartProgram();
  EXPECT_EQ(AppFolder, folder.Path() + "/");
  EXPECT_EQ(ProgSettings, SettingsRecord());
  EXPECT_TRUE(frmMain.mnuFileRulers.Checked());
  EXPECT_TRUE(frmMain.mnuOptXHair.Checked());
  EXPECT_TRUE(frmMain.mnuUnitMM.Checked());
  EXPECT_FALSE(frmMain.mnuUnitIn.Checked());
  EXPECT_EQ(UnitScale, 1.0);
  EXPECT_EQ(RulerScale, 1.0);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(frmMain.mnuMagRule(i).Checked(), i == 3) << i;
  EXPECT_EQ(frmMain.cboFont.ListIndex(), -1);
  EXPECT_EQ(frmMain.cboFont.Text(), "");
  EXPECT_EQ(frmMain.cboSize.Text(), "12");
  EXPECT_EQ(frmMain.cboWeight.Text(), "1");
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  EXPECT_EQ(frmMain.cboZoom.ListIndex(), 8);
  EXPECT_EQ(frmMain.cboImportType.ListIndex(), -1);
  EXPECT_EQ(frmMain.cboLabelLayout.Text(), "A4 14 per sheet");
  EXPECT_EQ(LabelWidth, 99);
  EXPECT_EQ(LabelHeight, 38);
  EXPECT_EQ(frmMain.Caption(), "Tagwright Designer Gold [untitled]");
  EXPECT_EQ(FileLength(folder.File("label.dta")), 854);
  EXPECT_FALSE(FileExists(SettingsFile()));  // nothing is written before the first exit
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(StartUpTest, SerialDefaults) {
  StartProgram();
  EXPECT_EQ(SerialIncrement, 1);
  EXPECT_EQ(SerialPrintText, -1);
  EXPECT_EQ(SerialValue, 1001);
  EXPECT_EQ(SerialBarcodeType, 6);
  EXPECT_EQ(SerialBarcodeWidth, 35.0);
  EXPECT_EQ(SerialBarcodeHeight, 15.0);
}

TEST_F(StartUpTest, RowsOfTheLists) {
  StartProgram();
  const std::vector<std::string> zooms = {"20%",  "30%",  "40%",  "50%",  "60%",  "70%",  "80%",
                                          "90%",  "100%", "110%", "120%", "130%", "140%", "150%",
                                          "175%", "200%", "225%", "250%", "300%", "350%", "400%",
                                          "450%", "500%", "550%", "600%", "650%", "700%", "750%"};
  const std::vector<std::string> sizes = {"6",  "7",  "8",  "9",  "10", "11", "12", "13", "14",
                                          "16", "18", "20", "22", "24", "26", "28", "30", "32",
                                          "34", "36", "38", "40", "42", "44", "46", "48"};
  const std::vector<std::string> weights = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
  const std::vector<std::string> types = {"Microsoft Access 97 Database",
                                          "Comma Separated Text File", "Tab Delimited Text File"};
  const auto rows = [](const ComboBox& combo) {
    std::vector<std::string> texts;
    for (int i = 0; i < combo.ListCount(); ++i) texts.push_back(combo.List(i));
    return texts;
  };
  EXPECT_EQ(rows(frmMain.cboZoom), zooms);
  EXPECT_EQ(rows(frmMain.cboSize), sizes);
  EXPECT_EQ(rows(frmMain.cboWeight), weights);
  EXPECT_EQ(rows(frmMain.cboImportType), types);
  EXPECT_EQ(rows(frmMain.cboPrinter), printers.names);
  EXPECT_EQ(rows(frmMain.cboFont),
            (std::vector<std::string>{"Arial", "Courier New", "Times New Roman"}));
  EXPECT_EQ(rows(frmMain.cboBCode),
            (std::vector<std::string>{"UPC-A", "UPC-E", "EAN-13", "EAN-8", "Code 2 of 5",
                                      "Interleaved 2 of 5", "Code 128-A", "Code 128-B",
                                      "Code 128-C", "Code 39", "Code 39 Extended", "Codabar",
                                      "PostNet", "Royal Mail CBC"}));
}

TEST_F(StartUpTest, PaletteAndSamples) {
  StartProgram();
  const Color greys[] = {0xFFFFFF, 0xCCCCCC, 0x999999, 0x666666, 0x333333, 0x000000};
  for (int i = 0; i <= 5; ++i) {
    EXPECT_EQ(frmMain.lblFCol(i).BackColor(), greys[i]) << i;
    EXPECT_EQ(frmMain.lblBCol(i).BackColor(), greys[i]) << i;
  }
  EXPECT_EQ(frmMain.lblFCol(6).BackColor(), 0x000000);
  EXPECT_EQ(frmMain.lblBCol(6).BackColor(), 0xFFFFFF);
}

TEST_F(StartUpTest, ContextMenusAreOffTheBarAndEditCommandsDisabled) {
  StartProgram();
  for (const Menu* menu :
       {&frmMain.mnuFields, &frmMain.mnuDrawing, &frmMain.mnuGraphic, &frmMain.mnuText}) {
    EXPECT_FALSE(menu->Visible()) << menu->Name();
  }
  for (const Menu* entry : {&frmMain.mnuUndo, &frmMain.mnuEditCopy, &frmMain.mnuEditCut,
                            &frmMain.mnuEditPaste, &frmMain.mnuArrAlign, &frmMain.mnuArrSize,
                            &frmMain.mnuAHoriz, &frmMain.mnuArrangeBTF, &frmMain.mnuArrangeSTB}) {
    EXPECT_FALSE(entry->Enabled()) << entry->Name();
  }
  EXPECT_TRUE(frmMain.mnuEditSelectAll.Enabled());
}

TEST_F(StartUpTest, CrossHairsOnStandAtTheCornerAndShow) {
  StartProgram();
  EXPECT_EQ(CrossHairsShown, -1);
  EXPECT_TRUE(frmMain.HairX.Visible());
  EXPECT_TRUE(frmMain.HairY.Visible());
}

TEST_F(StartUpTest, CrossHairsOffAreHiddenThoughTheirBoxStandsTicked) {
  SettingsRecord settings;
  settings.ShowCrossHairs = 0;
  settings.ShowRulers = 0;
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(CrossHairsShown, 0);
  EXPECT_FALSE(frmMain.HairX.Visible());
  EXPECT_FALSE(frmMain.HairY.Visible());
  EXPECT_FALSE(frmMain.mnuOptXHair.Checked());
  EXPECT_FALSE(frmMain.mnuFileRulers.Checked());
  EXPECT_EQ(frmMain.chkXHair.Value(), 1);
}

TEST_F(StartUpTest, InchesFromTheSettings) {
  SettingsRecord settings;
  settings.MetricUnits = 0;
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(UnitScale, 25.4);
  EXPECT_EQ(RulerScale, 2.54);
  EXPECT_EQ(ProgSettings.MetricUnits, 0);
  EXPECT_FALSE(frmMain.mnuUnitMM.Checked());
  EXPECT_TRUE(frmMain.mnuUnitIn.Checked());
}

TEST_F(StartUpTest, EveryZoneOfTheMagneticRuleChecksItsEntry) {
  for (int entry = 0; entry < 7; ++entry) {
    SettingsRecord settings;
    settings.MagneticZone = (entry + 1) * 0.5;
    WriteSettingsFile(settings);
    StartProgram();
    for (int i = 0; i < 7; ++i) EXPECT_EQ(frmMain.mnuMagRule(i).Checked(), i == entry);
  }
}

// --- the default font ---------------------------------------------------------------------------

// The comparison takes the padding along: "Arial" is in the list and yet not found.
TEST_F(StartUpTest, OnlyAFontNameOfAllFiftyCharactersIsSelected) {
  class LongNamed : public WatchedFonts {
   public:
    std::vector<std::string> Families() override { return {"Arial", std::string(50, 'L')}; }
  } fonts;
  SettingsRecord settings;
  settings.DefaultFontName = std::string(50, 'L');
  WriteSettingsFile(settings);
  SetFonts(&fonts);
  StartProgram();
  SetFonts(nullptr);
  EXPECT_EQ(frmMain.cboFont.Text(), std::string(50, 'L'));
}

// --- the window's place -------------------------------------------------------------------------

TEST_F(StartUpTest, APlaceNeverSavedKeepsTheDesign) {
  StartProgram();
  const FrmMain design;
  EXPECT_EQ(frmMain.Left(), design.Left());
  EXPECT_EQ(frmMain.Top(), design.Top());
  EXPECT_EQ(frmMain.Width(), design.Width());
  EXPECT_EQ(frmMain.Height(), design.Height());
}

TEST_F(StartUpTest, HalfOfThePairThatMeansNeverSavedIsAPlace) {
  SettingsRecord settings;
  settings.WindowTop = 450;
  settings.WindowWidth = 15000;
  settings.WindowHeight = 9000;
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(frmMain.Left(), -1000.033);
  EXPECT_EQ(frmMain.Top(), 450);
  EXPECT_EQ(frmMain.Width(), 15000);

  settings.WindowLeft = 300;
  settings.WindowTop = 3900.0;
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(frmMain.Left(), 300);
  EXPECT_EQ(frmMain.Top(), 3900);
}

TEST_F(StartUpTest, AnImpossiblePlaceIsTakenAsItStands) {
  SettingsRecord settings;
  settings.WindowLeft = -90000;
  settings.WindowTop = 400000;
  settings.WindowWidth = 12000;
  settings.WindowHeight = 9000;
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(frmMain.Left(), -90000);
  EXPECT_EQ(frmMain.Top(), 400000);
}

TEST_F(StartUpTest, ARefusedWidthDoesNotKeepTheHeightFromBeingSet) {
  SettingsRecord settings;
  settings.WindowLeft = 300;
  settings.WindowTop = 300;
  settings.WindowWidth = -5;
  settings.WindowHeight = 9000;
  WriteSettingsFile(settings);
  const FrmMain design;
  StartProgram();
  EXPECT_EQ(frmMain.Width(), design.Width());
  EXPECT_EQ(frmMain.Height(), 9000);
}

// Beyond the 16 bits in which window systems count pixels: 32767 pixels are 491505 twips.
TEST_F(StartUpTest, CoordinatesThatNoWindowSystemHasKeepTheDesign) {
  const FrmMain design;
  for (double damaged : {std::nan(""), HUGE_VAL, -HUGE_VAL, 491506.0, -491506.0, 1e300}) {
    SettingsRecord settings;
    settings.WindowLeft = damaged;
    settings.WindowTop = 300;
    settings.WindowWidth = damaged;
    settings.WindowHeight = 9000;
    WriteSettingsFile(settings);
    StartProgram();
    EXPECT_EQ(frmMain.Left(), design.Left()) << damaged;
    EXPECT_EQ(frmMain.Top(), 300) << damaged;
    EXPECT_EQ(frmMain.Width(), design.Width()) << damaged;
    EXPECT_EQ(frmMain.Height(), 9000) << damaged;
  }
}

TEST_F(StartUpTest, TheFarthestCoordinatesAreTaken) {
  SettingsRecord settings;
  settings.WindowLeft = -491505;
  settings.WindowTop = 491505;
  settings.WindowWidth = 12000;
  settings.WindowHeight = 9000;
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(frmMain.Left(), -491505);
  EXPECT_EQ(frmMain.Top(), 491505);
}

TEST_F(StartUpTest, FileDialogsOpenWhereTheLastProjectOfTheSessionBeforeLies) {
  SettingsRecord settings;
  settings.RecentFile2 = folder.File("One.twp");
  settings.RecentFile3 = "/elsewhere/Two.twp";
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(DialogFolder(kProjectFilter), folder.Path() + "/");
}

// --- recent files -------------------------------------------------------------------------------

TEST_F(StartUpTest, ARecentListWithAGapShowsNoGapAndTheFileKeepsIt) {
  SettingsRecord settings;
  FixedText<150>* fields[] = {&settings.RecentFile1, &settings.RecentFile3, &settings.RecentFile4,
                              &settings.RecentFile5, &settings.RecentFile6};
  const char* names[] = {"One.twp", "Three.twp", "Four.twp", "Five.twp", "Six.twp"};
  for (int i = 0; i < 5; ++i) {
    *fields[i] = folder.File(names[i]);
    WriteFile(folder.File(names[i]), "");
  }
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(RecentUB, 4);
  for (int i = 0; i < 5; ++i) {
    EXPECT_TRUE(frmMain.mnuFileOld(i).Visible()) << i;
    EXPECT_EQ(frmMain.mnuFileOld(i).Caption(), LowerCase(folder.File(names[i])));
  }
  EXPECT_FALSE(frmMain.mnuFileOld(5).Visible());
  EXPECT_TRUE(frmMain.mnuFileBar4.Visible());
  ASSERT_TRUE(Unload(frmMain));
  EXPECT_EQ(SettingsOnDisk().RecentFile1.Trimmed(), folder.File("One.twp"));
  EXPECT_EQ(SettingsOnDisk().RecentFile2.Trimmed(), "");
  EXPECT_EQ(SettingsOnDisk().RecentFile3.Trimmed(), folder.File("Three.twp"));
}

TEST_F(StartUpTest, RecentPathsAreTrimmedInTheRecordToo) {
  SettingsRecord settings;
  settings.RecentFile2 = "   /tmp/a b.twp";
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(RecentUB, 0);
  EXPECT_EQ(RecentFiles[0], "/tmp/a b.twp");
  EXPECT_EQ(ProgSettings.RecentFile2, FixedText<150>("/tmp/a b.twp"));
}

// --- odd files ----------------------------------------------------------------------------------

TEST_F(StartUpTest, ASettingsFileOf1300BytesIsAcceptedAndLeavesWith1190) {
  SettingsRecord settings;
  settings.MagneticZone = 0.5;
  WriteFile(SettingsFile(), SettingsBytes(settings) + std::string(110, 'x'));
  StartProgram();
  EXPECT_EQ(ProgSettings.MagneticZone, 0.5);
  ASSERT_TRUE(Unload(frmMain));
  EXPECT_EQ(FileLength(SettingsFile()), 1190);
}

// What the file lacks is zero, not the default: inches, no rulers, no place, zone 0.
TEST_F(StartUpTest, AShortSettingsFileFillsTheLeadingFieldsOnly) {
  WriteFile(SettingsFile(), SettingsBytes(SettingsRecord()).substr(0, 58));
  StartProgram();
  EXPECT_EQ(ProgSettings.DefaultFontSize, 11.0);
  EXPECT_EQ(ProgSettings.NumericBarcodeType, 0);
  EXPECT_EQ(UnitScale, 25.4);
  EXPECT_FALSE(frmMain.mnuFileRulers.Checked());
  for (int i = 0; i < 7; ++i) EXPECT_FALSE(frmMain.mnuMagRule(i).Checked()) << i;
  EXPECT_EQ(frmMain.Left(), 0);
  EXPECT_EQ(frmMain.Height(), 8250);  // of a saved height of 0 the resize makes its least
}

TEST_F(StartUpTest, AnEmptySettingsFileStartsToo) {
  WriteFile(SettingsFile(), "");
  StartProgram();
  EXPECT_EQ(BoardReady, -1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
}

// A full disk at exit has left such files. A window without a width is none.
TEST_F(StartUpTest, ASettingsFileThatEndsBeforeTheWindowsSizeStillShowsAWindow) {
  const FrmMain design;
  for (const std::size_t length : {0, 58, 1080, 1096, 1098, 1103}) {
    WriteFile(SettingsFile(), std::string(1190, '\1').substr(0, length));
    StartProgram();
    EXPECT_EQ(frmMain.Width(), design.Width()) << length;
    EXPECT_EQ(frmMain.Height(), 8250) << length;
    DeleteFile(SettingsFile());
  }
}

TEST_F(StartUpTest, ASavedWidthOfOnePixelIsAWidth) {
  SettingsRecord settings;
  settings.WindowLeft = 300;
  settings.WindowWidth = 15;
  settings.WindowHeight = 9000;
  WriteSettingsFile(settings);
  StartProgram();
  EXPECT_EQ(frmMain.Width(), 15);
}

// Its bytes cannot be read, as on a failing disk; yet the file is there, so these are no defaults.
TEST_F(StartUpTest, ASettingsFileThatCannotBeReadIsARecordOfZeros) {
  std::filesystem::create_symlink("/proc/self/mem", SettingsFile());
  ASSERT_TRUE(FileExists(SettingsFile()));
  ASSERT_THROW(ReadFile(SettingsFile()), Fault);
  StartProgram();
  EXPECT_EQ(ProgSettings.DefaultFontName.Trimmed(), "");
  EXPECT_EQ(ProgSettings.MagneticZone, 0);
  EXPECT_EQ(UnitScale, 25.4);
  EXPECT_EQ(RecentUB, -1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  EXPECT_TRUE(dialogs.messages.empty());
}

// Numbers that no sheet has, in every length at once: the program starts, shows them as they are
// and can be worked with.
TEST_F(StartUpTest, LayoutsOfImpossibleSizesStartAndZoom) {
  int reports = 0;
  SetFaultReporter([&](const Fault&) { ++reports; });
  for (float size : {std::nanf(""), HUGE_VALF, -HUGE_VALF, 3.4e38F, -3.4e38F, 1e9F, -1e9F, 0.0F}) {
    LabelLayouts.assign(1, {"Odd", 0, -1, size, size, size, size, -1, 32767, size, size, -1});
    LabelLayoutTop = 0;
    WriteFile(folder.File("label.dta"), LabelLayoutBytes(LabelLayouts[0]));
    StartProgram();
    EXPECT_EQ(frmMain.cboLabelLayout.Text(), "Odd") << size;
    EXPECT_EQ(RedrawCount, 1) << size;
    for (int button = 0; button < 5; ++button) frmMain.cmdMagnify(button).Press();
    frmMain.mnuUnitIn.Press();
    frmMain.mnuUnitMM.Press();
    EXPECT_GE(ZoomFactor, 0.2) << size;
    EXPECT_EQ(SuspendRedraw, 0) << size;
    EXPECT_TRUE(Unload(frmMain)) << size;
  }
  SetFaultReporter({});
  EXPECT_EQ(reports, 0);
}

TEST_F(StartUpTest, RandomSettingsAndLayoutsStartAndEndWithoutAFault) {
  std::mt19937 random(20260314);
  int reports = 0;
  SetFaultReporter([&](const Fault&) { ++reports; });
  for (int round = 0; round < 100; ++round) {
    const auto bytes = [&](std::size_t longest) {
      std::string text(random() % (longest + 1), 0);
      for (char& c : text) c = static_cast<char>(random());
      return text;
    };
    WriteFile(SettingsFile(), bytes(1300));
    WriteFile(folder.File("label.dta"), bytes(900));
    StartProgram();
    EXPECT_EQ(frmMain.cboImportType.ListCount(), 3);
    EXPECT_TRUE(Unload(frmMain));
    DeleteFile(SettingsFile());
    DeleteFile(folder.File("label.dta"));
  }
  SetFaultReporter({});
  EXPECT_EQ(reports, 0);
}

// --- failures -----------------------------------------------------------------------------------

TEST_F(StartUpTest, WithoutAPrinterTheListStaysEmptyAndTheProgramStarts) {
  printers.names.clear();
  StartProgram();
  EXPECT_EQ(frmMain.cboPrinter.ListCount(), 0);
  EXPECT_EQ(frmMain.cboPrinter.Text(), "");
  EXPECT_EQ(frmMain.cboImportType.ListCount(), 3);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(StartUpTest, TheDefaultPrinterIsShownAsTextAndToolTip) {
  printers.names = {"Zebra", "Alpha"};  // in the order of the system, not sorted
  StartProgram();
  EXPECT_EQ(frmMain.cboPrinter.List(0), "Zebra");
  EXPECT_EQ(frmMain.cboPrinter.List(1), "Alpha");
  EXPECT_EQ(frmMain.cboPrinter.Text(), "Zebra");
  EXPECT_EQ(frmMain.cboPrinter.ToolTipText(), "Zebra");
}

TEST_F(StartUpTest, ThePrinterThatIsShownPrintsWhicheverIsTheDefaultByThen) {
  printers.names = {"Zebra", "Alpha"};
  StartProgram();
  printers.names = {"Alpha", "Zebra"};
  EXPECT_EQ(frmMain.cboPrinter.Text(), "Zebra");
  EXPECT_EQ(Printer().DeviceName(), "Zebra");
}

TEST_F(StartUpTest, AFolderThatCannotBeWrittenStartsAndEndsWithoutAWord) {
  SetExecutableFolder(folder.File("gone"));
  StartProgram();
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  EXPECT_EQ(frmMain.cboImportType.ListCount(), 3);
  EXPECT_TRUE(Unload(frmMain));
  EXPECT_TRUE(dialogs.messages.empty());
}

class FailingPrinters : public FakePrinterList {
 public:
  std::vector<std::string> Names() override { RaiseFault(kPrinterFault); }
};

TEST_F(StartUpTest, AFailingStepIsSkippedAndTheNextOnesRun) {
  FailingPrinters failing;
  SetPrinterList(&failing);
  StartProgram();
  SetPrinterList(&printers);
  EXPECT_EQ(frmMain.cboPrinter.ListCount(), 0);
  EXPECT_TRUE(frmMain.cboPrinter.Visible());
  EXPECT_EQ(frmMain.cboPrinter.Text(), "Test printer");  // its own statement, which did not fail
  EXPECT_EQ(frmMain.cboPrinter.ToolTipText(), "Test printer");
  EXPECT_EQ(frmMain.cboSize.Text(), "12");
  EXPECT_EQ(FieldUB, -1);
  EXPECT_TRUE(dialogs.messages.empty());
}

class NoDefaultPrinter : public FakePrinterList {
 public:
  std::string DefaultName() override { RaiseFault(kPrinterFault); }
};

TEST_F(StartUpTest, WithoutADefaultPrinterTheOthersAreListed) {
  NoDefaultPrinter failing;
  SetPrinterList(&failing);
  StartProgram();
  SetPrinterList(&printers);
  EXPECT_EQ(frmMain.cboPrinter.ListCount(), 1);
  EXPECT_TRUE(frmMain.cboPrinter.Visible());
  EXPECT_EQ(frmMain.cboPrinter.Text(), "");
  EXPECT_TRUE(dialogs.messages.empty());
}

class FailingFonts : public WatchedFonts {
 public:
  std::vector<std::string> Families() override { RaiseFault(kInvalidCall); }
};

TEST_F(StartUpTest, AFailingFontListStillGivesThePointerBack) {
  FailingFonts failing;
  SetFonts(&failing);
  StartProgram();
  SetFonts(nullptr);
  EXPECT_EQ(ScreenMousePointer(), 0);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
}

// --- the first activation -----------------------------------------------------------------------

TEST_F(StartUpTest, TheFirstActivationPaintsTheEmptyLabelOnce) {
  StartProgram();
  EXPECT_EQ(BoardReady, -1);
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_EQ(frmMain.picProperties.Left(), 50);
  EXPECT_EQ(frmMain.picProperties.Top(), 0);
  EXPECT_GT(frmMain.picProperties.Order(), frmMain.picText.Order());
  EXPECT_GT(frmMain.picProperties.Order(), frmMain.picSellAll.Order());
}

TEST_F(StartUpTest, LaterActivationsDoNothing) {
  StartProgram();
  frmMain.picText.ZOrder();
  frmMain.UserDeactivate();
  frmMain.UserActivate();
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_GT(frmMain.picText.Order(), frmMain.picProperties.Order());
}

TEST_F(StartUpTest, TheBoardHasItsSizeAndScaleAtTheFirstPaint) {
  StartProgram();
  EXPECT_EQ(frmMain.picBoard.Width(), frmMain.ScaleWidth() - 240 - frmMain.picTools.Width());
  EXPECT_DOUBLE_EQ(frmMain.picBoard.ScaleWidth(), frmMain.picBoard.Width() / kTwipsPerMillimetre);
}

// --- starting again -----------------------------------------------------------------------------

TEST_F(StartUpTest, EverythingIsAsFreshOnASecondStartInOneProcess) {
  StartProgram();
  GrowObjects();
  SelectedObject = 0;
  SelectedUpper = 1;
  CurrentTool = 11;
  CursorShape = 99;
  DirtyFlag = kTrue;
  ProjectPath = "x";
  SerialPrefix = "A";
  FieldUB = 3;
  HoldTicks = 1000;
  MagRuleX = 4;
  frmMain.cboZoom.SetListIndex(0);
  frmMain.picMag.SetVisible(true);
  StartProgram();
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_TRUE(Objects.empty());
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_EQ(ProjectPath, "");
  EXPECT_EQ(SerialPrefix, "");
  EXPECT_EQ(FieldUB, -1);
  EXPECT_EQ(HoldTicks, 0);
  EXPECT_EQ(MagRuleX, -1);
  EXPECT_EQ(ZoomFactor, 1.0);
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_FALSE(frmMain.picMag.Visible());
  EXPECT_EQ(Forms().size(), 1U);
}

}  // namespace
}  // namespace tagwright
