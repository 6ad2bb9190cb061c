// What a hand feels: from a move of the mouse to the finished repaint while an object is dragged,
// and from the press to its handles, beside a plain window that does no more than paint.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <filesystem>
#include <random>
#include <string>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "platform/controls/control.h"
#include "platform/controls/mouse.h"
#include "platform/services/application.h"
#include "platform/services/desktop.h"
#include "shell/startup.h"

namespace {

using namespace tagwright;
namespace fs = std::filesystem;

constexpr double kTwipsPerPixel = 15;
constexpr double kLabelWidth = 200;  // millimetres
constexpr double kLabelHeight = 120;
constexpr int kCircle = 40;  // pixels that the pointer wanders from where it pressed

// --- the program --------------------------------------------------------------------------------

// Rectangles and ellipses, scattered over the label but the same in every run.
ObjectRecord ScatteredObject(int number, std::mt19937& random) {
  std::uniform_real_distribution<double> left(0, kLabelWidth - 25);
  std::uniform_real_distribution<double> top(0, kLabelHeight - 12);
  ObjectRecord object;
  object.ObjType = number % 2 ? kRectangle : kEllipse;
  object.Left = static_cast<float>(left(random));
  object.Top = static_cast<float>(top(random));
  object.Width = 25;
  object.Height = 12;
  object.Param = 1;
  object.FillColor = 0xE0E0E0;
  return object;
}

// The one that is dragged: at the label's edge, part of its way lies out of sight.
void CentreLastObject() {
  ObjectRecord& last = ObjectAt(ObjectUB);
  last.Left = static_cast<float>((kLabelWidth - last.Width) / 2);
  last.Top = static_cast<float>((kLabelHeight - last.Height) / 2);
}

void FillLabel(int count) {
  std::mt19937 random(1);
  DirtyFlag = kFalse;  // nobody is there to answer
  frmMain.mnuFileNew.Press();
  LabelWidth = kLabelWidth;
  LabelHeight = kLabelHeight;
  for (int i = 0; i < count; ++i) {
    GrowObjects();
    ObjectAt(ObjectUB) = ScatteredObject(i, random);
    HoldAt(i).SetVisible(true);
    HoldAt(i).ZOrder();
  }
  CentreLastObject();
  RedrawBoard();
}

QWidget& Board() {
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == "picBoard") return *widget;
  }
  abort();
}

void Send(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
          Qt::MouseButtons buttons) {
  QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

void Press(QWidget& widget, const QPoint& at) {
  Send(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
}

void MoveTo(QWidget& widget, const QPoint& at) {
  Send(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
}

void Release(QWidget& widget, const QPoint& at) {
  Send(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
}

// Whether anything is painted in one turn is what the measure stands on.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }
  ~PaintCount() override { widget_.removeEventFilter(this); }
  int Painted() const { return painted_; }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    painted_ += event->type() == QEvent::Paint;
    return false;
  }
  QWidget& widget_;
  int painted_ = 0;
};

QPoint MiddleOf(const Control& control) {
  return {static_cast<int>((control.LeftTwips() + control.WidthTwips() / 2) / kTwipsPerPixel),
          static_cast<int>((control.TopTwips() + control.HeightTwips() / 2) / kTwipsPerPixel)};
}

QPoint Wandering(const QPoint& start, int step) {
  return start + QPoint(step * 7 % kCircle, step * 5 % kCircle);
}

void DragOurs(benchmark::State& state, int count) {
  FillLabel(count);
  QWidget& board = Board();
  const QPoint start = MiddleOf(HoldAt(ObjectUB));
  Press(board, start);
  QCoreApplication::processEvents();
  const PaintCount paints(board);
  int step = 0;
  for (auto _ : state) {
    MoveTo(board, Wandering(start, ++step));
    QCoreApplication::processEvents();
  }
  if (paints.Painted() < step) state.SkipWithError("a move was not painted");
  Release(board, start);
  QCoreApplication::processEvents();
}

void PressOurs(benchmark::State& state, int count) {
  FillLabel(count);
  QWidget& board = Board();
  const QPoint places[] = {MiddleOf(HoldAt(ObjectUB)), MiddleOf(HoldAt(ObjectUB - 1))};
  const PaintCount paints(board);
  int step = 0;
  for (auto _ : state) {
    const QPoint at = places[++step % 2];
    Press(board, at);
    QCoreApplication::processEvents();
    state.PauseTiming();
    Release(board, at);
    QCoreApplication::processEvents();
    state.ResumeTiming();
  }
  if (!frmMain.lblHandle(0).Visible()) state.SkipWithError("no handles are shown");
  if (paints.Painted() < step) state.SkipWithError("a press was not painted");
}

// --- the floor ----------------------------------------------------------------------------------

// A picture with a dotted frame and four squares over it, which follow the mouse.
class PlainBoard : public QWidget {
 public:
  explicit PlainBoard(const QSize& size) : picture_(size) {
    resize(size);
    setAttribute(Qt::WA_OpaquePaintEvent);
    picture_.fill(Qt::gray);
    show();
  }

 protected:
  void mouseMoveEvent(QMouseEvent* event) override {
    update(frame_.adjusted(-kMargin, -kMargin, kMargin, kMargin));
    frame_.moveCenter(event->position().toPoint());
    update(frame_.adjusted(-kMargin, -kMargin, kMargin, kMargin));
  }
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.drawPixmap(event->rect(), picture_, event->rect());
    painter.setPen(QPen(Qt::blue, 1, Qt::DotLine));
    painter.drawRect(frame_);
    for (const QPoint& corner :
         {frame_.topLeft(), frame_.topRight(), frame_.bottomLeft(), frame_.bottomRight()}) {
      painter.fillRect(QRect(corner, QSize(7, 7)), Qt::blue);
    }
  }

 private:
  static constexpr int kMargin = 12;
  QPixmap picture_;
  QRect frame_{100, 100, 94, 45};
};

void DragFloor(benchmark::State& state) {
  PlainBoard board(Board().size());
  QCoreApplication::processEvents();
  const QPoint start = board.rect().center();
  int step = 0;
  for (auto _ : state) {
    MoveTo(board, Wandering(start, ++step));
    QCoreApplication::processEvents();
  }
}

}  // namespace

int main(int argc, char** argv) {
  Application application(argc, argv);
  std::string folder = (fs::temp_directory_path() / "tagwright-bench-XXXXXX").string();
  if (!mkdtemp(folder.data())) return 1;
  SetExecutableFolder(folder);
  StartProgram();
  QCoreApplication::processEvents();
  benchmark::Initialize(&argc, argv);
  for (const int count : {10, 100, 1000}) {
    const std::string among = " among " + std::to_string(count);
    benchmark::RegisterBenchmark(("drag an object" + among + "/ours").c_str(), DragOurs, count)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark(("drag an object" + among + "/floor").c_str(), DragFloor)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark(("press to handles" + among + "/ours").c_str(), PressOurs, count)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
  }
  benchmark::RunSpecifiedBenchmarks();
  fs::remove_all(folder);
}
