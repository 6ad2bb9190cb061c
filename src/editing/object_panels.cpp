#include "editing/object_panels.h"

namespace tagwright {

void FillPanelFromObject() {}
void CommitTextEdit() {}
void ResetObjectPanels() { TextEditOpen = kFalse; }

}  // namespace tagwright
