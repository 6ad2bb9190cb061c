// Labels: captions, swatches, and on the board what stands for an object.
#pragma once

#include <string>

#include "platform/controls/control.h"
#include "platform/painting/fonts.h"
#include "platform/painting/surface.h"

namespace tagwright {

enum class TextAlignment { kLeft = 0, kRight = 1, kCenter = 2 };

// A caption, and on the board a hit area. With AutoSize on, each assignment of a caption or font
// (and turning it on, also again) fits the size to the text: as wide as the widest line, as high as
// ascent plus descent of all lines, which end at CR LF, CR or LF. An endless text leaves the
// size as it is, and a size assigned meanwhile holds until the next one.
class Label : public Control {
 public:
  using Control::Control;
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  const FontSpec& Font() const { return font_; }
  void SetFont(const FontSpec& font);
  void SetFontName(std::string name);  // an empty name keeps the present one
  void SetFontSize(double points);
  void SetFontBold(bool value);
  void SetFontItalic(bool value);
  bool AutoSize() const { return auto_size_; }
  void SetAutoSize(bool value);
  Color ForeColor() const { return fore_color_; }
  void SetForeColor(Color value);
  Color BackColor() const { return back_color_; }
  void SetBackColor(Color value);
  int BackStyle() const { return back_style_; }  // 0 transparent, 1 opaque
  void SetBackStyle(int value);
  TextAlignment Alignment() const { return alignment_; }
  void SetAlignment(TextAlignment value);  // values outside the enumeration are refused: 380
  int BorderStyle() const { return border_style_; }  // 0 none, 1 single
  void SetBorderStyle(int value);
  // A user's click on a label that has a view of its own (the swatches of the panels).
  void Press();

 protected:
  bool TakesMouse() const override { return true; }
  Control* FocusTarget() override;  // a label has no keyboard; its container's stand-in does

 private:
  void Fit();
  std::string caption_;
  FontSpec font_;
  bool auto_size_ = false;
  Color fore_color_ = 0;
  Color back_color_ = 0xFFFFFF;
  int back_style_ = 1;
  int border_style_ = 0;
  TextAlignment alignment_ = TextAlignment::kLeft;
};

}  // namespace tagwright
