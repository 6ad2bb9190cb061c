// Any data, format and size are a call of the barcode engine and of the panel's check: no fault
// gets out, nothing is painted that is no number, and the same call paints the same boxes.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "barcode/mod_bar_code.h"
#include "barcode/validation.h"
#include "platform/painting/recorder.h"

namespace {

using namespace tagwright;

// Takes numbers off the front of the input; zeros when there is nothing left.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  template <class T>
  T Number() {
    T value{};
    const std::size_t taken = size_ < sizeof value ? size_ : sizeof value;
    if (taken > 0) std::memcpy(&value, data_, taken);
    data_ += taken;
    size_ -= taken;
    return value;
  }
  std::string Rest() const { return {reinterpret_cast<const char*>(data_), size_}; }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
};

struct Call {
  std::int16_t format;
  bool text;
  float x, y;
  double height, width, font_size;
  std::string data;
};

Call Read(Input input) {
  Call call;
  const auto chosen = input.Number<std::uint8_t>();
  call.format = static_cast<std::int16_t>(chosen % 18 - 2);  // a little beyond both ends
  call.text = chosen >= 128;
  call.x = input.Number<float>();
  call.y = input.Number<float>();
  call.height = input.Number<double>();
  call.width = input.Number<double>();
  call.font_size = input.Number<double>();
  call.data = input.Rest();
  return call;
}

std::vector<Painted> Paint(const Call& call) {
  RecordingSurface page;
  page.Scale().SetScaleMode(kMillimetres);
  DrawTarget = &page;
  ResetBarcodeState();
  std::string data = call.data;
  DrawBarcode(data, call.format, call.x, call.y, call.height, call.width, call.text, call.font_size,
              "Arial");
  DrawTarget = nullptr;
  return page.painted;
}

// To the bit: a place that is no number is the same again, too.
bool SamePlace(const Painted& a, const Painted& b) {
  const double first[] = {a.x1, a.y1, a.x2, a.y2}, second[] = {b.x1, b.y1, b.x2, b.y2};
  return std::memcmp(first, second, sizeof first) == 0;
}

void Check(const std::vector<Painted>& first, const std::vector<Painted>& second) {
  if (first.size() != second.size()) std::abort();
  for (std::size_t i = 0; i < first.size(); ++i) {
    const Painted &a = first[i], &b = second[i];
    if (a.what == Painted::What::kBox && !(a.x1 <= a.x2 && a.y1 <= a.y2)) std::abort();
    if (a.what != b.what || !SamePlace(a, b) || a.Text() != b.Text()) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Call call = Read(Input(data, size));
  Check(Paint(call), Paint(call));
  ResetBarcodeState();
  const auto before = static_cast<std::int16_t>(size > 0 ? data[size - 1] % 18 - 2 : 0);
  ValidateBarcodeData(before, call.data);  // the last format carries over what the one before set
  const std::string accepted = ValidateBarcodeData(call.format, call.data);
  if (ValidateBarcodeData(call.format, accepted) != accepted) std::abort();
  return 0;
}
