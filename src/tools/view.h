// How the label is shown on picBoard: zoom, scrolling, cross hairs, rulers and the user's unit.
//
// One board unit is one millimetre of label at the present zoom, so a larger board shows more of
// the label, not a larger one.
#pragma once

#include <string_view>

#include "document/objects.h"

namespace tagwright {

// The working flag of the cross hairs: the settings' at start, then chkXHair's value.
inline std::int16_t CrossHairsShown = kTrue;

// --- zoom ---------------------------------------------------------------------------------------

// Adds the percentages that cboZoom offers, and ticks chkXHair.
void FillZoomList();

// The factor of a text that ends in "%": the number before it over 100. 0 for any other text.
double ParsePercent(std::string_view text);

// The board's scale for the present ZoomFactor: its size in millimetres over the factor. A factor
// that gives no scale leaves the old one.
void ScaleBoardToZoom();

// Takes ZoomFactor from the combo, scales the board, makes it the DrawTarget and redraws; the
// selection stays marked and the pointer goes back to default.
void cboZoom_Click();

// The factor in cboZoom's text: the number before its last character over 100. Faults 5 when the
// text is empty.
double ZoomOfCombo();

// The board's own size, millimetres on screen.
double BoardWidth();
double BoardHeight();

// Chooses the row of cboZoom that is not above this factor while the next one is above it, which
// zooms. False, and nothing done, when there is none: the last row only ever ends a pair.
bool SelectZoomRow(double zoom);

// Both scroll bars to their middle, where the label stands centred on the board.
void CentreLabel();

// The flyout's buttons: 0 to 2 FitZoom(Index), 3 back to 100 % in the middle, 4 leaves the zoom.
// Hides picMag.
void cmdMagnify_Click(int Index);

// Zooms to the row of cboZoom under which the label fits: `mode` 0 its longer side, 1 its height,
// 2 its width. A label whose width (or height) already takes 90 to 100 % of the board is left
// alone, and so is the zoom when no row brackets the factor. Unless it is left alone for its size
// the selection ends.
void FitZoom(int mode);

// --- scrolling ----------------------------------------------------------------------------------

void cmdXC_Click();  // both bars to their middle, one redraw, the keyboard to the board
void hS1_Change();   // redraw, the frame of a group too
void vS1_Change();
void hS1_GotFocus();  // the keyboard goes on to the board
void vS1_GotFocus();

// --- cross hairs and rulers ---------------------------------------------------------------------

// Shows or hides the lines. mnuOptXHair and the settings stay as they are: the next move of the
// mouse over the board shows the lines again while that entry is checked.
void chkXHair_Click();

// Turns the entry's check over, shows or hides the lines and keeps the state in the settings.
void mnuOptXHair_Click();

// Turns the entry's check over, redraws and keeps the state in the settings.
void mnuFileRulers_Click();

// --- unit ---------------------------------------------------------------------------------------

// UnitScale, RulerScale and the checks of mnuUnitMM and mnuUnitIn.
void UseMillimetres();
void UseInches();

// Changes the unit and keeps it in the settings: redraws, shows the selection's place and size in
// the unit and rebuilds the layout list, which selects the default layout and so gives the label
// its size. A length that is being typed is taken first, in the unit in which it was begun.
void mnuUnitMM_Click();
void mnuUnitIn_Click();

// This module's state as at program start.
void ResetView();

}  // namespace tagwright
