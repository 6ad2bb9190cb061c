// Sheet layouts: how labels lie on a sheet. All layouts of an installation lie in the file
// label.dta of the application folder, one flat run of fixed records without a header.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/text.h"

namespace tagwright {

constexpr int kLabelLayoutSize = 61;  // bytes of one record in label.dta

// `Paper`, in the order of the list of papers.
constexpr std::int16_t kPaperA4 = 0;
constexpr std::int16_t kPaperLetter = 1;

// One layout; lengths in millimetres. Booleans are 0 or -1.
struct LabelLayout {
  FixedText<25> Title;
  std::int16_t Paper = kPaperA4;
  std::int16_t Used = 0;  // -1 by every writer; tested by none
  float LabelWidth = 0;
  float LabelHeight = 0;
  float LeftMargin = 0;
  float TopMargin = 0;
  std::int16_t NoAcross = 0;  // labels in a row
  std::int16_t NoDown = 0;    // labels in a column
  float HorizGutter = 0;      // gaps between labels
  float VertGutter = 0;
  std::int16_t IsDefault = 0;  // the layout that lists choose when they are filled

  bool operator==(const LabelLayout&) const = default;
};

// The layouts of the installation, and the upper bound of the array: -1 before they are loaded.
inline std::vector<LabelLayout> LabelLayouts;
inline std::int16_t LabelLayoutTop = -1;

// The fourteen layouts of a fresh installation.
std::vector<LabelLayout> BuiltInLabelLayouts();

// One record's bytes and back. Reading takes what is there: blanks in the title and zeros for the
// rest.
std::string LabelLayoutBytes(const LabelLayout& layout);
LabelLayout LabelLayoutFromBytes(std::string_view bytes);

// Fills LabelLayouts and LabelLayoutTop from label.dta in AppFolder. A file that is missing, or too
// short to round to one record, is written with the built-in layouts first. Faults 6 for a file of
// more records than the bound can count, and as ReadFile and WriteFile do; after a fault in writing
// the built-in layouts are in force.
void LoadLabelLayouts();

// Writes LabelLayouts over label.dta from its start. Layouts are never removed, so nothing of an
// older file is meant to lie behind them; whatever does stays. Faults as WriteFile.
void SaveLabelLayouts();

}  // namespace tagwright
