// The keyboard: where it is follows the control model, not the toolkit.
#pragma once

namespace tagwright {

class Form;

// Puts the toolkit's focus where the model has it; to nobody when the model's holder has none.
void FollowFocus(const Form& form);

// While one of these stands the user is moving the keyboard with the tab key or a mnemonic: only
// then is a new focus of the toolkit's the user's doing. It also moves it by itself, when a widget
// is hidden or a window comes back.
class UserMovesFocus {
 public:
  UserMovesFocus();
  ~UserMovesFocus();
  UserMovesFocus(const UserMovesFocus&) = delete;
  UserMovesFocus& operator=(const UserMovesFocus&) = delete;
  static bool UnderWay();
};

}  // namespace tagwright
