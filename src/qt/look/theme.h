// The look of every window: its colours, light and dark.
#pragma once

#include <QColor>

class QApplication;

namespace tagwright {

// The colours of one of the two looks. All that is painted takes them from here.
struct Theme {
  QColor window;      // behind everything
  QColor card;        // the strip, the tool column, menus
  QColor border;      // around cards
  QColor field;       // inside text fields and lists
  QColor field_rim;   // around them
  QColor sample_rim;  // around samples of colours, which may be like the card
  QColor hover;       // a button under the pointer
  QColor pressed;     // and pressed
  QColor text;        // texts and icons
  QColor muted;       // captions
  QColor accent;      // the one colour: selection, focus, ticks, the second tone of icons
  QColor on_accent;   // text on it
  QColor soft;        // a selected row
  bool dark = false;
};

const Theme& LightTheme();
const Theme& DarkTheme();

// The one in force.
const Theme& CurrentTheme();

// Sets palette, style and style sheet of the whole program and repaints its windows.
void UseTheme(QApplication& application, const Theme& theme);

// Takes the light or dark look as the desktop's palette asks, now and whenever that changes.
void FollowDesktopTheme(QApplication& application);

// How much of an icon that cannot be used is left, and about as much of a text: 0 to 1.
constexpr double kFadedOpacity = 0.36;

// The colour of texts that cannot be used.
QColor FadedText(const Theme& theme);

}  // namespace tagwright
