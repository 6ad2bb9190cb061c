// Lists of controls in the order in which they came: what goes came last for the most part.
#pragma once

#include <algorithm>
#include <iterator>

namespace tagwright {

// Takes the last entry that is `element` out of `list`, looking from the end. Nothing without one.
template <class List, class Element>
void EraseLast(List& list, const Element* element) {
  const auto found = std::find(list.rbegin(), list.rend(), element);
  if (found != list.rend()) list.erase(std::next(found).base());
}

}  // namespace tagwright
