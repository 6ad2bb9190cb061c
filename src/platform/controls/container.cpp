#include "platform/controls/container.h"

#include <utility>

#include "platform/controls/erase_last.h"

namespace tagwright {

Container::~Container() {
  for (Control* child : children_) child->container_ = nullptr;
}

void Container::Adopt(Control* child) {
  children_.push_back(child);
  child->order_ = ++front_;
}

void Container::Release(Control* child) {
  EraseLast(children_, child);
  if (focus_stand_in_ == child) focus_stand_in_ = nullptr;
}

template <class Change>
void Container::ChangeScale(Change&& change) {
  const double unit_x = scale_.UnitX();
  const double unit_y = scale_.UnitY();
  std::forward<Change>(change)();
  const double factor_x = unit_x / scale_.UnitX();
  const double factor_y = unit_y / scale_.UnitY();
  if (factor_x != 1 || factor_y != 1) {
    for (Control* child : children_) child->Rescaled(factor_x, factor_y);
  }
  Notify(Aspect::kScale);
}

void Container::SetScaleMode(int code) {
  ChangeScale([&] { scale_.SetScaleMode(code); });
}

void Container::SetScaleWidth(double units) {
  ChangeScale([&] { scale_.SetScaleWidth(units); });
}

void Container::SetScaleHeight(double units) {
  ChangeScale([&] { scale_.SetScaleHeight(units); });
}

void Container::ResizeScale(double width_twips, double height_twips) {
  ChangeScale([&] { scale_.Resize(width_twips, height_twips); });
}

// The cheap questions first: a label with ten thousand objects is searched at every move. No
// point lies within bounds that are no numbers.
Control* Container::ChildAt(double x_twips, double y_twips) const {
  const double x = x_twips / scale_.UnitX();
  const double y = y_twips / scale_.UnitY();
  Control* found = nullptr;
  for (Control* child : children_) {
    if (!child->visible_ || !child->enabled_) continue;
    if (!(x >= child->left_ && x < child->left_ + child->width_)) continue;
    if (!(y >= child->top_ && y < child->top_ + child->height_)) continue;
    if (found && found->order_ > child->order_) continue;
    if (child->TakesMouse()) found = child;
  }
  return found;
}

}  // namespace tagwright
