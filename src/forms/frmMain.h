// The main window: the label on its board, the panels above it, the tools beside it.
// Controls and their design values only; what they do is bound in shell/wiring.cpp.
//
// Behind each control stands what it is to the user: its caption in quotes, or what it shows.
// "(later)" marks what is seen and does nothing yet.
#pragma once

#include "platform/controls/buttons.h"
#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/image.h"
#include "platform/controls/label.h"
#include "platform/controls/list_box.h"
#include "platform/controls/menu.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/scroll_bar.h"
#include "platform/controls/shapes.h"
#include "platform/controls/status_bar.h"
#include "platform/controls/text_controls.h"
#include "platform/controls/timer.h"
#include "platform/services/dialogs.h"

namespace tagwright {

// --- what the numbers of its controls mean ------------------------------------------------------

// cmdTools.
enum ToolButton : int {
  kSelectButton = 0,
  kBarcodeButton = 1,
  kPictureButton = 2,
  kTextButton = 3,
  kDrawingButton = 4,
  kZoomInButton = 5,
  kZoomOutButton = 6,
  kFieldButton = 7,
};

// txtDSize: the selection's place and size.
enum SizeField : int { kLeftField = 0, kTopField = 1, kWidthField = 2, kHeightField = 3 };

// txtLabLayout: how the labels of the chosen layout lie on their sheet.
enum LayoutBox : int {
  kAcrossBox = 0,  // labels in a row
  kDownBox = 1,    // labels in a column
  kLabelWidthBox = 2,
  kLabelHeightBox = 3,
  kLeftMarginBox = 4,
  kTopMarginBox = 5,
  kHorizGutterBox = 6,
  kVertGutterBox = 7,
};

// lblBCol and lblFCol: the palette's greys from white to black, then the colour in force.
enum PaletteSlot : int { kFirstGrey = 0, kLastGrey = 5, kCurrentSample = 6 };

// lblFName.
enum SourceCaption : int { kFileCaption = 0, kTableCaption = 1 };

// The panels of sB1.
enum StatusPanel : int {
  kPlacePanel = 1,      // of the pointer
  kExtentPanel = 2,     // of what is drawn or selected
  kSelectionPanel = 3,  // how many are selected, and what is done to a magnetic rule
  kNotesPanel = 4,      // why a project was not saved
};

// The scroll bars: 0 to the end, and the place where the label stands centred.
constexpr int kScrollEnd = 500;
constexpr int kScrollMiddle = 250;

// Where the panels of the strip begin, twips.
constexpr double kPanelLeft = 50;

// --- the window ---------------------------------------------------------------------------------

struct FrmMain : Form {
  FrmMain();

  // --- menus ---
  Menu mnuFile{this, "mnuFile"};                    // "File"
  Menu mnuFileNew{&mnuFile, "mnuFileNew"};          // "New": an empty label
  Menu mnuFileOpen{&mnuFile, "mnuFileOpen"};        // "Open": another project
  Menu mnuFileSave{&mnuFile, "mnuFileSave"};        // "Save", once there is something to save
  Menu mnuFileSaveAs{&mnuFile, "mnuFileSaveAs"};    // "Save As": under another name
  Menu mnuFilePrint{&mnuFile, "mnuFilePrint"};      // "Print": the print panel
  Menu mnuFileImport{&mnuFile, "mnuFileImport"};    // "Import Data": the data panel
  Menu mnuFileSerial{&mnuFile, "mnuFileSerial"};    // "Serial Number Setup": that window
  Menu mnuFileDesign{&mnuFile, "mnuFileDesign"};    // "Design Label Layouts" (later)
  Menu mnuFileDefault{&mnuFile, "mnuFileDefault"};  // "Default Settings" (later)
  Menu mnuFileBar4{&mnuFile, "mnuFileBar4"};        // the line above the recent files
  ControlArray<Menu> mnuFileOld{&mnuFile, "mnuFileOld", 6};  // the recent files, latest first
  Menu mnuFileExit{&mnuFile, "mnuFileExit"};                 // "Exit"

