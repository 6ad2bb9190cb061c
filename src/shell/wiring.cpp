// Control on the left, handler on the right: whoever wants to know what a click does starts here.
#include "shell/wiring.h"

#include "barcode/mod_bar_code.h"
#include "document/project_commands.h"
#include "document/redraw.h"
#include "editing/keys.h"
#include "editing/magnetic_rule.h"
#include "editing/property_pick.h"
#include "editing/resize.h"
#include "editing/selection.h"
#include "editing/shape_panel.h"
#include "editing/size_fields.h"
#include "editing/spoken_selection.h"
#include "editing/text_panel.h"
#include "layouts/layout_list.h"
#include "layouts/serial_number.h"
#include "output/data_fields.h"
#include "output/data_sources.h"
#include "output/database_source.h"
#include "output/print_job.h"
#include "output/print_panel.h"
#include "shell/about.h"
#include "shell/flyout.h"
#include "shell/help.h"
#include "shell/shutdown.h"
#include "shell/startup.h"
#include "shell/window.h"
#include "tools/barcode_panel.h"
#include "tools/board.h"
#include "tools/board_keys.h"
#include "tools/context_menus.h"
#include "tools/font_box.h"
#include "tools/hold_mouse.h"
#include "tools/panels.h"
#include "tools/tool_buttons.h"
#include "tools/view.h"
#include "tools/wheel.h"

