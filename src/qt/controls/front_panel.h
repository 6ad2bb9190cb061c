// Panels that lie upon each other: the control model brings one to the front.
#pragma once

class QStackedWidget;

namespace tagwright {

class Container;

// Shows in `stack` the panel of `container` that the model has in front, takes what floats from
// panel to panel along, and lets the keyboard follow. What floats has the property "floats" in the
// form file, and where it lies in a panel, "takesFloating".
void ShowFrontPanel(QStackedWidget& stack, const Container& container);

}  // namespace tagwright
