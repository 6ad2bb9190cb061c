// Databases through the reader, a program of its own (see platform/database/reader_protocol.h).
#pragma once

#include <chrono>
#include <string>

#include "platform/database/database.h"

namespace tagwright {

// How the reader is started and how long it may say nothing before it counts as hanging.
struct ReaderProgram {
  std::string path;
  std::chrono::milliseconds silence = std::chrono::seconds(10);
};

// The reader that stands beside the running executable.
ReaderProgram ReaderBesideProgram();

// Opens databases through `reader`. A reader that cannot be started, dies, falls silent or says
// nonsense is kDatabaseFault wherever it happens. While the reader is waited for, windows repaint
// and the user's presses stay for later.
DatabaseEngine MakeDatabaseEngine(const ReaderProgram& reader);

}  // namespace tagwright
