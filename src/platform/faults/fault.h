// Run-time faults: the one way in which a platform call reports that it could not do its work.
//
// A fault is a value with a stable number and a description. It is thrown as a C++ exception inside
// the program's own code and never crosses an event handler's boundary (see event.h).
#pragma once

#include <string>
#include <utility>

namespace tagwright {

// The stable numbers. 53, 340, 481, 3031 and 32755 are trapped by number somewhere in the program.
enum FaultNumber : int {
  kInvalidCall = 5,          // a call that makes no sense now, such as focus on a hidden control
  kOverflow = 6,             // a value outside its integer type
  kOutOfMemory = 7,          // no memory for what is to be done
  kOutOfBounds = 9,          // an array element that does not exist
  kDivisionByZero = 11,      // division by zero
  kTypeMismatch = 13,        // text that is not the number it should be
  kInternalError = 51,       // a library below the program reported something unforeseen
  kFileNotFound = 53,        // a missing file
  kFileAccess = 75,          // a file or folder that cannot be read, written or deleted
  kDeviceFault = 57,         // an input or output fault of the device
  kDiskFull = 61,            // no room for what is to be written
  kPastEnd = 62,             // a line where a file has none left
  kMissingElement = 340,     // a control array element that was never created
  kBadValue = 380,           // a property value that the control refuses
  kBadPicture = 481,         // a file that is no readable picture
  kPrinterFault = 482,       // a printer that refuses
  kPasswordNeeded = 3031,    // a database that wants a password
  kLinkedTable = 3044,       // a table of a database that lies in another file
  kDatabaseFault = 3343,     // a database that cannot be opened or read
  kDialogCancelled = 32755,  // a common dialog that the user cancelled
};

// A fault under way. Copyable; `description` is shown to people and is never empty.
struct Fault {
  int number = 0;
  std::string description;
};

// Throws the fault `number` with its stock description.
[[noreturn]] void RaiseFault(int number);

// Throws the fault `number` with a description of the caller's.
[[noreturn]] void RaiseFault(int number, std::string description);

// The stock description of `number`; "Application-defined fault" for one that has none.
std::string FaultDescription(int number);

// Runs `statement`; a fault in it ends it and goes to `tell`, which may throw it on. Returns
// whether the statement ran to its end. This is the program's skip-and-continue: what the statement
// would have set keeps its old value.
template <class Statement, class Tell>
bool CarryOn(Statement&& statement, Tell&& tell) {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (const Fault& fault) {
    std::forward<Tell>(tell)(fault);
    return false;
  }
}

// The same in silence.
template <class Statement>
bool CarryOn(Statement&& statement) {
  return CarryOn(std::forward<Statement>(statement), [](const Fault&) {});
}

}  // namespace tagwright
