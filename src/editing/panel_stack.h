// The stack of panels above the board: the one in front is the active one. cboFont and cboSize
// belong to no panel and move to the one that needs them.
#pragma once

namespace tagwright {

class PictureBox;

// Left 50, top 0, to the front.
void ShowPanel(PictureBox& panel);

// Where cboFont stands over a panel, twips.
constexpr double kFontTop = 290;
constexpr double kFontLeftOfTexts = 8950;

// cboFont to this place (twips), visible and in front; cboSize follows it.
void ShowFontBoxes(double left, double top);

// Hides both.
void HideFontBoxes();

// The size that cboSize shows, points; 0 for a text that is no number.
double PanelFontSize();

// cboSize under cboFont: same left, 360 twips below its top, same visibility, and if visible in
// front.
void SizeBoxFollowsFontBox();

}  // namespace tagwright
