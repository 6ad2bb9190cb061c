// What is printed to compare printers of labels: a table of persons, each row on a label of its own
// with four lines of text and a Code 128 symbol of forty bars, on "A4 14 per sheet".
#pragma once

#include <time.h>

#include <cstdint>
#include <fstream>
#include <string>

namespace tagwright::bench {

constexpr int kLines = 4;
constexpr std::int16_t kCode128B = 7;
constexpr double kPoints = 11;
inline const std::string kFamily = "Liberation Sans";

// Millimetres on the label.
constexpr double kLeft = 4, kFirstLine = 3, kLineStep = 5;
constexpr double kSymbolTop = 24, kSymbolWidth = 60, kSymbolHeight = 11;

// Of the sheet, which fills down its columns.
constexpr int kAcross = 2, kDown = 7;
constexpr double kSheetLeft = 4.5, kSheetTop = 15, kPitchX = 101.5, kPitchY = 38;

// Seconds of the processor that this process has used, which other processes do not lengthen.
inline double ProcessorSeconds() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

// What /proc says of this process after `name`, in kilobytes.
inline long Kilobytes(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    long value = 0;
    if (word == name + ":" && status >> value) return value;
  }
  return 0;
}

inline long Resident() { return Kilobytes("VmRSS"); }

// The most that was resident since ForgetPeak.
inline long Peak() { return Kilobytes("VmHWM"); }
inline void ForgetPeak() { std::ofstream("/proc/self/clear_refs") << "5"; }

}  // namespace tagwright::bench
