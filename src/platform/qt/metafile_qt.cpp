#include "platform/qt/metafile_qt.h"

namespace tagwright {

PicturePtr ReadMetafile(const std::string&) { return nullptr; }

}  // namespace tagwright
