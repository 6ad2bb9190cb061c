// The settings of the installation, and where its files lie.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "common/barcode_format.h"
#include "platform/text/text.h"

namespace tagwright {

// The folder of the executable with a trailing separator: all files of the installation lie there.
inline std::string AppFolder;

// The first part of the main window's caption.
inline const std::string ProductTitle = "Tagwright Designer Gold";

// One record, read at start and written at exit (shell/settings_file.h has its bytes). The values
// here are those of a fresh record. Booleans are 0 or -1.
struct SettingsRecord {
  FixedText<50> DefaultFontName = "Arial";
  double DefaultFontSize = 11.0;                    // points
  std::int16_t NumericBarcodeType = kFormatCode39;  // for data that is all digits
  std::int16_t AlphaBarcodeType = kFormatCode128B;  // for other data
  double BarcodeFontSize = 6.0;                     // points, characters under a barcode
  std::int16_t PrintOffsetX = 0;                    // millimetres
  std::int16_t PrintOffsetY = 0;
  std::int16_t ShowRulers = -1;
  std::int16_t MetricUnits = -1;  // -1 millimetres, 0 inches
  std::int16_t ShowCrossHairs = -1;
  FixedText<150> RecentFile1;
  FixedText<150> RecentFile2;
  FixedText<150> RecentFile3;
  FixedText<150> RecentFile4;
  FixedText<150> RecentFile5;
  FixedText<150> RecentFile6;
  std::array<unsigned char, 100> Reserved1;  // not interpreted; blanks when fresh
  double WindowLeft = -1000.033;             // twips; this pair means "never saved"
  double WindowTop = 3900.0;
  double WindowWidth = 0.0;
  double WindowHeight = 0.0;
  double MagneticZone = 2.0;                  // millimetres, 0.5 to 3.5
  std::array<unsigned char, 70> Reserved2{};  // not interpreted; zeros when fresh

  SettingsRecord() { Reserved1.fill(' '); }
  bool operator==(const SettingsRecord&) const = default;
};

inline SettingsRecord ProgSettings;

}  // namespace tagwright
