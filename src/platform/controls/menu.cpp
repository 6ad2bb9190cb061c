#include "platform/controls/menu.h"

#include <utility>
#include <vector>

#include "platform/controls/form.h"

namespace tagwright {

Menu::Menu(Form* form, std::string name) : Control(std::move(name), form, -1, nullptr) {
  form->menus_.push_back(this);
}

Menu::Menu(Menu* parent, std::string name, int index, std::shared_ptr<ControlEvents> events)
    : Control(std::move(name), parent->ParentForm(), index, std::move(events)), parent_(parent) {
  parent->items_.push_back(this);
}

Menu::~Menu() {
  for (Menu* item : items_) item->parent_ = nullptr;
  if (parent_) std::erase(parent_->items_, this);
  if (Form* form = ParentForm()) std::erase(form->menus_, this);
}

void Menu::SetCaption(std::string value) {
  if (value == caption_) return;
  caption_ = std::move(value);
  Notify(Aspect::kText);
}

void Menu::SetChecked(bool value) {
  if (value == checked_) return;
  checked_ = value;
  Notify(Aspect::kValue);
}

bool Menu::CanPress() const { return Enabled() && (!parent_ || parent_->CanPress()); }

void Menu::Press() {
  if (CanPress()) Events().Click.Raise(Index());
}

}  // namespace tagwright
