#include "tools/placement.h"

namespace tagwright {

void BeginTool(double, double) {}
void PlaceObject() {}
void ResetPlacement() { PicturePath.clear(); }

}  // namespace tagwright
