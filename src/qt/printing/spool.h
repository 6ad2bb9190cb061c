// What a printer paints a job on: a file, or a queue of the print service.
#pragma once

#include "qt/fonts/page_steps.h"

class QPagedPaintDevice;
class QPainter;

namespace tagwright {

// Millimetres have three decimals on a page, and fonts the size that is asked for: the toolkit
// counts both in whole units.
constexpr int kUnitsPerInch = static_cast<int>(kPageStepsPerInch);

// Pixels an inch of a file, and of a queue that names none.
constexpr int kUsualResolution = 600;

// One job, from its start on; without Send() nothing comes of it.
class Spool {
 public:
  virtual ~Spool() = default;
  virtual QPagedPaintDevice& Device() = 0;
  // Ends the job, after the painter has ended. Faults when it comes to nothing.
  virtual void Send() = 0;
  // Ends the painter; nothing comes of the job.
  virtual void Drop(QPainter& painter) = 0;
  // Whether what has been painted so far is lost.
  virtual bool Failed() const = 0;
};

}  // namespace tagwright
