#include "qt/controls/board_view.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>
#include <string_view>
#include <utility>

#include "platform/controls/form.h"
#include "platform/controls/label.h"
#include "platform/controls/mouse.h"
#include "platform/controls/shapes.h"
#include "qt/controls/control_widgets.h"
#include "qt/controls/focus.h"
#include "qt/controls/input_codes.h"
#include "qt/controls/units.h"
#include "qt/fonts/text_painting.h"
#include "qt/look/colors.h"
#include "qt/painting/image_surface.h"
#include "qt/painting/screen_pixels.h"

namespace tagwright {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr double kPenWidth = 1;  // of all that is painted over the picture
constexpr double kWheelNotch = 120;
constexpr int kSolid = 1;  // border styles
constexpr int kDots = 3;
constexpr int kOval = 2;
constexpr int kRounded = 4;

// --- what a child covers ------------------------------------------------------------------------

bool PaintsNothing(const Label& label) {
  return label.Caption().empty() && label.BackStyle() == 0 && label.BorderStyle() == 0;
}

// A file can put an object anywhere: what lies far off the board is painted at its edge of the
// world, which no screen shows. A number that is none lies there too.
double OnBoard(double pixels) {
  constexpr double kFar = 100000;
  return std::isnan(pixels) ? kFar : std::clamp(pixels, -kFar, kFar);
}

QRectF BoxOf(const Control& child) {
  const double left = child.LeftTwips() / kTwipsPerPixel;
  const double top = child.TopTwips() / kTwipsPerPixel;
  const double right = left + std::max(child.WidthTwips(), 0.0) / kTwipsPerPixel;
  const double bottom = top + std::max(child.HeightTwips(), 0.0) / kTwipsPerPixel;
  return QRectF(QPointF(OnBoard(left), OnBoard(top)), QPointF(OnBoard(right), OnBoard(bottom)));
}

QLineF LineOf(const LineControl& line) {
  const double unit_x = line.Parent()->Scale().UnitX() / kTwipsPerPixel;
  const double unit_y = line.Parent()->Scale().UnitY() / kTwipsPerPixel;
  return {OnBoard(line.X1() * unit_x), OnBoard(line.Y1() * unit_y), OnBoard(line.X2() * unit_x),
          OnBoard(line.Y2() * unit_y)};
}

// What has to be painted when the child comes, goes or moves; empty for one that paints nothing.
QRect AreaOf(const Control& child) {
  constexpr int kPen = 2;
  if (!child.Visible() || child.View()) return {};
  QRectF box;
  if (const auto* label = dynamic_cast<const Label*>(&child)) {
    if (PaintsNothing(*label)) return {};
    box = BoxOf(child);
  } else if (const auto* line = dynamic_cast<const LineControl*>(&child)) {
    const QLineF at = LineOf(*line);
    box = QRectF(at.p1(), at.p2()).normalized();
  } else if (dynamic_cast<const Shape*>(&child)) {
    box = BoxOf(child);
  } else {
    return {};
  }
  return box.toAlignedRect().adjusted(-kPen, -kPen, kPen, kPen);
}

// Of that, what it really paints: the inside of a frame, which may be as large as the label, stays.
QRegion CoverOf(const Control& child) {
  constexpr int kOutline = 6;
  const QRect area = AreaOf(child);
  const auto* shape = dynamic_cast<const Shape*>(&child);
  if (!shape || shape->ShapeCode() == kOval || shape->ShapeCode() == kRounded) return area;
  return QRegion(area) - area.adjusted(kOutline, kOutline, -kOutline, -kOutline);
}

// --- painting -----------------------------------------------------------------------------------

// A painter on a screen of so many pixels of its own to a logical one, as the picture beneath.
struct BoardPainter {
  QPainter& painter;
  double ratio;

