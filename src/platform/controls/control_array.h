// Control arrays: controls of one name, told apart by their index.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/controls/control_events.h"
#include "platform/faults/fault.h"

namespace tagwright {

// Elements addressed by index, sharing one set of events. Elements keep their addresses.
template <class T>
class ControlArray {
 public:
  // `count` elements, 0 to count - 1, exist by design.
  template <class Parent>
  ControlArray(Parent* parent, std::string name, int count) : name_(std::move(name)) {
    make_ = [parent](const std::string& n, int i, std::shared_ptr<ControlEvents> e) {
      return std::make_unique<T>(parent, n, i, std::move(e));
    };
    for (int i = 0; i < count; ++i) Make(i);
  }

  // The element; faults 340 when it was never created.
  T& operator()(int index) const {
    if (!Exists(index)) RaiseFault(kMissingElement);
    return *by_index_[static_cast<std::size_t>(index)];
  }
  bool Exists(int index) const {
    return index >= 0 && static_cast<std::size_t>(index) < by_index_.size() &&
           by_index_[static_cast<std::size_t>(index)] != nullptr;
  }
  // Creates element `index`: a fresh control, hidden until a routine shows it. Faults 380 when it
  // exists, 9 outside 0 to 32767.
  T& Load(int index) {
    if (index < 0 || index > kMaxIndex) RaiseFault(kOutOfBounds);
    if (Exists(index)) RaiseFault(kBadValue);
    T& element = Make(index);
    element.SetVisible(false);
    return element;
  }
  int Count() const { return static_cast<int>(elements_.size()); }
  int UBound() const { return elements_.empty() ? -1 : elements_.rbegin()->first; }
  const std::string& Name() const { return name_; }
  ControlEvents& Events() const { return *events_; }

  // Pairs of index and element, by rising index.
  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

 private:
  static constexpr int kMaxIndex = 32767;

  T& Make(int index) {
    std::unique_ptr<T> made = make_(name_, index, events_);
    if (static_cast<std::size_t>(index) >= by_index_.size()) {
      by_index_.resize(static_cast<std::size_t>(index) + 1);
    }
    T& element = *made;
    elements_.emplace_hint(elements_.end(), index, std::move(made));
    by_index_[static_cast<std::size_t>(index)] = &element;
    return element;
  }

  std::string name_;
  std::shared_ptr<ControlEvents> events_ = std::make_shared<ControlEvents>();
  std::function<std::unique_ptr<T>(const std::string&, int, std::shared_ptr<ControlEvents>)> make_;
  std::map<int, std::unique_ptr<T>> elements_;
  std::vector<T*> by_index_;  // each press and redraw asks by index: no search
};

}  // namespace tagwright
