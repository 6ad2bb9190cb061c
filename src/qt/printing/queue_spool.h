// Queues of the print service: a job that one of them takes.
#pragma once

#include <memory>
#include <string>

#include "qt/printing/spool.h"

namespace tagwright {

// The pixels an inch of a queue's finest resolution, 600 where it names none. Faults kPrinterFault
// when the queue is not there any more.
int FinestResolution(const std::string& name);

// Opens a job of the queue. Faults kPrinterFault like FinestResolution(), and so does the job's end
// when the service does not take it.
std::unique_ptr<Spool> OpenQueueSpool(const std::string& name);

}  // namespace tagwright
