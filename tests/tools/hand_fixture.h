// The whole window with all its events bound, a label on its board, and what hands do there.
#pragma once

#include <cstdio>
#include <string>

#include "editing/editing_support.h"
#include "platform/painting/picture.h"
#include "shell/wiring.h"
#include "tools/barcode_panel.h"
#include "tools/placement.h"
#include "tools/rule_drag.h"
#include "tools/tool_buttons.h"

namespace tagwright {

// Millimetres of a text in the fixed fonts: a character is half its size wide, a line 1.1 of it
// high.
inline double TextWidthOf(int characters, double points) {
  return characters * points / 2 * 25.4 / 72;
}
inline double LineHeightOf(double points) { return 1.1 * points * 25.4 / 72; }

class HandTest : public EditingTest {
 protected:
  HandTest() {
    ResetPlacement();
    ResetRuleDrag();
    ResetBarcodePanel();
    ResetToolButtons();
    FillLists();
    WireMainWindow(frmMain);
    frmMain.WindowEvents().Unload = [](bool&) {};
    PaintBarcode = nullptr;
    SetPictureReader(ReadPicture);
    frmMain.lblFCol(6).SetBackColor(0);
    frmMain.lblBCol(6).SetBackColor(0xFFFFFF);
    CurrentTool = 0;
    DirtyFlag = kFalse;
    RedrawBoard();
  }
  ~HandTest() override { SetPictureReader(nullptr); }

  // Pictures of these tests: the natural size in words, "bad" is unreadable.
  static PicturePtr ReadPicture(const std::string& bytes, std::string_view) {
    double width = 0, height = 0;
    if (std::sscanf(bytes.c_str(), "%lf %lf", &width, &height) != 2) return nullptr;
    return BlankPicture(width, height);
  }

  static void ChooseFontAndSize(int font_row, const std::string& size) {
    frmMain.cboFont.SetListIndex(font_row);
    for (int row = 0; row < frmMain.cboSize.ListCount(); ++row) {
      if (frmMain.cboSize.List(row) == size) frmMain.cboSize.SetListIndex(row);
    }
  }

  // A place on the label, as the mouse sees it.
  static void DragOnLabel(double x, double y, double to_x, double to_y) {
    Drag(x + BoardOriginX, y + BoardOriginY, to_x + BoardOriginX, to_y + BoardOriginY);
  }
  static void ClickOnLabel(double x, double y) { Click(x + BoardOriginX, y + BoardOriginY); }

  static const PictureBox& FrontPanel() {
    const PictureBox* front = &frmMain.picProperties;
    for (const PictureBox* panel :
         {&frmMain.picText, &frmMain.picBCode, &frmMain.picDrawing, &frmMain.picPicture,
          &frmMain.picFields, &frmMain.picPrint, &frmMain.picSellAll}) {
      if (panel->Order() > front->Order()) front = panel;
    }
    return *front;
  }

  static std::string SizeFields() {
    std::string shown;
    for (const auto& [index, field] : frmMain.txtDSize) shown += field->Text() + " ";
    return shown;
  }

  template <class Field>
  static void TypeInto(Field& field, const std::string& text) {
    field.UserFocus();
    field.SetText("");
    field.UserType(text);
  }

 private:
  static void FillLists() {
    frmMain.cboFont.Clear();
    for (const char* name : {"Arial", "Courier New", "Times New Roman"}) {
      frmMain.cboFont.AddItem(name);
    }
    frmMain.cboSize.Clear();
    for (int n = 6; n <= 14; ++n) frmMain.cboSize.AddItem(std::to_string(n));
    for (int n = 16; n <= 48; n += 2) frmMain.cboSize.AddItem(std::to_string(n));
    for (int n = 0; n <= 10; ++n) frmMain.cboWeight.AddItem(std::to_string(n));
    for (int n = 20; n <= 150; n += 10) frmMain.cboZoom.AddItem(std::to_string(n) + "%");
    for (int n = 175; n <= 250; n += 25) frmMain.cboZoom.AddItem(std::to_string(n) + "%");
    for (int n = 300; n <= 750; n += 50) frmMain.cboZoom.AddItem(std::to_string(n) + "%");
    for (int n = 0; n <= 13; ++n) frmMain.cboBCode.AddItem("format " + std::to_string(n));
    frmMain.cboFont.SetListIndex(0);
    frmMain.cboSize.SetListIndex(6);
    frmMain.cboWeight.SetListIndex(1);
    frmMain.cboZoom.SetListIndex(8);
  }
};

}  // namespace tagwright
