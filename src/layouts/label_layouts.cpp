#include "layouts/label_layouts.h"

#include "common/prog_settings.h"
#include "common/public_functions.h"
#include "platform/files/bytes.h"
#include "platform/files/files.h"

namespace tagwright {
namespace {

constexpr std::int16_t kYes = -1;
constexpr std::int16_t kNo = 0;

std::string LayoutPath() { return AppFolder + "label.dta"; }

// The upper bound of the array for a file of this length. A last record of which more than half is
// there counts.
std::int16_t TopOfLength(std::int64_t length) {
  return ToInt16(static_cast<double>(length) / kLabelLayoutSize - 1);
}

bool HoldsNoLayout(const std::string& path) {
  return !FileExists(path) || TopOfLength(FileLength(path)) < 0;
}

void TakeBuiltIn() {
  LabelLayouts = BuiltInLabelLayouts();
  LabelLayoutTop = static_cast<std::int16_t>(LabelLayouts.size() - 1);
}

void ReadLayouts(const std::string& bytes) {
  LabelLayoutTop = TopOfLength(static_cast<std::int64_t>(bytes.size()));
  LabelLayouts.clear();
  std::string_view rest = bytes;
  for (int i = 0; i <= LabelLayoutTop; ++i) {
    const std::string_view record = rest.substr(0, kLabelLayoutSize);
    LabelLayouts.push_back(LabelLayoutFromBytes(record));
    rest.remove_prefix(record.size());
  }
}

}  // namespace

// The program's own table. Lengths are decimal millimetres (the US ones converted from inches) and
// stored as the nearest 32-bit values. Titles end in "sheet" and "Sheet" as they do in the files of
// existing installations.
std::vector<LabelLayout> BuiltInLabelLayouts() {
  constexpr std::int16_t kA4 = kPaperA4;
  constexpr std::int16_t kUs = kPaperLetter;
  // clang-format off
  return {
    // title, paper, used, width, height, left, top, across, down, gutters, default
    {"A4 1 per sheet",  kA4, kYes, 199,     289,     5.5,     4,        1,  1, 0,       0, kNo},
    {"A4 2 per sheet",  kA4, kYes, 199,     143,     5.5,     5.5,      1,  2, 0,       0, kNo},
    {"A4 4 per sheet",  kA4, kYes,  99,     139,     5.5,     9.5,      2,  2, 2.5,     0, kNo},
    {"A4 14 per sheet", kA4, kYes,  99,      38,     4.5,    15,        2,  7, 2.5,     0, kYes},
    {"A4 16 per sheet", kA4, kYes,  99,      34,     4.5,    12.5,      2,  8, 2.5,     0, kNo},
    {"A4 21 per sheet", kA4, kYes,  63,      38,     8,      15.5,      3,  7, 2.5,     0, kNo},
    {"A4 24 per sheet", kA4, kYes,  63,      35,     8,       8.5,      3,  8, 2.5,     0, kNo},
    {"US 1 per Sheet",  kUs, kYes, 215.9,   279.4,   0,       0,        1,  1, 0,       0, kNo},
    {"US 6 per Sheet",  kUs, kYes, 101.6,    84.582, 3.9624, 12.7,      2,  3, 4.7752,  0, kNo},
    {"US 10 per Sheet", kUs, kYes, 101.6,    50.8,   3.9624, 12.7,      2,  5, 4.7752,  0, kNo},
    {"US 14 per Sheet", kUs, kYes, 101.6,    34.036, 3.9624, 21.1582,   2,  7, 4.7752,  0, kNo},
    {"US 20 per Sheet", kUs, kYes, 101.6,    25.4,   3.9624, 12.7,      2, 10, 4.7752,  0, kNo},
    {"US 30 per Sheet", kUs, kYes,  66.675,  25.4,   4.7752, 12.7,      3, 10, 3.175,   0, kNo},
    {"US 80 per Sheet", kUs, kYes,  44.45,   12.7,   7.112,  12.7,      4, 20, 7.9502,  0, kNo},
  };
  // clang-format on
}

std::string LabelLayoutBytes(const LabelLayout& layout) {
  ByteWriter out;
  out.Text(layout.Title.Padded(), 25);
  out.I16(layout.Paper);
  out.I16(layout.Used);
  out.F32(layout.LabelWidth);
  out.F32(layout.LabelHeight);
  out.F32(layout.LeftMargin);
  out.F32(layout.TopMargin);
  out.I16(layout.NoAcross);
  out.I16(layout.NoDown);
  out.F32(layout.HorizGutter);
  out.F32(layout.VertGutter);
  out.I16(layout.IsDefault);
  out.Zeros(2);  // reserved
  return out.Bytes();
}

LabelLayout LabelLayoutFromBytes(std::string_view bytes) {
  ByteReader in(bytes);
  LabelLayout layout;
  layout.Title = in.Text(25);
  layout.Paper = in.I16();
  layout.Used = in.I16();
  layout.LabelWidth = in.F32();
  layout.LabelHeight = in.F32();
  layout.LeftMargin = in.F32();
  layout.TopMargin = in.F32();
  layout.NoAcross = in.I16();
  layout.NoDown = in.I16();
  layout.HorizGutter = in.F32();
  layout.VertGutter = in.F32();
  layout.IsDefault = in.I16();
  return layout;
}

// A file just created is read straight back, so that the layouts of a first start have passed
// through the file as those of every later one have.
void LoadLabelLayouts() {
  const std::string path = LayoutPath();
  if (HoldsNoLayout(path)) {
    TakeBuiltIn();
    SaveLabelLayouts();
  }
  ReadLayouts(ReadFile(path));
}

void SaveLabelLayouts() {
  std::string bytes;
  for (const LabelLayout& layout : LabelLayouts) bytes += LabelLayoutBytes(layout);
  WriteFile(ResolvePath(LayoutPath()), bytes);  // the one that was read, whatever its case
}

}  // namespace tagwright
