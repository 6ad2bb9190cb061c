// The main window: the label on its board, the panels above it, the tools beside it.
// Controls and their design values only; what they do is bound in shell/wiring.cpp.
#pragma once

#include "platform/controls/controls.h"
#include "platform/services/dialogs.h"

namespace tagwright {

struct FrmMain : Form {
  FrmMain();

  // --- menus ---
  Menu mnuFile{this, "mnuFile"};
  Menu mnuFileNew{&mnuFile, "mnuFileNew"};
  Menu mnuFileOpen{&mnuFile, "mnuFileOpen"};
  Menu mnuFileSave{&mnuFile, "mnuFileSave"};
  Menu mnuFileSaveAs{&mnuFile, "mnuFileSaveAs"};
  Menu mnuFilePrint{&mnuFile, "mnuFilePrint"};
  Menu mnuFileImport{&mnuFile, "mnuFileImport"};
  Menu mnuFileSerial{&mnuFile, "mnuFileSerial"};
  Menu mnuFileDesign{&mnuFile, "mnuFileDesign"};
  Menu mnuFileDefault{&mnuFile, "mnuFileDefault"};
  Menu mnuFileBar4{&mnuFile, "mnuFileBar4"};
  ControlArray<Menu> mnuFileOld{&mnuFile, "mnuFileOld", 6};
  Menu mnuFileExit{&mnuFile, "mnuFileExit"};

  Menu mnuFileEdit{this, "mnuFileEdit"};
  Menu mnuUndo{&mnuFileEdit, "mnuUndo"};
  Menu mnuEditCut{&mnuFileEdit, "mnuEditCut"};
  Menu mnuEditCopy{&mnuFileEdit, "mnuEditCopy"};
  Menu mnuEditPaste{&mnuFileEdit, "mnuEditPaste"};
  Menu mnuEditSelectAll{&mnuFileEdit, "mnuEditSelectAll"};

  Menu mnuArrange{this, "mnuArrange"};
  Menu mnuArrAlign{&mnuArrange, "mnuArrAlign"};
  ControlArray<Menu> mnuAAlign{&mnuArrAlign, "mnuAAlign", 6};
  Menu mnuArrSize{&mnuArrange, "mnuArrSize"};
  ControlArray<Menu> mnuASize{&mnuArrSize, "mnuASize", 3};
  Menu mnuAHoriz{&mnuArrange, "mnuAHoriz"};
  Menu mnuArrangeBTF{&mnuArrange, "mnuArrangeBTF"};
  Menu mnuArrangeSTB{&mnuArrange, "mnuArrangeSTB"};

  Menu mnuFileOptions{this, "mnuFileOptions"};
  Menu mnuFileRulers{&mnuFileOptions, "mnuFileRulers"};
  Menu mnuOptXHair{&mnuFileOptions, "mnuOptXHair"};
  Menu mnuUnits{&mnuFileOptions, "mnuUnits"};
  Menu mnuUnitMM{&mnuUnits, "mnuUnitMM"};
  Menu mnuUnitIn{&mnuUnits, "mnuUnitIn"};
  Menu mnuMagRuleArea{&mnuFileOptions, "mnuMagRuleArea"};
  ControlArray<Menu> mnuMagRule{&mnuMagRuleArea, "mnuMagRule", 7};

  Menu mnuHelp{this, "mnuHelp"};
  Menu mnuHelpHelp{&mnuHelp, "mnuHelpHelp"};
  Menu mnuHelpWebsite{&mnuHelp, "mnuHelpWebsite"};
  Menu mnuHelpAbout{&mnuHelp, "mnuHelpAbout"};

  // Context menus, hidden from the bar at start-up.
  Menu mnuFields{this, "mnuFields"};
  ControlArray<Menu> mnuField{&mnuFields, "mnuField", 3};
  Menu mnuFieldBC{&mnuFields, "mnuFieldBC"};
  ControlArray<Menu> mnuFBC{&mnuFieldBC, "mnuFBC", 16};
  Menu mnuBCSettings{&mnuFields, "mnuBCSettings"};
  Menu mnuBCSetWid{&mnuBCSettings, "mnuBCSetWid"};
  Menu mnuBCSetHgt{&mnuBCSettings, "mnuBCSetHgt"};
  Menu mnuBCSetChars{&mnuBCSettings, "mnuBCSetChars"};

