// "Print to PDF": a job that becomes a file.
#pragma once

#include <memory>

#include "qt/printing/spool.h"

namespace tagwright {

// Asks for the file and opens it aside. Faults kDialogCancelled when the user backs out,
// kFileAccess when the file cannot be written; the job's end faults kDeviceFault.
std::unique_ptr<Spool> OpenFileSpool();

}  // namespace tagwright
