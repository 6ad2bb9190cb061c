#include "window/hand_steps.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <filesystem>
#include <stdexcept>
#include <string_view>

namespace tagwright::window_test {
namespace {

constexpr double kPixelsPerMillimetre = 96 / 25.4;
constexpr double kHandle = 7 / kPixelsPerMillimetre;  // its side
constexpr double kGap = 1;                            // from the box to the handle
constexpr std::uint32_t kWhite = 0xFFFFFF;

constexpr std::size_t kRecordSize = 333;
constexpr std::size_t kTextSize = 250;
constexpr std::size_t kFontSize = 35;

int LabelTop(const Program& program) {
  const Span span = LabelSpan(program);
  Box middle = Board(program);
  middle.x = span.left + span.width / 2;
  middle.width = 1;
  const auto pixels = Pixels(middle);
  return middle.y + static_cast<int>(std::ranges::find(pixels, kWhite) - pixels.begin());
}

// Little-endian fields, one after the other.
class Fields {
 public:
  explicit Fields(std::string_view bytes) : rest_(bytes) {}

  std::uint64_t Bits(std::size_t bytes) {
    std::uint64_t bits = 0;
    for (std::size_t i = bytes; i-- > 0;) bits = bits << 8 | static_cast<unsigned char>(rest_[i]);
    rest_.remove_prefix(bytes);
    return bits;
  }
  double Single() { return std::bit_cast<float>(static_cast<std::uint32_t>(Bits(4))); }
  double Double() { return std::bit_cast<double>(Bits(8)); }
  std::int16_t Short() { return static_cast<std::int16_t>(Bits(2)); }
  std::int32_t Long() { return static_cast<std::int32_t>(Bits(4)); }
  std::string Text(std::size_t length) {
    const std::string_view text = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return std::string(text.substr(0, text.find_last_not_of(std::string_view(" \0", 2)) + 1));
  }

 private:
  std::string_view rest_;
};

SavedObject ObjectFrom(std::string_view bytes) {
  Fields fields(bytes);
  SavedObject object;
  object.left = fields.Single();
  object.top = fields.Single();
  object.width = fields.Double();
  object.height = fields.Double();
  object.kind = fields.Short();
  object.text = fields.Text(kTextSize);
  object.param = fields.Short();
  object.font = fields.Text(kFontSize);
  object.font_size = fields.Double();
  object.bold = fields.Short() != 0;
  object.italic = fields.Short() != 0;
  object.fore_color = fields.Long();
  object.fill_color = fields.Long();
  return object;
}

bool IsWhole(const std::string& project) {
  std::error_code missing;
  const auto size = std::filesystem::file_size(project, missing);
  return !missing && size >= 2 * kRecordSize && size % kRecordSize == 0;
}

}  // namespace

// --- the label on the screen --------------------------------------------------------------------

Paper::Paper(const Program& program, double zoom)
    : pixels_per_millimetre_(kPixelsPerMillimetre * zoom),
      left_(LabelSpan(program).left),
      top_(LabelTop(program)) {}

int Paper::X(double millimetres) const {
  return left_ + static_cast<int>(std::lround(millimetres * pixels_per_millimetre_));
}

int Paper::Y(double millimetres) const {
  return top_ + static_cast<int>(std::lround(millimetres * pixels_per_millimetre_));
}

void Paper::Click(double x, double y, int button) const { window_test::Click(X(x), Y(y), button); }

void Paper::Drag(double x, double y, double to_x, double to_y) const {
  window_test::Drag(X(x), Y(y), X(to_x), Y(to_y));
}

void Paper::DragHandle(int handle, double left, double top, double width, double height,
                       double by_x, double by_y) const {
  const double away = kGap + kHandle / 2;
  const double x = handle % 2 == 0 ? left - away : left + width + away;
  const double y = handle < 2 ? top - away : top + height + away;
  Drag(x, y, x + by_x, y + by_y);
}

// --- the saved label ----------------------------------------------------------------------------

std::vector<SavedObject> ObjectsIn(const std::string& project) {
  constexpr std::size_t kTrailers = 2;
  const std::string bytes = Contents(project);
  const std::size_t count = bytes.size() / kRecordSize;
  if (bytes.size() % kRecordSize != 0 || count < kTrailers) {
    throw std::runtime_error("no whole project: " + project);
  }
  std::vector<SavedObject> objects;
  for (std::size_t i = 0; i + kTrailers < count; ++i) {
    objects.push_back(ObjectFrom(std::string_view(bytes).substr(i * kRecordSize, kRecordSize)));
  }
  return objects;
}

std::vector<SavedObject> SavedAs(const Program& program, const std::string& project) {
  if (std::filesystem::remove(project)) {
    ChooseMenu(program, {"File", "Save"});
  } else {
    SaveProjectAs(program, project);
  }
  WaitFor("the saved label", [&] { return IsWhole(project); });
  return ObjectsIn(project);
}

// --- steps --------------------------------------------------------------------------------------

void PressOn(const Program& program, const std::string& name) { Click(Find(program, name).box); }

void DrawShape(const Program& program, const Paper& paper, const std::string& shape, double left,
               double top, double right, double bottom) {
  if (!Shows(program, shape)) PressOn(program, "Drawing Options");
  PressOn(program, shape);
  paper.Drag(left, top, right, bottom);
}

void ArmBarcode(const Program& program, const std::string& format, const std::string& data) {
  PressOn(program, "Generate Barcode");
  ChooseRow(program, "Barcode Format", format);
  Click(Find(program, "Barcode Data", "text").box);
  Type(data);
  PressOn(program, "Place Barcode");
}

void ArmPicture(const Program& program, const std::string& path) {
  PressOn(program, "Insert Picture");
  WaitForWindow("Open");
  Type(path);
  Key("Return");
  WaitForWindow("Tagwright");
}

void ChooseColumn(const Program& program, const std::string& column) {
  const Box row = Find(program, column, "list item").box;
  MoveMouse(row.x + row.width / 2, row.y + row.height / 2);
  Shell("xdotool click --repeat 2 --delay 60 1");
}

void Retype(const Program& program, const std::string& field, const std::string& text) {
  Click(Find(program, field, "text").box);
  Key("ctrl+a");
  Type(text);
  Key("Tab");
}

void WaitToHear(const Program& program, const std::string& name, const std::string& text) {
  std::string heard;
  const auto hears = [&] {
    heard = Find(program, name).description;
    return heard.find(text) != std::string::npos;
  };
  try {
    WaitFor("\"" + text + "\" from " + name, hears);
  } catch (const std::runtime_error& vain) {
    throw std::runtime_error(vain.what() + ("; it said \"" + heard + "\""));
  }
}

}  // namespace tagwright::window_test