namespace tagwright {
namespace {

void WireWindow(FrmMain& f) {
  f.WindowEvents().Load = Form_Load;
  f.WindowEvents().Activate = Form_Activate;
  f.WindowEvents().Resize = Form_Resize;
  f.WindowEvents().Unload = Form_Unload;
  f.WindowEvents().KeyDown = [](int& KeyCode, int Shift) {
    Form_KeyDown(KeyCode, Shift);
    FlyoutKeyDown(KeyCode);
    TextMenuKeyDown(KeyCode, Shift);
    BoardKeyDown(KeyCode, Shift);
    ShowWhetherToSave();
  };
  // An opening menu ends held keys, too.
  f.WindowEvents().KeyUp = [](int KeyCode, int Shift) {
    Form_KeyUp(KeyCode, Shift);
    ShowWhetherToSave();
  };

  f.Timer1.Events().Timer = ShowWhetherToSave;
  f.tmrButtons.Events().Timer = tmrButtons_Timer;
}

void WireMenus(FrmMain& f) {
  f.mnuFileNew.Events().Click = [] {
    mnuFileNew_Click();
    FollowLabel();
  };
  f.mnuFileOpen.Events().Click = [] {
    mnuFileOpen_Click();
    FollowLabel();
  };
  f.mnuFileSave.Events().Click = mnuFileSave_Click;
  f.mnuFileSaveAs.Events().Click = mnuFileSaveAs_Click;
  f.mnuFileImport.Events().Click = mnuFileImport_Click;
  f.mnuFileSerial.Events().Click = mnuFileSerial_Click;
  f.mnuFileOld.Events().Click = [](int Index) {
    mnuFileOld_Click(Index);
    FollowLabel();
  };
  f.mnuFileExit.Events().Click = mnuFileExit_Click;

  f.mnuEditSelectAll.Events().Click = mnuEditSelectAll_Click;
  f.mnuTextCopy.Events().Click = mnuTextCopy_Click;

  f.mnuFileRulers.Events().Click = mnuFileRulers_Click;
  f.mnuOptXHair.Events().Click = mnuOptXHair_Click;
  f.mnuUnitMM.Events().Click = mnuUnitMM_Click;
  f.mnuUnitIn.Events().Click = mnuUnitIn_Click;
  f.mnuMagRule.Events().Click = mnuMagRule_Click;

  f.mnuHelpHelp.Events().Click = mnuHelpHelp_Click;
  f.mnuHelpWebsite.Events().Click = mnuHelpWebsite_Click;
  f.mnuHelpAbout.Events().Click = mnuHelpAbout_Click;
}

void WireStrip(FrmMain& f) {
  f.cboZoom.Events().Click = cboZoom_Click;
  f.chkXHair.Events().Click = chkXHair_Click;
  f.cboFont.Events().GotFocus = cboFont_GotFocus;
  f.cboFont.Events().KeyPress = cboFont_KeyPress;
  f.cboFont.Events().LostFocus = cboFont_LostFocus;
  f.cboFont.Events().Click = ApplyFontProperties;
  f.cboSize.Events().Click = ApplyFontProperties;
  f.cboLabelLayout.Events().Click = [] {
    cboLabelLayout_Click();
    ShowLabelsOfJob();
  };
  f.txtDSize.Events().GotFocus = txtDSize_GotFocus;
  f.txtDSize.Events().LostFocus = txtDSize_LostFocus;
  f.txtDSize.Events().KeyPress = txtDSize_KeyPress;
  f.txtDSize.Events().MouseMove = [](int Index, int, int, double, double) {
    txtDSize_MouseMove(Index);
  };
}

void WireTextPanel(FrmMain& f) {
  f.txtTool.Events().GotFocus = txtTool_GotFocus;
  f.txtTool.Events().LostFocus = txtTool_LostFocus;
  f.txtTool.Events().KeyPress = txtTool_KeyPress;
  f.txtTool.Events().Change = txtTool_Change;
  f.chkBold.Events().Click = ApplyFontProperties;
  f.chkItalic.Events().Click = ApplyFontProperties;
  f.picText.Events().MouseDown = [](int Button, int, double, double) { picText_MouseDown(Button); };
  f.cmdAlign.Events().Click = cmdAlign_Click;
  f.cmdTextColor.Events().Click = cmdTextColor_Click;
}

void WireDrawingPanel(FrmMain& f) {
  f.cmdLine.Events().Click = cmdLine_Click;
  f.cmdRect.Events().Click = cmdRect_Click;
  f.cmdRoundRect.Events().Click = cmdRoundRect_Click;
  f.cmdEllipse.Events().Click = cmdEllipse_Click;
  f.cboWeight.Events().Click = cboWeight_Click;
  f.cmdColor.Events().Click = cmdColor_Click;
  f.lblBCol.Events().Click = lblBCol_Click;
  f.cmdFColor.Events().Click = cmdFColor_Click;
  f.lblFCol.Events().Click = lblFCol_Click;
  f.chkTransparent.Events().Click = chkTransparent_Click;
}

void WireTools(FrmMain& f) {
  f.cmdTools.Events().Click = cmdTools_Click;
  f.cmdTools.Events().MouseDown = [](int Index, int, int, double, double) {
    cmdTools_MouseDown(Index);
  };
  f.cmdTools.Events().MouseUp = [](int, int, double, double) { cmdTools_MouseUp(); };
  f.cmdMagnify.Events().Click = cmdMagnify_Click;
  SetAfterEachHandler(ShowArmedTool);
}

void WireBoard(FrmMain& f) {
  f.picBoard.Events().MouseDown = picBoard_MouseDown;
  f.picBoard.Events().MouseMove = picBoard_MouseMove;
  f.picBoard.Events().MouseUp = picBoard_MouseUp;
  f.picBoard.Events().MouseWheel = picBoard_MouseWheel;
  f.lblHold.Events().MouseDown = lblHold_MouseDown;
  f.lblHold.Events().MouseMove = lblHold_MouseMove;
  f.lblHold.Events().MouseUp = lblHold_MouseUp;
  f.lblHandle.Events().MouseDown = lblHandle_MouseDown;
  f.lblHandle.Events().MouseMove = lblHandle_MouseMove;
  f.lblHandle.Events().MouseUp = lblHandle_MouseUp;
  f.hS1.Events().Change = hS1_Change;
  f.hS1.Events().GotFocus = hS1_GotFocus;
  f.vS1.Events().Change = vS1_Change;
  f.vS1.Events().GotFocus = vS1_GotFocus;
  f.cmdXC.Events().Click = cmdXC_Click;
}

void WireSpeech(FrmMain& f) { f.picBoard.InWords = SelectionInWords; }

void WireContextMenus(FrmMain& f) {
  f.mnuDrawChange.Events().Click = mnuDrawChange_Click;
  f.mnuShpAspect.Events().Click = mnuShpAspect_Click;
  f.mnuGraphicWidth.Events().Click = mnuGraphicWidth_Click;
  f.mnuGraphicHeight.Events().Click = mnuGraphicHeight_Click;
  f.mnuBCSetWid.Events().Click = mnuBCSetWid_Click;
  f.mnuBCSetHgt.Events().Click = mnuBCSetHgt_Click;
  f.mnuBCSetChars.Events().Click = mnuBCSetChars_Click;
}

// chkChkSum is bound to nothing: whether a check digit is made depends on format and data alone.
void WireBarcodes(FrmMain& f) {
  PaintBarcode = PaintBarcodeOf;
  f.cboBCode.Events().Click = cboBCode_Click;
  f.cboBCode.Events().KeyPress = cboBCode_KeyPress;
  f.txtBCodeData.Events().GotFocus = txtBCodeData_GotFocus;
  f.txtBCodeData.Events().KeyPress = txtBCodeData_KeyPress;
  f.txtBCodeData.Events().Change = txtBCodeData_Change;
  f.txtBCodeData.Events().LostFocus = txtBCodeData_LostFocus;
  f.chkPriCharacter.Events().Click = chkPriCharacter_Click;
  f.cmdBCode.Events().Click = cmdBCode_Click;
}

void WireDataSources(FrmMain& f) {
  f.cboImportType.Events().Click = cboImportType_Click;
  f.cmdBrowse.Events().Click = cmdBrowse_Click;
  f.cboRSet.Events().Click = cboRSet_Click;
  f.chkFirstRow.Events().Click = chkFirstRow_Click;
  f.chkQuote.Events().Click = chkQuote_Click;
  f.lstFields.Events().DblClick = lstFields_DblClick;
  f.mnuField.Events().Click = mnuField_Click;
  f.mnuFBC.Events().Click = mnuFBC_Click;
  f.cmdSerNo.Events().Click = cmdSerNo_Click;
}

void WirePrinting(FrmMain& f) {
  f.mnuFilePrint.Events().Click = mnuFilePrint_Click;
  f.cboPrinter.Events().Click = cboPrinter_Click;
  f.chkMailshot.Events().Click = ShowLabelsOfJob;
  f.txtNoCopies.Events().Change = ShowLabelsOfJob;
  f.txtPrintFrom.Events().Change = ShowLabelsOfJob;
  f.txtPrintTo.Events().Change = ShowLabelsOfJob;
  f.txtNoCopies.Events().KeyPress = [](int, int&) { txtNoCopies_KeyPress(); };
  f.txtPrintFrom.Events().KeyPress = [](int, int&) { txtPrintFrom_KeyPress(); };
  f.txtPrintTo.Events().KeyPress = [](int, int&) { txtPrintTo_KeyPress(); };
  f.cmdPrint.Events().Click = cmdPrint_Click;
}

// Off the board the pointer is an arrow again. picPicture, picPrint and picMag have no such
// handler: the pointer stays as it came.
void WireHover(FrmMain& f) {
  const auto hover = [](int, int, double, double) { ShowPointerOffBoard(); };
  f.Events().MouseMove = hover;
  f.picFunctions.Events().MouseMove = hover;
  f.picProperties.Events().MouseMove = hover;
  f.picText.Events().MouseMove = hover;
  f.picBCode.Events().MouseMove = hover;
  f.picDrawing.Events().MouseMove = hover;
  f.picFields.Events().MouseMove = hover;
  f.picSellAll.Events().MouseMove = hover;
  f.picTools.Events().MouseMove = hover;
  f.picTemp.Events().MouseMove = hover;
  f.cmdTools.Events().MouseMove = hover;
  f.sB1.Events().MouseMove = hover;
}

// --- not there yet ------------------------------------------------------------------------------

// Everything that the window shows and the program does not do yet, in this one place. Whoever
// builds a group moves its lines up and gives them their handlers.
constexpr auto NotThereYet = [](auto&&...) {};

// Undo, the clipboard, aligning, spacing and stacking.
void WireArrangingLater(FrmMain& f) {
  f.mnuUndo.Events().Click = NotThereYet;
  f.mnuEditCut.Events().Click = NotThereYet;
  f.mnuEditCopy.Events().Click = NotThereYet;
  f.mnuEditPaste.Events().Click = NotThereYet;
  f.mnuAAlign.Events().Click = NotThereYet;
  f.mnuASize.Events().Click = NotThereYet;
  f.mnuAHoriz.Events().Click = NotThereYet;
  f.mnuArrangeBTF.Events().Click = NotThereYet;
  f.mnuArrangeSTB.Events().Click = NotThereYet;
  f.cmdToBack.Events().Click = NotThereYet;
  f.cmdCenterLab.Events().Click = NotThereYet;
  f.cmdToFront.Events().Click = NotThereYet;
  f.cmdSAllAlign.Events().Click = NotThereYet;
  f.cmdSS.Events().Click = NotThereYet;
  f.cmdSpcHor.Events().Click = NotThereYet;
  f.cmdSpcVert.Events().Click = NotThereYet;
}

// The preview.
void WirePreviewLater(FrmMain& f) { f.cmdPreview.Events().Click = NotThereYet; }

// The dialogs for label layouts and default settings.
void WireDialogsLater(FrmMain& f) {
  f.mnuFileDesign.Events().Click = NotThereYet;
  f.cmdDesLabel.Events().Click = NotThereYet;
  f.mnuFileDefault.Events().Click = NotThereYet;
}

void WireLater(FrmMain& f) {
  WireArrangingLater(f);
  WirePreviewLater(f);
  WireDialogsLater(f);
}

}  // namespace

void WireMainWindow(FrmMain& f) {
  WireWindow(f);
  WireMenus(f);
  WireStrip(f);
  WireTools(f);
  WireTextPanel(f);
  WireDrawingPanel(f);
  WireBoard(f);
  WireSpeech(f);
  WireContextMenus(f);
  WireBarcodes(f);
  WireDataSources(f);
  WirePrinting(f);
  WireHover(f);
  WireLater(f);
}

void WireAboutWindow(FrmAbout& f) {
  f.WindowEvents().Load = about::Form_Load;
  f.cmdOK.Events().Click = about::cmdOK_Click;
}

void WireSerialNumberWindow(FrmSerialNumber& f) {
  namespace sn = serial_number;
  f.WindowEvents().Load = sn::Form_Load;
  f.txtSerPref.Events().Change = sn::txtSerPref_Change;
  f.txtSerIncr.Events().KeyPress = sn::txtSerIncr_KeyPress;
  f.cboInc.Events().Click = sn::cboInc_Click;
  f.cboInc.Events().GotFocus = sn::cboInc_GotFocus;
  f.cboInc.Events().KeyPress = sn::cboInc_KeyPress;
  f.cboInc.Events().LostFocus = sn::cboInc_LostFocus;
  f.chkBCode.Events().Click = sn::chkBCode_Click;
  f.cboBCode.Events().Click = sn::cboBCode_Click;
  f.cboBCode.Events().GotFocus = sn::cboBCode_GotFocus;
  f.cboBCode.Events().KeyPress = sn::cboBCode_KeyPress;
  f.cboBCode.Events().LostFocus = sn::cboBCode_LostFocus;
  f.txtBCodeWid.Events().Change = sn::txtBCodeWid_Change;
  f.txtBCodeWid.Events().KeyPress = sn::txtBCodeWid_KeyPress;
  f.chkTxt.Events().Click = sn::chkTxt_Click;
  f.cmdSave.Events().Click = sn::cmdSave_Click;
  f.cmdCancel.Events().Click = sn::cmdCancel_Click;
}

}  // namespace tagwright