  Menu mnuFileEdit{this, "mnuFileEdit"};                    // "Edit"
  Menu mnuUndo{&mnuFileEdit, "mnuUndo"};                    // "Undo" (later)
  Menu mnuEditCut{&mnuFileEdit, "mnuEditCut"};              // "Cut" (later)
  Menu mnuEditCopy{&mnuFileEdit, "mnuEditCopy"};            // "Copy" (later)
  Menu mnuEditPaste{&mnuFileEdit, "mnuEditPaste"};          // "Paste" (later)
  Menu mnuEditSelectAll{&mnuFileEdit, "mnuEditSelectAll"};  // "Select All": every object

  Menu mnuArrange{this, "mnuArrange"};           // "Arrange"
  Menu mnuArrAlign{&mnuArrange, "mnuArrAlign"};  // "Align", of a group
  // 0 left, 1 centre, 2 right, 3 top, 4 middle, 5 bottom.
  ControlArray<Menu> mnuAAlign{&mnuArrAlign, "mnuAAlign", 6};  // to one edge or middle (later)
  Menu mnuArrSize{&mnuArrange, "mnuArrSize"};                  // "Make Same Size", of a group
  ControlArray<Menu> mnuASize{&mnuArrSize, "mnuASize", 3};     // 0 height, 1 width, 2 both (later)
  Menu mnuAHoriz{&mnuArrange, "mnuAHoriz"};          // "Horizontal Centre to Label" (later)
  Menu mnuArrangeBTF{&mnuArrange, "mnuArrangeBTF"};  // "Bring to Front" (later)
  Menu mnuArrangeSTB{&mnuArrange, "mnuArrangeSTB"};  // "Send to Back" (later)

  Menu mnuFileOptions{this, "mnuFileOptions"};                      // "Options"
  Menu mnuFileRulers{&mnuFileOptions, "mnuFileRulers"};             // "Show Rulers"
  Menu mnuOptXHair{&mnuFileOptions, "mnuOptXHair"};                 // "Show Cross Hairs"
  Menu mnuUnits{&mnuFileOptions, "mnuUnits"};                       // "Units of Measure"
  Menu mnuUnitMM{&mnuUnits, "mnuUnitMM"};                           // "Millimeters"
  Menu mnuUnitIn{&mnuUnits, "mnuUnitIn"};                           // "Inches"
  Menu mnuMagRuleArea{&mnuFileOptions, "mnuMagRuleArea"};           // "Magnetic Rule Zone"
  ControlArray<Menu> mnuMagRule{&mnuMagRuleArea, "mnuMagRule", 7};  // "0.5 mm" to "3.5 mm"

  Menu mnuHelp{this, "mnuHelp"};                    // "Help"
  Menu mnuHelpHelp{&mnuHelp, "mnuHelpHelp"};        // "Help", F1: the help file
  Menu mnuHelpWebsite{&mnuHelp, "mnuHelpWebsite"};  // "Tagwright Website", in the browser
  Menu mnuHelpAbout{&mnuHelp, "mnuHelpAbout"};      // "About ...": that window

  // Context menus, hidden from the bar at start-up.
  Menu mnuFields{this, "mnuFields"};                       // opens over a data field
  ControlArray<Menu> mnuField{&mnuFields, "mnuField", 3};  // 0 as it stands, 1 currency, 2 number
  Menu mnuFieldBC{&mnuFields, "mnuFieldBC"};               // "Barcode": show the value as one
  ControlArray<Menu> mnuFBC{&mnuFieldBC, "mnuFBC", 16};    // of which format; 14, 15 paint none
  Menu mnuBCSettings{&mnuFields, "mnuBCSettings"};         // "Barcode Settings", of such a field
  Menu mnuBCSetWid{&mnuBCSettings, "mnuBCSetWid"};         // the width; asks for another one
  Menu mnuBCSetHgt{&mnuBCSettings, "mnuBCSetHgt"};         // the height; asks for another one
  Menu mnuBCSetChars{&mnuBCSettings, "mnuBCSetChars"};     // "Print Characters on Barcode"

