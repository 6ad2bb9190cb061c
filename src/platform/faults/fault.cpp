#include "platform/faults/fault.h"

#include <utility>

namespace tagwright {

void RaiseFault(int number) { RaiseFault(number, FaultDescription(number)); }

void RaiseFault(int number, std::string description) {
  if (description.empty()) description = FaultDescription(number);
  throw Fault{number, std::move(description)};
}

std::string FaultDescription(int number) {
  switch (number) {
    case kInvalidCall:
      return "Invalid procedure call or argument";
    case kOverflow:
      return "Overflow";
    case kOutOfMemory:
      return "Out of memory";
    case kOutOfBounds:
      return "Subscript out of range";
    case kDivisionByZero:
      return "Division by zero";
    case kTypeMismatch:
      return "Type mismatch";
    case kInternalError:
      return "Internal error";
    case kFileNotFound:
      return "File not found";
    case kFileAccess:
      return "Path/File access error";
    case kDeviceFault:
      return "Device I/O error";
    case kDiskFull:
      return "Disk full";
    case kPastEnd:
      return "Input past end of file";
    case kMissingElement:
      return "Control array element does not exist";
    case kBadValue:
      return "Invalid property value";
    case kBadPicture:
      return "Invalid picture";
    case kPrinterFault:
      return "Printer error";
    case kPasswordNeeded:
      return "Not a valid password";
    case kLinkedTable:
      return "The table lies in another file";
    case kDatabaseFault:
      return "Unrecognized database format";
    case kDialogCancelled:
      return "Cancel was selected";
    default:
      return "Application-defined fault";
  }
}

}  // namespace tagwright
