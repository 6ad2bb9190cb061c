#include "platform/controls/status_bar.h"

#include <utility>

#include "platform/faults/fault.h"

namespace tagwright {

StatusBar::StatusBar(Container* container, std::string name, int panels)
    : Control(container, std::move(name)), panels_(static_cast<std::size_t>(panels)) {}

const std::string& StatusBar::PanelText(int panel) const {
  if (panel < 1 || panel > PanelCount()) RaiseFault(kOutOfBounds);
  return panels_[static_cast<std::size_t>(panel) - 1];
}

void StatusBar::SetPanelText(int panel, std::string value) {
  if (value == PanelText(panel)) return;
  panels_[static_cast<std::size_t>(panel) - 1] = std::move(value);
  Notify(Aspect::kText);
}

}  // namespace tagwright