  Menu mnuDrawing{this, "mnuDrawing"};         // opens over a shape that is not a line
  Menu mnuDChange{&mnuDrawing, "mnuDChange"};  // "Change Shape to"
  // 0 ellipse, 1 rectangle, 2 rounded rectangle.
  ControlArray<Menu> mnuDrawChange{&mnuDChange, "mnuDrawChange", 3};  // what it becomes
  Menu mnuAspect{&mnuDrawing, "mnuAspect"};                           // "Aspect": the sides
  // 0 the width takes the height, 1 the height takes the width.
  ControlArray<Menu> mnuShpAspect{&mnuAspect, "mnuShpAspect", 2};  // the side that follows

  Menu mnuGraphic{this, "mnuGraphic"};                       // opens over a picture
  Menu mnuGraphicRestore{&mnuGraphic, "mnuGraphicRestore"};  // "Restore Aspect Ratio", by one side
  Menu mnuGraphicWidth{&mnuGraphicRestore, "mnuGraphicWidth"};    // "Adjust Width"
  Menu mnuGraphicHeight{&mnuGraphicRestore, "mnuGraphicHeight"};  // "Adjust Height"

  Menu mnuText{this, "mnuText"};              // opens on picText, or by the menu key
  Menu mnuTextCopy{&mnuText, "mnuTextCopy"};  // "Copy Properties from": a click says which text

  // --- the strip across the top ---
  PictureBox picFunctions{this, "picFunctions"};  // the strip itself
  ComboBox cboZoom{&picFunctions, "cboZoom"};     // "Zoom": the label's size on screen
  ControlArray<TextBox> txtDSize{&picFunctions, "txtDSize", 4};  // by SizeField, in the user's unit
  CheckBox chkXHair{&picFunctions, "chkXHair"};  // "Cross Hairs": lines through the pointer
  ComboBox cboFont{&picFunctions, "cboFont"};    // "Font"; moves to the panel that needs it
  ComboBox cboSize{&picFunctions, "cboSize"};    // "Size" in points; goes with it

  // --- the panels stacked in it ---
  PictureBox picProperties{&picFunctions, "picProperties"};   // how labels lie on the sheet
  ComboBox cboLabelLayout{&picProperties, "cboLabelLayout"};  // "Layout" of the sheet
  CommandButton cmdDesLabel{&picProperties, "cmdDesLabel"};   // "Design new Label" (later)
  // Filled from the layout and typed into; a job goes by them.
  ControlArray<TextBox> txtLabLayout{&picProperties, "txtLabLayout", 8};  // by LayoutBox

  PictureBox picText{&picFunctions, "picText"};  // the selected text, or the style of the next
  TextBox txtTool{&picText, "txtTool"};          // what the text says, to be typed
  CommandButton cmdTextColor{&picText, "cmdTextColor"};  // "Text Color": asks for another one
  Label lblTextColor{&picText, "lblTextColor"};          // the colour in force
  CheckBox chkBold{&picText, "chkBold"};                 // "Bold"
  CheckBox chkItalic{&picText, "chkItalic"};             // "Italic"
  ControlArray<CommandButton> cmdAlign{&picText, "cmdAlign", 3};  // 0 left, 1 right, 2 centre

  PictureBox picBCode{&picFunctions, "picBCode"};   // the selected barcode, or the next one
  ComboBox cboBCode{&picBCode, "cboBCode"};         // "Barcode Format"
  TextBox txtBCodeData{&picBCode, "txtBCodeData"};  // "Barcode Data": what the barcode says
  TextBox txtBookland{&picBCode, "txtBookland"};    // supplement of a Bookland code; never shown
  CheckBox chkChkSum{&picBCode, "chkChkSum"};       // "Generate Checksum"; changes nothing
  CheckBox chkPriCharacter{&picBCode, "chkPriCharacter"};  // "Print Characters on Barcode"
  CommandButton cmdBCode{&picBCode, "cmdBCode"};           // "Place Barcode": arms its tool

