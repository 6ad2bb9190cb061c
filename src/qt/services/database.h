// The reader of databases among the toolkit's services: where it stands, and what windows do while
// it is waited for.
#pragma once

#include "platform/database/database.h"
#include "platform/database/reader_process.h"

namespace tagwright {

// The reader that stands beside the running executable.
ReaderProgram ReaderBesideProgram();

// Opens databases through `reader` (see MakeReaderEngine). While it is waited for, windows repaint
// and the user's presses stay for later.
DatabaseEngine MakeDatabaseEngine(ReaderProgram reader);

}  // namespace tagwright
