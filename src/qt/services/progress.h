// The window over a long job.
#pragma once

#include <memory>

#include "platform/services/progress.h"

namespace tagwright {

// The progress service. A window comes up half a second after its job began and takes the user's
// acts about 25 times a second; what the user does to other windows meanwhile is dropped, except
// their ends (releases, keys going up) and what is for the window system to say (resizes, closes),
// which the control model lets wait. What was pressed before the window came up is dropped too, so
// that a second press of the button that began the job does not begin it again.
std::unique_ptr<ProgressService> MakeProgressService();

}  // namespace tagwright
