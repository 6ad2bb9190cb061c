// What a gesture with a zoom tool does to the view. Both keep the tool armed and its pointer shown.
#pragma once

namespace tagwright {

// A click: CurrentTool 30 half as large again, 31 down to three quarters, at the row of cboZoom
// below that factor, with AnchorX, AnchorY in the middle of the view. Where no row brackets the
// factor the zoom stays and the tool is disarmed.
void ZoomAtAnchor();

// A drag, with either tool: what shpBox frames fills the view as far as the row of cboZoom below
// the fitting factor allows, the last row where none brackets it. A box that is narrower (lower)
// than the label has its left side (top) at the view's.
void ZoomToBox();

}  // namespace tagwright