  PictureBox picDrawing{&picFunctions, "picDrawing"};       // the selected shape, or the next one
  CommandButton cmdLine{&picDrawing, "cmdLine"};            // "Line": arms its tool
  CommandButton cmdRect{&picDrawing, "cmdRect"};            // "Rectangle": likewise
  CommandButton cmdRoundRect{&picDrawing, "cmdRoundRect"};  // "Rounded Rectangle": likewise
  CommandButton cmdEllipse{&picDrawing, "cmdEllipse"};      // "Ellipse": likewise
  ComboBox cboWeight{&picDrawing, "cboWeight"};             // "Line Weight" in pixels, 0 no outline
  CommandButton cmdColor{&picDrawing, "cmdColor"};          // "Fill Colour": asks for another one
  ControlArray<Label> lblBCol{&picDrawing, "lblBCol", 7};   // by PaletteSlot, of the fill
  CommandButton cmdFColor{&picDrawing, "cmdFColor"};       // "Outline Colour": asks for another one
  ControlArray<Label> lblFCol{&picDrawing, "lblFCol", 7};  // by PaletteSlot, of the outline
  CheckBox chkTransparent{&picDrawing, "chkTransparent"};  // "Make Transparent": no fill

  PictureBox picPicture{&picFunctions, "picPicture"};     // the selected picture, or the next one
  Label lblGraphicFName{&picPicture, "lblGraphicFName"};  // "Filename": its full path
  Label lblGraphicX{&picPicture, "lblGraphicX"};          // "Original X": width in 0.01 mm
  Label lblGraphicY{&picPicture, "lblGraphicY"};          // "Original Y": height in 0.01 mm

  PictureBox picFields{&picFunctions, "picFields"};         // the data source
  ComboBox cboImportType{&picFields, "cboImportType"};      // "Import File Type"; asks for the file
  CommandButton cmdBrowse{&picFields, "cmdBrowse"};         // "Load File": asks for the file
  ControlArray<Label> lblFName{&picFields, "lblFName", 2};  // by SourceCaption
  Label lblFileName{&picFields, "lblFileName"};     // the file's path; empty without a source
  ComboBox cboRSet{&picFields, "cboRSet"};          // "Recordset": a table of the database
  CheckBox chkFirstRow{&picFields, "chkFirstRow"};  // "First Row contains Field Names"
  CheckBox chkQuote{&picFields, "chkQuote"};        // "Remove Quote Marks" from values
  Label lblRCount{&picFields, "lblRCount"};         // "Records: " and how many
  ListBox lstFields{&picFields, "lstFields"};       // columns; a double click arms their tool

  PictureBox picPrint{&picFunctions, "picPrint"};     // the print job
  ComboBox cboPrinter{&picPrint, "cboPrinter"};       // "Printer"
  TextBox txtPrintFrom{&picPrint, "txtPrintFrom"};    // "From page"
  TextBox txtPrintTo{&picPrint, "txtPrintTo"};        // "To Page"
  TextBox txtNoCopies{&picPrint, "txtNoCopies"};      // "No. Copies" of each label
  CheckBox chkMailshot{&picPrint, "chkMailshot"};     // "Include Mailshot Data": a row to a label
  Label lblLabels{&picPrint, "lblLabels"};            // how many the job will have
  CommandButton cmdPrint{&picPrint, "cmdPrint"};      // "Print": prints the labels
  CommandButton cmdPreview{&picPrint, "cmdPreview"};  // "Preview" (later)
  CommandButton cmdSerNo{&picPrint, "cmdSerNo"};      // "Serial Numbers": that window

