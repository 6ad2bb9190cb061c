// The bar of texts at the foot of a window.
#pragma once

#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace tagwright {

// Panels are numbered from 1.
class StatusBar : public Control {
 public:
  StatusBar(Container* container, std::string name, int panels);
  int PanelCount() const { return static_cast<int>(panels_.size()); }
  const std::string& PanelText(int panel) const;    // faults 9 outside
  void SetPanelText(int panel, std::string value);  // likewise

 private:
  std::vector<std::string> panels_;
};

}  // namespace tagwright