  // On whole pixels, so that a thin line is crisp, and on those that the picture takes for the
  // same place.
  QPointF OnPixel(const QPointF& point) const {
    return {OnScreenPixel(point.x(), kPenWidth, ratio), OnScreenPixel(point.y(), kPenWidth, ratio)};
  }
};

QPen OutlinePen(Color color, int border_style) {
  QPen pen(ToQColor(color), kPenWidth, border_style == kDots ? Qt::CustomDashLine : Qt::SolidLine,
           Qt::FlatCap);
  if (border_style == kDots) pen.setDashPattern({2.0, 2.0});
  return pen;
}

// Dots are seen on every ground: white between them.
template <class Draw>
void DrawOutline(QPainter& painter, Color color, int border_style, Draw&& draw) {
  if (border_style == 0) return;
  if (border_style == kDots) {
    painter.setPen(QPen(Qt::white, kPenWidth));
    draw();
  }
  painter.setPen(OutlinePen(color, border_style));
  draw();
}

double LineLeft(const Label& label, const QRectF& box, std::string_view line) {
  const double width = Fonts().Width(line, label.Font()) * kPixelsPerPoint;
  switch (label.Alignment()) {
    case TextAlignment::kRight:
      return box.right() - width;
    case TextAlignment::kCenter:
      return box.left() + (box.width() - width) / 2;
    default:
      return box.left();
  }
}

void PaintCaption(QPainter& painter, const Label& label, const QRectF& box) {
  const double ascent = Fonts().Ascent(label.Font()) * kPixelsPerPoint;
  const double height = ascent + Fonts().Descent(label.Font()) * kPixelsPerPoint;
  double top = box.top();
  std::string_view rest = label.Caption();
  while (true) {
    const std::size_t end = rest.find_first_of("\r\n");
    const std::string_view line = rest.substr(0, end);
    PaintText(painter, LineLeft(label, box, line), top + ascent, line, label.Font(),
              label.ForeColor(), kTwipsPerInch / kTwipsPerPixel);
    if (end == std::string_view::npos) return;
    rest.remove_prefix(end + (rest.substr(end, 2) == "\r\n" ? 2 : 1));
    top += height;
  }
}

// Border and ground on the same pixels, wherever between two of them the label lies.
void PaintBordered(const BoardPainter& on, const Label& label, const QRectF& box) {
  QPainter& painter = on.painter;
  painter.setPen(QPen(ToQColor(label.ForeColor()), kPenWidth));
  if (label.BackStyle() != 0) painter.setBrush(ToQColor(label.BackColor()));
  painter.drawRect(QRectF(on.OnPixel(box.topLeft()),
                          on.OnPixel(box.bottomRight()) - QPointF(kPenWidth, kPenWidth)));
  painter.setBrush(Qt::NoBrush);
}

void PaintLabel(const BoardPainter& on, const Label& label) {
  QPainter& painter = on.painter;
  const QRectF box = BoxOf(label);
  if (label.BorderStyle() != 0) {
    PaintBordered(on, label, box);
  } else if (label.BackStyle() != 0) {
    painter.fillRect(box, ToQColor(label.BackColor()));
  }
  if (label.Caption().empty()) return;
  painter.save();
  painter.setClipRect(box, Qt::IntersectClip);
  PaintCaption(painter, label, box);
  painter.restore();
}

void PaintShape(const BoardPainter& on, const Shape& shape) {
  QPainter& painter = on.painter;
  const QRectF real = BoxOf(shape);
  const QRectF box(on.OnPixel(real.topLeft()), on.OnPixel(real.bottomRight()));
  const double corner = shape.CornerSize() / 2;
  painter.setRenderHint(QPainter::Antialiasing, shape.ShapeCode() != 0);
  DrawOutline(painter, shape.BorderColor(), shape.BorderStyle(), [&] {
    if (shape.ShapeCode() == kOval) {
      painter.drawEllipse(box);
    } else if (shape.ShapeCode() == kRounded) {
      painter.drawRoundedRect(box, corner, corner);
    } else {
      painter.drawRect(box);
    }
  });
  painter.setRenderHint(QPainter::Antialiasing, false);
}

void PaintLine(const BoardPainter& on, const LineControl& line) {
  QPainter& painter = on.painter;
  const QLineF at = LineOf(line);
  const bool straight = at.x1() == at.x2() || at.y1() == at.y2();
  painter.setRenderHint(QPainter::Antialiasing, !straight);
  DrawOutline(painter, line.BorderColor(), kSolid,
              [&] { painter.drawLine(QLineF(on.OnPixel(at.p1()), on.OnPixel(at.p2()))); });
  painter.setRenderHint(QPainter::Antialiasing, false);
}

void PaintChild(const BoardPainter& on, const Control& child) {
  on.painter.setBrush(Qt::NoBrush);
  if (const auto* label = dynamic_cast<const Label*>(&child)) return PaintLabel(on, *label);
  if (const auto* shape = dynamic_cast<const Shape*>(&child)) return PaintShape(on, *shape);
  if (const auto* line = dynamic_cast<const LineControl*>(&child)) PaintLine(on, *line);
}

double PointX(const QMouseEvent& event) { return event.position().x() * kTwipsPerPixel; }
double PointY(const QMouseEvent& event) { return event.position().y() * kTwipsPerPixel; }

}  // namespace

BoardView::BoardView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::TabFocus);
}

BoardView::~BoardView() { ForgetAfterHandlers(&speech_is_due_); }

void BoardView::Attach(PictureBox& box) {
  auto surface = std::make_unique<ImageSurface>(devicePixelRatioF());
  surface_ = surface.get();
  surface_->BackColor = box.BackColor();
  box.SetCanvas(std::move(surface));
  box_ = &box;
  box.AttachView(this);
  Place();
}

// --- rendering ----------------------------------------------------------------------------------

