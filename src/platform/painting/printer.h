// Printers: every queue of the print service, then a built-in "Print to PDF" without dead margins.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/painting/surface.h"

namespace tagwright {

enum PaperTurn : int { kPrinterPortrait = 1, kPrinterLandscape = 2 };
enum PaperSizeCode : int { kPrinterLetter = 1, kPrinterA4 = 9 };

// One printer. Its surface is a page of the chosen paper; the page opens with the first thing
// painted. Lengths in twips.
class PrinterDevice {
 public:
  virtual ~PrinterDevice() = default;
  virtual std::string DeviceName() const = 0;
  virtual Surface& Page() = 0;
  virtual int Orientation() const = 0;         // a PaperTurn
  virtual void SetOrientation(int value) = 0;  // faults 380 for other values
  virtual int PaperSize() const = 0;           // a PaperSizeCode
  virtual void SetPaperSize(int value) = 0;    // faults 380 for other values
  virtual double Width() const = 0;            // of the paper
  virtual double Height() const = 0;
  // Opens the job, unless one is open: a printer that has to ask where it goes asks here. Faults
  // 32755 when the user backs out, otherwise as painting would. What is painted without it opens
  // the job likewise.
  virtual void StartDoc() = 0;
  virtual void NewPage() = 0;  // ends the page, blank or not
  virtual void EndDoc() = 0;   // sends the job; one without a page is dropped
  virtual void KillDoc() = 0;  // drops the job
  // Whether the open job has failed for good: nothing that is still painted will arrive.
  virtual bool JobLost() const = 0;
};

// The printers of the system, replaceable in tests.
class PrinterService {
 public:
  virtual ~PrinterService() = default;
  virtual std::vector<std::string> Names() = 0;  // in the order of the list
  virtual std::string DefaultName() = 0;         // empty when there is no printer
  virtual std::unique_ptr<PrinterDevice> Open(const std::string& name) = 0;  // faults 482
};

// The service in force; without one there are no printers.
PrinterService& PrinterList();
void SetPrinterList(PrinterService* service);  // not owned; null: none

// The device names of all printers (`Printers`).
std::vector<std::string> Printers();

// The chosen printer (`Printer`): the expected or the default one until another is chosen. Faults
// 482 when there is none.
PrinterDevice& Printer();
// Has the first use take the printer `name`, whichever is the default one by then. Opens nothing:
// looking a queue up takes its time.
void ExpectPrinter(const std::string& name);
// Makes the printer `name` the chosen one. Faults 482 when it is gone.
void ChoosePrinter(const std::string& name);
// Forgets the chosen and the expected printer; the next use takes the default one again.
void ResetPrinter();

}  // namespace tagwright