  Menu mnuDrawing{this, "mnuDrawing"};
  Menu mnuDChange{&mnuDrawing, "mnuDChange"};
  ControlArray<Menu> mnuDrawChange{&mnuDChange, "mnuDrawChange", 3};
  Menu mnuAspect{&mnuDrawing, "mnuAspect"};
  ControlArray<Menu> mnuShpAspect{&mnuAspect, "mnuShpAspect", 2};

  Menu mnuGraphic{this, "mnuGraphic"};
  Menu mnuGraphicRestore{&mnuGraphic, "mnuGraphicRestore"};
  Menu mnuGraphicWidth{&mnuGraphicRestore, "mnuGraphicWidth"};
  Menu mnuGraphicHeight{&mnuGraphicRestore, "mnuGraphicHeight"};

  Menu mnuText{this, "mnuText"};
  Menu mnuTextCopy{&mnuText, "mnuTextCopy"};

  // --- the strip across the top ---
  PictureBox picFunctions{this, "picFunctions"};
  ComboBox cboZoom{&picFunctions, "cboZoom"};
  ControlArray<TextBox> txtDSize{&picFunctions, "txtDSize", 4};
  CheckBox chkXHair{&picFunctions, "chkXHair"};
  ComboBox cboFont{&picFunctions, "cboFont"};
  ComboBox cboSize{&picFunctions, "cboSize"};

  // --- the panels stacked in it ---
  PictureBox picProperties{&picFunctions, "picProperties"};
  ComboBox cboLabelLayout{&picProperties, "cboLabelLayout"};
  CommandButton cmdDesLabel{&picProperties, "cmdDesLabel"};
  ControlArray<TextBox> txtLabLayout{&picProperties, "txtLabLayout", 8};

  PictureBox picText{&picFunctions, "picText"};
  TextBox txtTool{&picText, "txtTool"};
  CommandButton cmdTextColor{&picText, "cmdTextColor"};
  Label lblTextColor{&picText, "lblTextColor"};
  CheckBox chkBold{&picText, "chkBold"};
  CheckBox chkItalic{&picText, "chkItalic"};
  ControlArray<CommandButton> cmdAlign{&picText, "cmdAlign", 3};

  PictureBox picBCode{&picFunctions, "picBCode"};
  ComboBox cboBCode{&picBCode, "cboBCode"};
  TextBox txtBCodeData{&picBCode, "txtBCodeData"};
  TextBox txtBookland{&picBCode, "txtBookland"};
  CheckBox chkChkSum{&picBCode, "chkChkSum"};
  CheckBox chkPriCharacter{&picBCode, "chkPriCharacter"};
  CommandButton cmdBCode{&picBCode, "cmdBCode"};

  PictureBox picDrawing{&picFunctions, "picDrawing"};
  CommandButton cmdLine{&picDrawing, "cmdLine"};
  CommandButton cmdRect{&picDrawing, "cmdRect"};
  CommandButton cmdRoundRect{&picDrawing, "cmdRoundRect"};
  CommandButton cmdEllipse{&picDrawing, "cmdEllipse"};
  ComboBox cboWeight{&picDrawing, "cboWeight"};
  CommandButton cmdColor{&picDrawing, "cmdColor"};
  ControlArray<Label> lblBCol{&picDrawing, "lblBCol", 7};  // 0 to 5 palette, 6 current fill
  CommandButton cmdFColor{&picDrawing, "cmdFColor"};
  ControlArray<Label> lblFCol{&picDrawing, "lblFCol", 7};  // 0 to 5 palette, 6 current outline
  CheckBox chkTransparent{&picDrawing, "chkTransparent"};

  PictureBox picPicture{&picFunctions, "picPicture"};
  Label lblGraphicFName{&picPicture, "lblGraphicFName"};
  Label lblGraphicX{&picPicture, "lblGraphicX"};
  Label lblGraphicY{&picPicture, "lblGraphicY"};

