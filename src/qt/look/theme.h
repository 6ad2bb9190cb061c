// The look of every window: colours, style sheet, icons and pointers, light and dark.
#pragma once

#include <QColor>
#include <QCursor>
#include <QIcon>
#include <QString>

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

// An icon of the program's own family by its file name without ending; drawn at any size in the
// colours of the theme in force at that moment. Null when there is none of that name.
QIcon ThemedIcon(const QString& name);

// A pointer drawn from an icon, sharp at `device_pixel_ratio`; "pointer-zoom-in" and
// "pointer-zoom-out" point with the centre of their lens, others with the centre of their cross.
QCursor IconPointer(const QString& name, qreal device_pixel_ratio);

// The pointer for one of the codes of Control::SetMousePointer (99 is IconPointer's work).
Qt::CursorShape PointerShape(int code);

}  // namespace tagwright
