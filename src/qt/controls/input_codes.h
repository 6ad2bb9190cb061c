// Keys and mouse buttons of the toolkit in the codes of the control model.
#pragma once

#include <QKeyEvent>
#include <Qt>

namespace tagwright {

int ButtonCode(Qt::MouseButton button);
int ButtonCodes(Qt::MouseButtons buttons);
int ShiftCode(Qt::KeyboardModifiers modifiers);

// The virtual key code of the control model for a key of the toolkit's; 0 for one without.
int KeyCode(const QKeyEvent& event);

// The keys that handlers know as characters.
constexpr char32_t kBackspaceKey = 8;
constexpr char32_t kReturnKey = 13;
constexpr char32_t kEscapeKey = 27;

// Whether the key enters characters.
bool IsTyping(const QKeyEvent& event);

// The character that handlers know a key by that enters none; 0 for all but those above.
char32_t KeyCharacter(const QKeyEvent& event);

}  // namespace tagwright
