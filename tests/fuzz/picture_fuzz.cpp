// Any bytes are a picture file: reading must refuse or take them, and what was taken must paint.
#include <QGuiApplication>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/painting/picture.h"
#include "qt/painting/image_surface.h"
#include "qt/pictures/pictures.h"
#include "qt/services/paint_services.h"

namespace {

void StartToolkit() {
  static int argc = 1;
  static char name[] = "picture_fuzz";
  static char* argv[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "*=false");
  new QGuiApplication(argc, argv);  // lives as long as the process
  tagwright::InstallPaintServices();
}

bool Sized(const tagwright::Picture& picture) {
  return std::isfinite(picture.Width) && std::isfinite(picture.Height) && picture.Width > 0 &&
         picture.Height > 0;
}

}  // namespace

// The font configuration keeps what it has read until the process ends.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  StartToolkit();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tagwright;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const PicturePtr picture = ReadPicture(bytes, "picture");
  if (!picture) return 0;
  if (!Sized(*picture)) std::abort();
  ImageSurface surface;
  surface.Scale().Resize(1500, 1200);
  surface.PaintPicture(picture, 150, 150, 1200, 900);
  return surface.Image().isNull() ? 1 : 0;
}
