// Menus and their entries.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace tagwright {

// A menu entry, with its submenu. `Checked` raises nothing.
class Menu : public Control {
 public:
  // A top-level menu of `form`, or an entry of `parent`.
  Menu(Form* form, std::string name);
  Menu(Menu* parent, std::string name, int index = -1,
       std::shared_ptr<ControlEvents> events = nullptr);
  ~Menu() override;
  const std::string& Caption() const { return caption_; }  // empty: as the form file has it
  void SetCaption(std::string value);
  bool Checked() const { return checked_; }
  void SetChecked(bool value);
  const std::vector<Menu*>& Items() const { return items_; }
  Menu* ParentMenu() const { return parent_; }
  // Raises Click; nothing when it, or a menu that it hangs in, is disabled.
  void Press();

 private:
  bool CanPress() const;
  Menu* parent_ = nullptr;
  std::vector<Menu*> items_;
  std::string caption_;
  bool checked_ = false;
};

}  // namespace tagwright