void BoardView::Changed(const Control& control, Aspect aspect) {
  SpeakSoon();
  if (aspect == Aspect::kFocus) {
    FollowFocus(*control.ParentForm());
  } else if (&control != box_) {
    Touch(control);
  } else if (aspect == Aspect::kGeometry) {
    Place();
  } else if (aspect == Aspect::kVisible) {
    setVisible(box_->Visible());
  } else if (aspect == Aspect::kEnabled) {
    setEnabled(box_->Enabled());
  } else if (aspect == Aspect::kImage || aspect == Aspect::kLook) {
    update();
  }
}

// Screen readers are told once, what stands when everything is done.
void BoardView::SpeakSoon() {
  if (speech_is_due_ || !box_ || !box_->InWords) return;
  speech_is_due_ = true;
  AfterHandlers(
      &speech_is_due_, [this] { Speak(); }, box_->ParentForm()->EventLevel());
}

void BoardView::Speak() {
  speech_is_due_ = false;
  const QString words = QString::fromStdString(box_->InWords());
  if (words != accessibleDescription()) setAccessibleDescription(words);
}

void BoardView::Place() {
  setGeometry(PixelBox(*box_));
  update();
}

// Hit areas by the thousand come through here at each redraw: most paint nothing and never did.
void BoardView::Touch(const Control& child) {
  const QRegion now = CoverOf(child);
  const auto before = painted_.find(&child);
  if (before != painted_.end()) {
    update(before->second);
    painted_.erase(before);
  }
  if (now.isEmpty()) return;
  update(now);
  painted_[&child] = now;
}

std::vector<const Control*> BoardView::PaintedChildren(const QRect& area) const {
  std::vector<const Control*> children;
  for (const Control* child : box_->Children()) {
    if (AreaOf(*child).intersects(area)) children.push_back(child);
  }
  std::sort(children.begin(), children.end(),
            [](const Control* a, const Control* b) { return a->Order() < b->Order(); });
  return children;
}

void BoardView::paintEvent(QPaintEvent* event) {
  if (!box_) return;
  QPainter painter(this);
  const QImage& image = surface_->Image();
  const qreal ratio = image.devicePixelRatioF();
  for (const QRect& part : event->region()) {
    painter.fillRect(part, ToQColor(box_->BackColor()));
    if (image.isNull()) continue;
    painter.drawImage(
        QRectF(part), image,
        QRectF(part.x() * ratio, part.y() * ratio, part.width() * ratio, part.height() * ratio));
  }
  for (const Control* child : PaintedChildren(event->rect())) {
    painted_[child] = CoverOf(*child);
    PaintChild({painter, surface_->DevicePixelRatio()}, *child);
  }
}

// The window came to a screen of another resolution, or its scale factor changed. The picture is
// shown scaled until the program has painted it anew, which it does when the window is laid out.
void BoardView::FollowScreen() {
  if (!box_ || surface_->DevicePixelRatio() == devicePixelRatioF()) return;
  surface_->SetDevicePixelRatio(devicePixelRatioF());
  Form* form = box_->ParentForm();
  AfterHandlers(
      this, [form] { form->WindowEvents().Resize.Raise(-1); }, form->EventLevel());
}

bool BoardView::event(QEvent* event) {
  if (event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::Show) {
    FollowScreen();
  }
  return QWidget::event(event);
}

// --- the user -----------------------------------------------------------------------------------

void BoardView::mousePressEvent(QMouseEvent* event) {
  box_->UserMouseDown(ButtonCode(event->button()), ShiftCode(event->modifiers()), PointX(*event),
                      PointY(*event));
}

void BoardView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void BoardView::mouseMoveEvent(QMouseEvent* event) {
  if (HasOwnView(childAt(event->position().toPoint()), *this)) return;
  if (event->buttons() == Qt::NoButton) UserButtonsUp();
  box_->UserMouseMove(ButtonCodes(event->buttons()), ShiftCode(event->modifiers()), PointX(*event),
                      PointY(*event));
}

void BoardView::mouseReleaseEvent(QMouseEvent* event) {
  box_->UserMouseUp(ButtonCode(event->button()), ShiftCode(event->modifiers()), PointX(*event),
                    PointY(*event));
}

// Bars at the board's edge that have come to their end pass their wheel on: it is not the board's.
void BoardView::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (HasOwnView(childAt(event->position().toPoint()), *this)) return;
  const QPointF notches = QPointF(event->angleDelta()) / kWheelNotch;
  box_->UserMouseWheel(ShiftCode(event->modifiers()), notches.x(), notches.y(),
                       event->position().x() * kTwipsPerPixel,
                       event->position().y() * kTwipsPerPixel);
}

void BoardView::focusInEvent(QFocusEvent* event) {
  Control* stand_in = box_->FocusStandIn();
  if (UserMovesFocus::UnderWay() && stand_in) stand_in->UserFocus();
  FollowFocus(*box_->ParentForm());
  QWidget::focusInEvent(event);
}

}  // namespace tagwright
