#include "qt/pictures/metafiles.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "platform/painting/metafile_records.h"
#include "qt/pictures/metafile_bitmaps.h"
#include "qt/pictures/metafile_shapes.h"
#include "qt/pictures/metafile_stage.h"
#include "qt/pictures/metafile_text.h"
#include "qt/pictures/pictures.h"

namespace tagwright {
namespace {

void Nothing(wmfAPI*) {}
void NoData(wmfAPI*, wmfUserData_t*) {}

// What the library calls for all that a drawing does.
struct Device {
  wmfFunctionReference functions = {};
  wmfFontData fonts = {};
  Device() {
    functions.device_open = functions.device_close = Nothing;
    functions.device_begin = functions.device_end = Nothing;
    functions.udata_init = functions.udata_copy = NoData;
    functions.udata_set = functions.udata_free = NoData;
    AddShapes(functions);
    AddBitmaps(functions);
    AddText(functions, fonts);
  }
};

void InstallDevice(wmfAPI* api) {
  static Device device;
  api->function_reference = &device.functions;
  api->font_data = &device.fonts;
}

// One use of the library: closed and freed with its owner.
class Player {
 public:
  Player(std::string& bytes, Stage& stage) {
    wmfAPI_Options options = {};
    options.function = InstallDevice;
    if (wmf_lite_create(&api_, kFlags, &options) != wmf_E_None) return;
    api_->device_data = &stage;
    good_ = wmf_mem_open(api_, reinterpret_cast<unsigned char*>(bytes.data()),
                         static_cast<long>(bytes.size())) == wmf_E_None &&
            wmf_scan(api_, 0, &box_) == wmf_E_None;
  }
  ~Player() {
    if (api_) wmf_lite_destroy(api_);
  }
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  bool Good() const { return good_; }
  QRectF Box() const { return BoxOf(box_.TL, box_.BR); }
  bool Play() { return wmf_play(api_, 0, &box_) == wmf_E_None; }

 private:
  static constexpr unsigned long kFlags =
      WMF_OPT_FUNCTION | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG | WMF_OPT_IGNORE_NONFATAL;
  wmfAPI* api_ = nullptr;
  wmfD_Rect box_ = {};
  bool good_ = false;
};

class MetafilePicture : public PaintedPicture {
 public:
  // `box` is what the drawing fills in the library's units.
  MetafilePicture(Metafile metafile, const QRectF& box)
      : metafile_(std::move(metafile)), box_(box) {
    Width = metafile_.width;
    Height = metafile_.height;
  }
  void Paint(QPainter& painter, const QRectF& box) const override;

 private:
  Metafile metafile_;
  QRectF box_;
};

// The library's units may have any shape; letters keep theirs in the picture's natural size.
double TextStretch(const Picture& picture, const QRectF& box) {
  return picture.Height / box.height() / (picture.Width / box.width());
}

void MetafilePicture::Paint(QPainter& painter, const QRectF& box) const {
  if (box.width() == 0 || box.height() == 0) return;
  std::string bytes = metafile_.bytes;
  const double scale_x = box.width() / box_.width();
  const double scale_y = box.height() / box_.height();
  const double unit = 1 / std::sqrt(std::abs(scale_x * scale_y));
  Stage stage{&painter, &bytes, metafile_.framed, box_, unit, TextStretch(*this, box_), {}, {}, 0};
  Player player(bytes, stage);
  painter.save();
  painter.translate(box.topLeft());
  painter.scale(scale_x, scale_y);
  painter.translate(-box_.topLeft());
  player.Play();
  painter.restore();
}

// The whole file is played once without drawing: what fails there would fail in a redraw. Gives the
// box that it fills; nothing when it fails.
std::optional<QRectF> Rehearse(const Metafile& metafile) {
  std::string bytes = metafile.bytes;
  Stage stage;
  stage.bytes = &bytes;
  stage.framed = metafile.framed;
  Player player(bytes, stage);
  if (!player.Good() || !player.Play()) return std::nullopt;
  const QRectF box = metafile.framed ? stage.box : player.Box();
  if (box.isEmpty() || !std::isfinite(box.width() * box.height())) return std::nullopt;
  return box;
}

// For a drawing that says nothing of its size.
void TakeUsualSize(Metafile& metafile, const QRectF& box) {
  constexpr double kLongerSide = 10000;
  const double unit = kLongerSide / std::max(box.width(), box.height());
  metafile.width = box.width() * unit;
  metafile.height = box.height() * unit;
}

}  // namespace

PicturePtr ReadMetafile(const std::string& bytes) {
  std::optional<Metafile> metafile = ParseMetafile(bytes);
  if (!metafile) return nullptr;
  const std::optional<QRectF> box = Rehearse(*metafile);
  if (!box) return nullptr;
  if (metafile->width == 0) TakeUsualSize(*metafile, *box);
  return std::make_shared<MetafilePicture>(std::move(*metafile), *box);
}

}  // namespace tagwright
