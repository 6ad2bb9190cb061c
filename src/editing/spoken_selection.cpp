#include "editing/spoken_selection.h"

#include "document/objects.h"
#include "document/shown_size.h"
#include "editing/track_status.h"
#include "platform/files/files.h"

namespace tagwright {
namespace {

std::string KindInWords(std::int16_t kind) {
  switch (kind) {
    case kBarcode:
      return "Barcode";
    case kPicture:
      return "Picture";
    case kText:
      return "Text";
    case kLine:
      return "Line";
    case kRectangle:
      return "Rectangle";
    case kRoundedRectangle:
      return "Rounded rectangle";
    case kEllipse:
      return "Ellipse";
    case kDataField:
      return "Data field";
    default:
      return "Object";
  }
}

// A picture by the last part of its path.
std::string Content(const ObjectRecord& object) {
  const std::string text =
      object.ObjType == kPicture ? FileBaseName(PathOf(object)) : object.Text.Trimmed();
  return text.empty() ? "" : " \"" + text + "\"";
}

std::string PlaceInWords(const ObjectRecord& object) {
  return " at " + InUsersUnit(object.Left) + ", " + InUsersUnit(object.Top) + ", " +
         InUsersUnit(object.Width) + " by " + InUsersUnit(object.Height) + " " + UnitName();
}

}  // namespace

std::string SelectionInWords() {
  if (SelectedUpper > -1) return std::to_string(SelectedUpper + 1) + " objects selected";
  if (SelectedObject < 0 || SelectedObject > ObjectUB) return "Nothing selected";
  const ObjectRecord& object = ObjectAt(SelectedObject);
  return KindInWords(object.ObjType) + Content(object) + PlaceInWords(object);
}

}  // namespace tagwright
