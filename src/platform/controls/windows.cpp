#include "platform/controls/windows.h"

#include <algorithm>

#include "platform/controls/mouse.h"
#include "platform/faults/fault.h"

namespace tagwright {
namespace {

struct OpenWindows {
  WindowService* service = nullptr;
  std::vector<Form*> forms;
  std::vector<const Form*> unloading;
};

// Never destroyed: forms live until the process ends.
OpenWindows& State() {
  static OpenWindows& state = *new OpenWindows;
  return state;
}

bool IsUnloading(const Form& form) {
  return std::count(State().unloading.begin(), State().unloading.end(), &form) > 0;
}

void CheckLoaded(const Form& form) {
  if (!IsLoaded(form)) RaiseFault(kInvalidCall);
}

// Off the list before its views go: what they still report finds no window any more.
void Drop(Form& form) {
  if (std::erase(State().forms, &form) == 0) return;
  form.DropUserActs();
  ForgetAfterHandlers(&form);
  if (State().service) State().service->Destroy(form);
}

bool AsksToStay(Form& form) {
  bool stay = false;
  State().unloading.push_back(&form);
  form.WindowEvents().Unload.Raise(-1, stay);
  std::erase(State().unloading, &form);
  return stay;
}

}  // namespace

void SetWindowService(WindowService* service) { State().service = service; }

const std::vector<Form*>& Forms() { return State().forms; }

bool IsLoaded(const Form& form) {
  return std::count(State().forms.begin(), State().forms.end(), &form) > 0;
}

void windows_detail::Loaded(Form& form) {
  State().forms.push_back(&form);
  if (State().service) State().service->Create(form);
  form.WindowEvents().Load.Raise(-1);
}

void Show(Form& form) {
  CheckLoaded(form);
  form.SetVisible(true);
  State().service ? State().service->Show(form) : form.UserActivate();
}

void ShowModal(Form& form) {
  CheckLoaded(form);
  ModalOpens();
  form.SetVisible(true);
  const ModalLevel level;
  form.SetEventLevel(level.Number());
  State().service ? State().service->RunModal(form) : form.UserActivate();
  form.SetEventLevel(0);
}

bool Unload(Form& form) {
  if (!IsLoaded(form)) return true;
  if (IsUnloading(form) || AsksToStay(form)) return false;
  Drop(form);
  return true;
}

void UserClose(Form& form) {
  AfterHandlers(
      &form, [&form] { Unload(form); }, form.EventLevel());
}

void UnloadAll() {
  while (!State().forms.empty()) Drop(*State().forms.back());
}

void PopupMenu(Form& form, Menu& menu) {
  ModalOpens();
  if (State().service) State().service->PopupMenu(form, menu);
}

void ModalOpens() {
  if (Form* active = ActiveForm()) active->KeyboardLeaves();
  UserButtonsUp();
}

void SendTab() {
  if (State().service) State().service->SendTab();
}

}  // namespace tagwright
