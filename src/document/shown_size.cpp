#include "document/shown_size.h"

#include <cstddef>

#include "forms/frmMain.h"
#include "platform/controls/text_controls.h"
#include "platform/faults/fault.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

const ShownSize kNoSize = {"0.00", "0.00", "0.00", "0.00"};

// What was shown last, and of which object: a text that differs from it has been typed.
ShownSize shown = kNoSize;
std::int16_t shown_object = -1;

ShownSize SizeOfSelection() {
  ShownSize size = kNoSize;
  if (OneIsSelected()) CarryOn([&] { size = ShownSizeOf(ObjectAt(SelectedObject)); });
  return size;
}

bool IsTypedIn(int index) { return frmMain.txtDSize(index).HasFocus() && !IsAsShown(index); }

void Show(int index, const std::string& text) {
  shown[static_cast<std::size_t>(index)] = text;
  TextBox& field = frmMain.txtDSize(index);
  if (field.Text() != text) field.SetText(text);
}

void ShowUnlessTyped(int index, const std::string& text, bool same_object) {
  const std::string& last = shown[static_cast<std::size_t>(index)];
  const bool keeps = same_object && text == last && IsTypedIn(index);
  if (!keeps) Show(index, text);
}

}  // namespace

bool OneIsSelected() {
  return SelectedObject > -1 && SelectedObject <= ObjectUB && SelectedUpper < 0;
}

std::string InUsersUnit(double millimetres) { return FormatFixed(millimetres / UnitScale, 2); }

ShownSize ShownSizeOf(const ObjectRecord& record) {
  return {InUsersUnit(record.Left), InUsersUnit(record.Top), InUsersUnit(record.Width),
          InUsersUnit(record.Height)};
}

void ShowSizeFields() {
  const ShownSize size = SizeOfSelection();
  const std::int16_t object = OneIsSelected() ? SelectedObject : std::int16_t{-1};
  const bool same_object = object != -1 && object == shown_object;
  shown_object = object;
  for (int i = kLeftField; i <= kHeightField; ++i) {
    ShowUnlessTyped(i, size[static_cast<std::size_t>(i)], same_object);
  }
}

void ShowPlaceInFields(double left, double top) {
  Show(kLeftField, InUsersUnit(left - BoardOriginX));
  Show(kTopField, InUsersUnit(top - BoardOriginY));
}

void ShowExtentInFields(double width, double height) {
  Show(kWidthField, InUsersUnit(width));
  Show(kHeightField, InUsersUnit(height));
}

bool IsAsShown(int index) {
  return frmMain.txtDSize(index).Text() == shown[static_cast<std::size_t>(index)];
}

void ResetShownSize() {
  shown = kNoSize;
  shown_object = -1;
}

}  // namespace tagwright
