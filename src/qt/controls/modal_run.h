// Windows and menus that have the user for themselves.
#pragma once

namespace tagwright {

// Stands while a modal window, a message box or a pop-up menu has the user. `Count` says how many
// there have been.
class ModalRun {
 public:
  ModalRun();
  ModalRun(const ModalRun&) = delete;
  ModalRun& operator=(const ModalRun&) = delete;
  static int Count();
};

}  // namespace tagwright
