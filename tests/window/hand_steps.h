// What users do on the label with mouse and keyboard, in millimetres of the label, and what the
// saved label then holds.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "window/steps.h"

namespace tagwright::window_test {

// Where the label lies on the screen, at a zoom of 1 for 100 per cent.
class Paper {
 public:
  // To be made while the label is empty: it is found by its white.
  explicit Paper(const Program& program, double zoom = 1);

  int X(double millimetres) const;
  int Y(double millimetres) const;

  void Click(double x, double y, int button = 1) const;
  void Drag(double x, double y, double to_x, double to_y) const;
  // Drags the middle of a handle of the selected object, whose box is told, at 100 per cent: 0 top
  // left, 1 top right, 2 bottom left, 3 bottom right.
  void DragHandle(int handle, double left, double top, double width, double height, double by_x,
                  double by_y) const;

 private:
  double pixels_per_millimetre_;
  int left_;
  int top_;
};

// One object of a saved label, from its 333 bytes.
struct SavedObject {
  double left = 0, top = 0, width = 0, height = 0;  // millimetres
  int kind = 0;
  std::string text;  // as the file has it, in its code page; without the blanks that fill it up
  int param = 0;
  std::string font;
  double font_size = 0;
  bool bold = false, italic = false;
  std::int32_t fore_color = 0, fill_color = 0;
};

// The objects of a project file, without what it says about data and serial numbers.
std::vector<SavedObject> ObjectsIn(const std::string& project);

// Saves the label under `project` and reads what it holds.
std::vector<SavedObject> SavedAs(const Program& program, const std::string& project);

// Presses the button (or whatever it is) of this spoken name.
void PressOn(const Program& program, const std::string& name);

// Chooses a shape of the drawing panel and drags it open.
void DrawShape(const Program& program, const Paper& paper, const std::string& shape, double left,
               double top, double right, double bottom);

// Fills the panel of barcodes and arms the tool.
void ArmBarcode(const Program& program, const std::string& format, const std::string& data);

// Chooses a picture for the picture tool, which is armed then.
void ArmPicture(const Program& program, const std::string& path);

// Chooses a column of the table for the next data field, with two quick clicks.
void ChooseColumn(const Program& program, const std::string& column);

// Puts other text into a field and leaves it.
void Retype(const Program& program, const std::string& field, const std::string& text);

// Waits until an assistive tool hears `text` from what is called `name`: a part of the status bar,
// or the board.
void WaitToHear(const Program& program, const std::string& name, const std::string& text);

}  // namespace tagwright::window_test
