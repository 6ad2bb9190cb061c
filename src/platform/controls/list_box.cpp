#include "platform/controls/list_box.h"

#include <utility>

#include "platform/faults/fault.h"

namespace tagwright {

const std::string& ListBox::List(int row) const {
  if (row < 0 || row >= ListCount()) RaiseFault(kOutOfBounds);
  return rows_[static_cast<std::size_t>(row)];
}

std::string ListBox::Text() const { return list_index_ < 0 ? std::string() : List(list_index_); }

void ListBox::AddItem(std::string row) {
  rows_.push_back(std::move(row));
  Notify(Aspect::kList);
}

void ListBox::Clear() {
  rows_.clear();
  list_index_ = -1;
  Notify(Aspect::kList);
}

void ListBox::SetListIndex(int row) {
  if (row < -1 || row >= ListCount()) RaiseFault(kBadValue);
  list_index_ = row;
  Notify(Aspect::kSelection);
  if (row >= 0) Events().Click.Raise(Index());
}

void ListBox::UserChoose(int row) {
  if (Waits() || !IsUsable() || row < 0 || row >= ListCount()) return;
  SetListIndex(row);
}

}  // namespace tagwright
