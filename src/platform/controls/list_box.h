// A list in which the user chooses a row.
#pragma once

#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace tagwright {

class ListBox : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  int ListCount() const { return static_cast<int>(rows_.size()); }
  const std::string& List(int row) const;  // faults 9 outside
  std::string Text() const;                // the chosen row, empty for none
  void AddItem(std::string row);
  void Clear();
  int ListIndex() const { return list_index_; }
  void SetListIndex(int row);  // as ComboBox: Click for each 0 or more, fault 380 outside
  void UserChoose(int row);

 private:
  std::vector<std::string> rows_;
  int list_index_ = -1;
};

}  // namespace tagwright
