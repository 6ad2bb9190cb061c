// Printers of the toolkit: the queues of the print service, then "Print to PDF".
#pragma once

#include "platform/painting/printer.h"

namespace tagwright {

// The name of the built-in printer: always the last of the list. It asks for its file when a job
// starts; a cancelled question faults 32755. The file is written aside and takes its name at
// `EndDoc`, so that whatever goes wrong before leaves a former file of that name alone.
inline constexpr const char* kPrintToPdf = "Print to PDF";

// The printers of this system. Each prints on the full page with the origin at the paper's corner;
// a pixel is one of the queue's finest resolution, 600 an inch where it names none. Paper and
// orientation take effect with the next page that opens. A file that cannot be written faults 75
// at the start and 57 at the end, a queue that is gone or refuses 482. A job that was refused at
// its start faults alike at everything that is painted until it is ended or dropped.
//
// A printer says itself what has become of a job, in one message: the program's own routines pass
// its faults over.
PrinterService& ToolkitPrinters();

}  // namespace tagwright
