#include "qt/controls/text_places.h"

#include <QList>
#include <algorithm>

namespace tagwright {
int ModelPlace(const QString& text, int units) {
  int place = 0;
  for (int i = 0; i < units && i < text.size(); ++i) {
    if (text[i].isLowSurrogate()) continue;
    place += text[i] == '\n' ? 2 : 1;
  }
  return place;
}

int ToolkitPlace(const QString& text, int place) {
  int units = 0;
  while (units < text.size() && place > 0) {
    place -= text[units] == '\n' ? 2 : 1;
    units += text[units].isHighSurrogate() ? 2 : 1;
  }
  return std::min(units, static_cast<int>(text.size()));
}

int CharactersBefore(const QString& text, int units) {
  return static_cast<int>(text.left(units).toUcs4().size());
}

}  // namespace tagwright
