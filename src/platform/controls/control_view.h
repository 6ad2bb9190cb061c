// How the toolkit hears what of a control has changed.
#pragma once

namespace tagwright {

class Control;

// What of a control has changed; views redraw just that.
enum class Aspect {
  kGeometry,  // place or size
  kVisible,
  kEnabled,
  kText,       // caption, text, tool tip
  kList,       // rows of a list
  kSelection,  // list index, caret
  kValue,      // check, scroll bar value, menu check, timer
  kLook,       // font, colours, borders, pointer, picture
  kOrder,      // front or back
  kFocus,      // the keyboard went to or from this control
  kScale,      // the container's scale
  kImage,      // the persistent image of a picture box
};

// The toolkit's side of one control. A control without a view works all the same.
class ControlView {
 public:
  virtual ~ControlView() = default;
  // Called after each change, also of a child without a view of its own (then `control` is that
  // child and the view is its container's).
  virtual void Changed(const Control& control, Aspect aspect) = 0;
};

}  // namespace tagwright
