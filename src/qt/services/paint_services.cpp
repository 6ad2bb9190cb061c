#include "qt/services/paint_services.h"

#include "platform/painting/fonts.h"
#include "platform/painting/picture.h"
#include "platform/painting/printer.h"
#include "qt/fonts/font_service.h"
#include "qt/pictures/pictures.h"
#include "qt/printing/printers.h"

namespace tagwright {

void InstallPaintServices() {
  SetFonts(&ToolkitFonts());
  SetPictureReader(ReadPicture);
  SetPrinterList(&ToolkitPrinters());
}

}  // namespace tagwright