  PictureBox picFields{&picFunctions, "picFields"};
  ComboBox cboImportType{&picFields, "cboImportType"};
  CommandButton cmdBrowse{&picFields, "cmdBrowse"};
  ControlArray<Label> lblFName{&picFields, "lblFName", 2};  // 0 "Filename", 1 "Recordset"
  Label lblFileName{&picFields, "lblFileName"};
  ComboBox cboRSet{&picFields, "cboRSet"};
  CheckBox chkFirstRow{&picFields, "chkFirstRow"};
  CheckBox chkQuote{&picFields, "chkQuote"};
  Label lblRCount{&picFields, "lblRCount"};
  ListBox lstFields{&picFields, "lstFields"};

  PictureBox picPrint{&picFunctions, "picPrint"};
  ComboBox cboPrinter{&picPrint, "cboPrinter"};
  TextBox txtPrintFrom{&picPrint, "txtPrintFrom"};
  TextBox txtPrintTo{&picPrint, "txtPrintTo"};
  TextBox txtNoCopies{&picPrint, "txtNoCopies"};
  CheckBox chkMailshot{&picPrint, "chkMailshot"};
  Label lblLabels{&picPrint, "lblLabels"};  // how many the job will have
  CommandButton cmdPrint{&picPrint, "cmdPrint"};
  CommandButton cmdPreview{&picPrint, "cmdPreview"};
  CommandButton cmdSerNo{&picPrint, "cmdSerNo"};

  PictureBox picSellAll{&picFunctions, "picSellAll"};
  ControlArray<CommandButton> cmdSAllAlign{&picSellAll, "cmdSAllAlign", 6};
  ControlArray<CommandButton> cmdSS{&picSellAll, "cmdSS", 3};
  CommandButton cmdSpcHor{&picSellAll, "cmdSpcHor"};
  CommandButton cmdSpcVert{&picSellAll, "cmdSpcVert"};

  // --- the column of tools ---
  PictureBox picTools{this, "picTools"};
  CommandButton cmdToBack{&picTools, "cmdToBack"};
  CommandButton cmdCenterLab{&picTools, "cmdCenterLab"};
  CommandButton cmdToFront{&picTools, "cmdToFront"};
  ControlArray<CommandButton> cmdTools{&picTools, "cmdTools", 8};

  // --- the zoom flyout ---
  PictureBox picMag{this, "picMag"};
  ControlArray<CommandButton> cmdMagnify{&picMag, "cmdMagnify", 5};

  // --- the board ---
  PictureBox picBoard{this, "picBoard"};
  ControlArray<Label> lblHold{&picBoard, "lblHold", 2};
  LineControl HairX{&picBoard, "HairX"};
  LineControl HairY{&picBoard, "HairY"};
  LineControl lnMX{&picBoard, "lnMX"};
  LineControl lnMY{&picBoard, "lnMY"};
  Shape shpBox{&picBoard, "shpBox"};
  LineControl shpLine{&picBoard, "shpLine"};
  ControlArray<Label> lblHandle{&picBoard, "lblHandle", 4};
  ScrollBar vS1{&picBoard, "vS1"};
  ScrollBar hS1{&picBoard, "hS1"};
  CommandButton cmdXC{&picBoard, "cmdXC"};
  // Stands for the board itself: takes the keyboard away from a field.
  ControlArray<TextBox> txtSetFocus{&picBoard, "txtSetFocus", 1};

  StatusBar sB1{this, "sB1", 4};

  // --- off screen ---
  PictureBox picTemp{this, "picTemp"};
  Image imageIcon{this, "imageIcon"};
  Image Image1{this, "Image1"};
  Image Image2{this, "Image2"};  // pointer of a data field
  Image Image3{this, "Image3"};  // pointer of zoom in
  Image Image4{this, "Image4"};  // pointer of zoom out
  Image Image5{this, "Image5"};  // pointer of the barcode tool
  Timer Timer1{this, "Timer1"};
  Timer tmrButtons{this, "tmrButtons"};
  CommonDialog cd1;
};

extern FrmMain frmMain;

}  // namespace tagwright
