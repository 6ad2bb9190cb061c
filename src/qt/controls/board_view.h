// The board: shows the persistent picture of a picture box and paints its labels, shapes and lines
// over it. A label of a thousand objects costs no widgets.
#pragma once

#include <QRegion>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "platform/controls/control.h"
#include "platform/controls/control_view.h"
#include "platform/controls/picture_box.h"

namespace tagwright {

class ImageSurface;

class BoardView : public QWidget, public ControlView {
 public:
  explicit BoardView(QWidget* parent = nullptr);
  ~BoardView() override;

  // Shows `box`, whose canvas becomes a picture in memory at this screen's resolution.
  void Attach(PictureBox& box);

  void Changed(const Control& control, Aspect aspect) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Place();
  void Touch(const Control& child);
  void FollowScreen();
  void SpeakSoon();
  void Speak();
  std::vector<const Control*> PaintedChildren(const QRect& area) const;

  PictureBox* box_ = nullptr;
  ImageSurface* surface_ = nullptr;
  // What each child covered at its last painting: what has to be painted anew when it leaves.
  std::unordered_map<const Control*, QRegion> painted_;
  bool speech_is_due_ = false;
};

}  // namespace tagwright

// The form compiler names classes without their namespace.
using tagwright::BoardView;
