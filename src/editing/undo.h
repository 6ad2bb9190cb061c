// One level of undo, as copies of whole records. UndoUpper, the upper place in use, stands in
// document/objects.h: a new label clears it.
#pragma once

#include <cstdint>
#include <vector>

#include "document/objects.h"

namespace tagwright {

enum class UndoOf : std::int16_t { kDelete = 0, kMove = 1 };

inline std::vector<ObjectRecord> UndoRecords = std::vector<ObjectRecord>(kSelectionSlots);
inline std::vector<std::int16_t> UndoIndexes = std::vector<std::int16_t>(kSelectionSlots);
inline UndoOf UndoKind = UndoOf::kDelete;

// Keeps what is selected for the undo of a deletion and enables mnuUndo. Nothing without a
// selection. Places beyond the group take copies of whatever the list still names there.
void SaveUndoDelete();

// Nothing is pending any more; mnuUndo is disabled and keeps its caption.
void ForgetUndo();

// The state as at program start.
void ResetUndo();

}  // namespace tagwright
