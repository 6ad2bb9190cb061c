// Databases as the reader tells them: tables, fields and rows, one row in memory.
#pragma once

#include "platform/database/database.h"
#include "platform/database/reader_process.h"

namespace tagwright {

// Opens databases through `reader`. A reader that cannot be started, dies, falls silent or says
// nonsense is kDatabaseFault wherever it happens.
DatabaseEngine MakeReaderEngine(const ReaderProgram& reader);

}  // namespace tagwright
