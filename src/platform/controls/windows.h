// Windows come and go here: load with fresh values, show, show modally, unload with a veto.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/controls/form.h"

namespace tagwright {

class Menu;

// What the toolkit does for windows; without one (in tests) forms live as models only.
class WindowService {
 public:
  virtual ~WindowService() = default;
  virtual void Create(Form& form) = 0;    // makes the views of a freshly loaded form
  virtual void Show(Form& form) = 0;      // activates it
  virtual void RunModal(Form& form) = 0;  // shows it over the active window; back when it is gone
  virtual void Destroy(Form& form) = 0;   // drops the views
  virtual void PopupMenu(Form& form, Menu& menu) = 0;  // at the pointer; back when it closed
  virtual void SendTab() = 0;                          // the keystroke {TAB}
};

void SetWindowService(WindowService* service);  // not owned; null: none

// The loaded forms, in the order of loading.
const std::vector<Form*>& Forms();
bool IsLoaded(const Form& form);

// Binds a form's events after its values are fresh; one slot per form type, filled at start-up.
template <class F>
inline void (*WireForm)(F& form) = nullptr;

namespace windows_detail {
void Loaded(Form& form);
}

// Gives `form` fresh design values, binds its events, makes its views and raises Load. Nothing when
// it is loaded already.
template <class F>
void Load(F& form) {
  if (IsLoaded(form)) return;
  std::destroy_at(&form);
  std::construct_at(&form);
  if (WireForm<F>) WireForm<F>(form);
  windows_detail::Loaded(form);
}

// Shows a loaded form, which makes it the active one. Faults 5 when it is not loaded.
void Show(Form& form);
// Returns when the form is unloaded or hidden. Handlers of other windows do not run meanwhile: what
// the user does to them waits or is dropped. Faults 5 when it is not loaded. Without a service it
// returns at once.
void ShowModal(Form& form);
// Raises Unload; returns false and keeps the form when the handler cancelled, or when the form is
// being unloaded already. True when it is not loaded.
bool Unload(Form& form);
// The user closes the window (its frame's button, the session's end): Unload, which while a handler
// of its level runs waits until that is done.
void UserClose(Form& form);
// Drops every form without asking: tests and the end of the program.
void UnloadAll();

// Pops up a menu at the pointer and returns when it is closed; the chosen entry's Click has run.
void PopupMenu(Form& form, Menu& menu);

// To be called before a modal window, a message box or a pop-up menu opens (ShowModal, PopupMenu
// and the dialogs do). Keys held in the active window end there: it raises KeyUp. A press under way
// will lose its release to the new window: MouseUp follows, where the pointer was last seen, as
// soon as the handler that opened it is done.
void ModalOpens();

// Types the tab key, which leaves the present control.
void SendTab();

}  // namespace tagwright
