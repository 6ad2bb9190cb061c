#include "qt/controls/input_codes.h"

#include "platform/controls/mouse.h"

namespace tagwright {
int ButtonCode(Qt::MouseButton button) { return ButtonCodes(Qt::MouseButtons(button)); }

int ButtonCodes(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? kLeftButton : 0) |
         (buttons & Qt::RightButton ? kRightButton : 0) |
         (buttons & Qt::MiddleButton ? kMiddleButton : 0);
}

int ShiftCode(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? kShift : 0) |
         (modifiers & Qt::ControlModifier ? kCtrl : 0) | (modifiers & Qt::AltModifier ? kAlt : 0);
}

int KeyCode(const QKeyEvent& event) {
  const int key = event.key();
  constexpr int kFirstFunctionKey = 112;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return key - Qt::Key_F1 + kFirstFunctionKey;
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  switch (key) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Shift:
      return 16;
    case Qt::Key_Control:
      return 17;
    case Qt::Key_Alt:
      return 18;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Space:
      return 32;
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_End:
      return 35;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Insert:
      return 45;
    case Qt::Key_Delete:
      return 46;
    case Qt::Key_Menu:
      return 93;
    default:
      return 0;
  }
}

bool IsTyping(const QKeyEvent& event) {
  if (event.text().isEmpty() || !event.text().front().isPrint()) return false;
  const bool ctrl = event.modifiers() & Qt::ControlModifier;
  const bool alt = event.modifiers() & Qt::AltModifier;
  return ctrl == alt;  // both together make characters on some keyboards
}

char32_t KeyCharacter(const QKeyEvent& event) {
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return 0;
  switch (event.key()) {
    case Qt::Key_Backspace:
      return kBackspaceKey;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return kReturnKey;
    case Qt::Key_Escape:
      return kEscapeKey;
    default:
      return 0;
  }
}

}  // namespace tagwright
