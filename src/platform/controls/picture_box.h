// Picture boxes: the board, the preview, and panels that hold other controls.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/controls/container.h"
#include "platform/painting/picture.h"
#include "platform/painting/surface.h"

namespace tagwright {

// A container with a border, and where it has a surface a canvas.
class PictureBox : public Container {
 public:
  PictureBox(Container* container, std::string name, int index = -1);
  Color BackColor() const { return back_color_; }
  void SetBackColor(Color value);

  // The canvas. Without one of the platform's it is a recorder. A surface given is owned and shares
  // this control's scale.
  Surface& Canvas() { return *surface_; }
  void SetCanvas(std::unique_ptr<Surface> surface);
  // The canvas was painted: the view shows it.
  void ImageChanged() { Notify(Aspect::kImage); }

  // Says in words what the box shows, for people who do not see it. Asked when something in it has
  // changed and no handler runs any more; an empty function has nothing to say.
  std::function<std::string()> InWords;

  // A loaded picture, null for none.
  const PicturePtr& Image() const { return picture_; }
  void SetImage(PicturePtr picture);

 protected:
  void SizeChanged() override;

 private:
  std::unique_ptr<Surface> surface_;
  PicturePtr picture_;
  Color back_color_ = 0xFFFFFF;
};

}  // namespace tagwright
