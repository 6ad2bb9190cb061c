// Deleting what is selected, and the order in which a group is taken.
#pragma once

namespace tagwright {

// Sorts SelectedList ascending.
void SortSelection();

// Deletes what is selected, with undo, and redraws; nothing is selected afterwards.
void DeleteSelection();

}  // namespace tagwright