  PictureBox picSellAll{&picFunctions, "picSellAll"};  // what a group can be given
  ControlArray<CommandButton> cmdSAllAlign{&picSellAll, "cmdSAllAlign", 6};  // as mnuAAlign (later)
  ControlArray<CommandButton> cmdSS{&picSellAll, "cmdSS", 3};                // as mnuASize (later)
  CommandButton cmdSpcHor{&picSellAll, "cmdSpcHor"};    // "Space Evenly", across (later)
  CommandButton cmdSpcVert{&picSellAll, "cmdSpcVert"};  // "Space Evenly", down (later)

  // --- the column of tools ---
  PictureBox picTools{this, "picTools"};                  // the column itself
  CommandButton cmdToBack{&picTools, "cmdToBack"};        // "Send to Back" (later)
  CommandButton cmdCenterLab{&picTools, "cmdCenterLab"};  // "Align to Centre of Label" (later)
  CommandButton cmdToFront{&picTools, "cmdToFront"};      // "Bring to Front" (later)
  // Pressed while armed. Which panel opens: see tools/tool_buttons.cpp.
  ControlArray<CommandButton> cmdTools{&picTools, "cmdTools", 8};  // by ToolButton

  // --- the zoom flyout ---
  PictureBox picMag{this, "picMag"};  // opens while Zoom In or Zoom Out is held
  // 0 "Show All", 1 "Zoom to Height", 2 "Zoom to Width", 3 "View Same Size" (100 %), 4 "View All
  // Objects", which leaves the zoom as it is.
  ControlArray<CommandButton> cmdMagnify{&picMag, "cmdMagnify", 5};  // zooms and closes the flyout

  // --- the board ---
  PictureBox picBoard{this, "picBoard"};  // the label, painted, and what is behind it
  ControlArray<Label> lblHold{&picBoard, "lblHold", 2};  // over object i: takes its presses
  LineControl HairX{&picBoard, "HairX"};                 // cross hair, from top to bottom
  LineControl HairY{&picBoard, "HairY"};                 // cross hair, from left to right
  LineControl lnMX{&picBoard, "lnMX"};                   // magnetic rule, from top to bottom
  LineControl lnMY{&picBoard, "lnMY"};                   // magnetic rule, from left to right
  Shape shpBox{&picBoard, "shpBox"};                     // frame of the selection, and rubber box
  LineControl shpLine{&picBoard, "shpLine"};             // rubber line: the line being drawn
  // 0 top left, 1 top right, 2 bottom left, 3 bottom right.
  ControlArray<Label> lblHandle{&picBoard, "lblHandle", 4};  // drag to resize
  ScrollBar vS1{&picBoard, "vS1"};                           // scrolls up and down
  ScrollBar hS1{&picBoard, "hS1"};                           // scrolls left and right
  CommandButton cmdXC{&picBoard, "cmdXC"};                   // the label back to the middle
  // Stands for the board itself: takes the keyboard away from a field.
  ControlArray<TextBox> txtSetFocus{&picBoard, "txtSetFocus", 1};  // never seen

  StatusBar sB1{this, "sB1", 4};  // by StatusPanel

  // --- off screen ---
  PictureBox picTemp{this, "picTemp"};   // holds the picture being painted
  Image imageIcon{this, "imageIcon"};    // the program's icon
  Image Image1{this, "Image1"};          // holds none
  Image Image2{this, "Image2"};          // pointer of a data field
  Image Image3{this, "Image3"};          // pointer of zoom in
  Image Image4{this, "Image4"};          // pointer of zoom out
  Image Image5{this, "Image5"};          // pointer of the barcode tool
  Timer Timer1{this, "Timer1"};          // each second: is there something to save?
  Timer tmrButtons{this, "tmrButtons"};  // counts how long a zoom tool is held
  CommonDialog cd1;                      // asks for files and colours
};

extern FrmMain frmMain;

}  // namespace tagwright
