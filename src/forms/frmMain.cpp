#include "forms/frmMain.h"

#include "platform/controls/outlines.h"

namespace tagwright {
namespace {

// Lengths in twips. What Form_Resize computes is left at zero here.
constexpr double kStripHeight = 1860;
constexpr double kPanelWidth = 13000;
constexpr double kToolColumnWidth = 1320;
constexpr double kToolColumnHeight = 3795;
constexpr double kToolSize = 540;
constexpr double kToolMargin = 90;
constexpr double kToolStep = 600;
constexpr double kFlyoutWidth = 2940;
constexpr double kFlyoutHeight = 660;
constexpr double kStatusHeight = 390;
constexpr double kHandleSize = 105;

// The one colour of what lies over the label: handles, frames, rules.
constexpr Color kAccent = Rgb(47, 107, 216);
constexpr Color kHair = Rgb(120, 150, 205);

void DesignMenus(FrmMain& f) {
  f.mnuFileOpen.SetEnabled(true);
  f.mnuFileSave.SetEnabled(false);
  f.mnuEditPaste.SetEnabled(false);
  f.mnuFileBar4.SetVisible(false);
  for (const auto& [index, entry] : f.mnuFileOld) entry->SetVisible(false);
}

void DesignStrip(FrmMain& f) {
  f.picFunctions.SetHeight(kStripHeight);
  for (PictureBox* panel : {&f.picProperties, &f.picText, &f.picBCode, &f.picDrawing, &f.picPicture,
                            &f.picFields, &f.picPrint, &f.picSellAll}) {
    panel->Move(kPanelLeft, 0, kPanelWidth, kStripHeight);
  }
  f.cboFont.SetSorted(true);
  f.cboFont.SetEditable(true);
  f.cboFont.SetVisible(false);
  f.cboSize.SetVisible(false);
  f.chkXHair.SetValue(1);
  f.txtTool.SetMultiLine(true);
  f.lblTextColor.SetBackColor(Rgb(0, 0, 0));
  f.txtNoCopies.SetText("1");
  f.txtBookland.SetVisible(false);
  for (const auto& [index, field] : f.txtDSize) field->SetText("0.00");
  for (const auto& [index, field] : f.txtLabLayout) field->SetText("0.00");
}

void DesignTools(FrmMain& f) {
  f.picTools.SetWidth(kToolColumnWidth);
  f.picTools.SetHeight(kToolColumnHeight);
  // In two columns, row by row.
  constexpr int kOrder[] = {kSelectButton,  kBarcodeButton, kPictureButton, kTextButton,
                            kDrawingButton, kFieldButton,   kZoomInButton,  kZoomOutButton};
  for (int place = 0; place < 8; ++place) {
    const int column = place % 2, row = place / 2;
    f.cmdTools(kOrder[place])
        .Move(kToolMargin + kToolStep * column, kToolMargin + kToolStep * row, kToolSize,
              kToolSize);
  }
  f.picMag.SetVisible(false);
  f.picMag.SetWidth(kFlyoutWidth);
  f.picMag.SetHeight(kFlyoutHeight);
  f.sB1.SetHeight(kStatusHeight);
}

void DesignBoard(FrmMain& f) {
  f.picBoard.SetFocusStandIn(&f.txtSetFocus(0));
  f.picBoard.SetBackColor(Rgb(160, 164, 170));
  for (const auto& [index, hold] : f.lblHold) {
    hold->SetVisible(false);
    hold->SetBackStyle(kTransparentBack);  // a hit area never hides the label under it
  }
  for (const auto& [index, handle] : f.lblHandle) {
    handle->SetWidth(kHandleSize);
    handle->SetHeight(kHandleSize);
    handle->SetBackColor(kAccent);
    handle->SetForeColor(Rgb(255, 255, 255));
    handle->SetBorderStyle(kSolidBorder);
    handle->SetVisible(false);
  }
  f.shpBox.SetBorderColor(kAccent);
  f.shpBox.SetBorderStyle(kDottedBorder);
  f.shpLine.SetBorderColor(kAccent);
  f.lnMX.SetBorderColor(kAccent);
  f.lnMY.SetBorderColor(kAccent);
  f.HairX.SetBorderColor(kHair);
  f.HairY.SetBorderColor(kHair);
  f.shpBox.SetVisible(false);
  f.shpLine.SetVisible(false);
  f.lnMX.SetVisible(false);
  f.lnMY.SetVisible(false);
  for (ScrollBar* bar : {&f.hS1, &f.vS1}) {
    bar->SetRange(0, kScrollEnd);
    bar->SetValue(kScrollMiddle);
    bar->SetSteps(5, 50);
  }
}

void DesignHelpers(FrmMain& f) {
  f.picTemp.SetVisible(false);
  f.imageIcon.SetIcon("application");
  f.Image2.SetIcon("pointer-field");
  f.Image3.SetIcon("pointer-zoom-in");
  f.Image4.SetIcon("pointer-zoom-out");
  f.Image5.SetIcon("pointer-barcode");
  for (Image* icon : {&f.imageIcon, &f.Image1, &f.Image2, &f.Image3, &f.Image4, &f.Image5}) {
    icon->SetVisible(false);
  }
  f.Timer1.SetInterval(1000);
  f.tmrButtons.SetInterval(70);
}

}  // namespace

FrmMain::FrmMain() : Form("frmMain") {
  SetCaption("Tagwright Gold [untitled]");
  SetWidth(19200);
  SetHeight(12300);
  DesignMenus(*this);
  DesignStrip(*this);
  DesignTools(*this);
  DesignBoard(*this);
  DesignHelpers(*this);
}

FrmMain frmMain;

}  // namespace tagwright
