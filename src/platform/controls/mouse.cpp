#include "platform/controls/mouse.h"

#include <bit>
#include <vector>

#include "platform/controls/form.h"

namespace tagwright {
namespace {

// A press under way. Usually there is one at most; there are two when a handler of the first has
// opened a modal window and the user presses there.
struct MousePress {
  Control* surface;     // whose view reports the mouse
  Control* target;      // who gets the events: the surface itself or a child
  int buttons;          // those that are down
  int released = 0;     // those of them whose MouseUp is still to be raised
  int shift = 0;        // at the release
  double x = 0, y = 0;  // where the pointer was seen last, in twips from the surface's corner
};

// Never destroyed, since forms that live until the process ends still look into it.
std::vector<MousePress>& Presses() {
  static std::vector<MousePress>& presses = *new std::vector<MousePress>;
  return presses;
}

MousePress* PressOn(const Control* surface) {
  for (MousePress& press : Presses()) {
    if (press.surface == surface) return &press;
  }
  return nullptr;
}

void ReleaseEverywhere(const Control* except) {
  const std::vector<MousePress> presses = Presses();  // a release takes its press off the list
  for (const MousePress& press : presses) {
    if (press.surface == except) continue;
    for (int button = kLeftButton; button <= kMiddleButton; button <<= 1) {
      if (press.released & button) continue;
      press.surface->UserMouseUp(button, 0, press.x, press.y);
    }
  }
}

}  // namespace

void UserButtonsUp() { ReleaseEverywhere(nullptr); }

// All buttons that are up by the time the handlers are done come up together then.
void Control::UserMouseUp(int button, int shift, double x_twips, double y_twips) {
  MousePress* press = PressOn(this);
  if (!press || !(press->buttons & button)) return;
  press->released |= button;
  press->shift = shift;
  press->x = x_twips;
  press->y = y_twips;
  AfterHandlers(
      ReleaseKey(), [surface = this] { DeliverReleases(surface); }, WaitLevel());
}

// The surface may be gone by now, and its press with it: it is only looked for until there is one.
void Control::DeliverReleases(Control* surface) {
  MousePress* press = PressOn(surface);
  while (press && press->released) {
    const int button = 1 << std::countr_zero(static_cast<unsigned>(press->released));
    const MousePress before = *press;
    press->buttons &= ~button;
    press->released &= ~button;
    if (press->buttons == 0) surface->ForgetPress();
    surface->RaiseMouse(*before.target, &ControlEvents::MouseUp, button, before.shift, before.x,
                        before.y);
    press = PressOn(surface);  // the handler may have ended it
  }
}

void Control::ForgetPress() {
  std::erase_if(Presses(), [this](const MousePress& press) {
    return press.surface == this || press.target == this;
  });
}

// Mice have more buttons than handlers know. Those would be down and never up.
void Control::UserMouseDown(int button, int shift, double x_twips, double y_twips) {
  if (button == 0 || Waits() || !IsUsable()) return;
  ReleaseEverywhere(this);  // a press elsewhere can only have lost its release
  if (const MousePress* lost = PressOn(this)) UserMouseUp(button, shift, lost->x, lost->y);
  Control& target = MouseTarget(x_twips, y_twips);
  if (!PressOn(this)) Presses().push_back({this, &target, 0});
  MousePress& press = *PressOn(this);
  press.buttons |= button;
  press.x = x_twips;
  press.y = y_twips;
  // Focus and MouseDown are one event: what waits for its end must not come between the two.
  RunHandler([&] {
    Control* focus = target.FocusTarget();
    if (focus && focus->CanTakeFocus()) focus->SetFocus();
    // A LostFocus may have taken the target, or its whole window, away.
    const MousePress* now = PressOn(this);
    if (!now || now->target != &target) return;
    RaiseMouse(target, &ControlEvents::MouseDown, button, shift, x_twips, y_twips);
  });
}

void Control::UserMouseMove(int button, int shift, double x_twips, double y_twips) {
  if (Waits() || !IsUsable()) return;
  if (MousePress* press = PressOn(this)) {
    press->x = x_twips;
    press->y = y_twips;
  }
  Control& target = MouseTarget(x_twips, y_twips);
  RaiseMouse(target, &ControlEvents::MouseMove, button, shift, x_twips, y_twips);
}

void Control::UserMouseWheel(int shift, double left, double up, double x_twips, double y_twips) {
  if (Waits() || !IsUsable() || PressOn(this)) return;
  Events().MouseWheel.Raise(index_, shift, left, up, x_twips / MouseUnitX(),
                            y_twips / MouseUnitY());
}

void Control::RaiseMouse(Control& target, MouseEvent event, int button, int shift, double x_twips,
                         double y_twips) {
  const double left = &target == this ? 0 : target.LeftTwips();
  const double top = &target == this ? 0 : target.TopTwips();
  (target.events_.get()->*event)
      .Raise(target.index_, button, shift, (x_twips - left) / target.MouseUnitX(),
             (y_twips - top) / target.MouseUnitY());
}

Control* Container::Captured() const {
  const MousePress* press = PressOn(this);
  return press ? press->target : nullptr;
}

Control& Container::MouseTarget(double x_twips, double y_twips) {
  if (Control* captured = Captured()) return *captured;
  Control* child = ChildAt(x_twips, y_twips);
  return child ? *child : *this;
}

void Form::DropPresses() {
  const std::vector<MousePress> presses = Presses();
  for (const MousePress& press : presses) {
    if (press.surface->ParentForm() == this) press.surface->ForgetPress();
  }
}

}  // namespace tagwright
