#include "print/rendered_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace tagwright {
namespace {

constexpr int kMiddleGrey = 128;

bool IsPdf(const std::string& file) {
  char start[4] = {};
  std::ifstream(file, std::ios::binary).read(start, sizeof start);
  return std::string(start, sizeof start) == "%PDF";
}

// Files of tests have names without quotes.
std::string Command(const std::string& file, const std::string& picture, int page) {
  const std::string resolution = std::to_string(static_cast<int>(kRenderedPixelsPerInch));
  const std::string number = std::to_string(page);
  if (IsPdf(file)) {
    return "pdftoppm -gray -singlefile -aa no -aaVector no -r " + resolution + " -f " + number +
           " -l " + number + " '" + file + "' '" + picture + "' && mv '" + picture + ".pgm' '" +
           picture + "'";
  }
  return "gs -q -dNOPAUSE -dBATCH -dSAFER -dFirstPage=1 -dLastPage=1 -sDEVICE=pgmraw -r" +
         resolution + " '-sOutputFile=" + picture + "' '" + file + "'";
}

}  // namespace

RenderedPage::RenderedPage(const std::string& file, int page) {
  const std::string picture = file + ".page";
  EXPECT_EQ(std::system(Command(file, picture, page).c_str()), 0) << "cannot render " << file;
  std::ifstream stream(picture, std::ios::binary);
  std::string kind, line;
  stream >> kind >> std::ws;
  while (stream.peek() == '#') std::getline(stream, line);
  int whitest = 0;
  stream >> width_ >> height_ >> whitest;
  stream.get();
  grey_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
  stream.read(reinterpret_cast<char*>(grey_.data()), static_cast<std::streamsize>(grey_.size()));
  EXPECT_TRUE(stream && kind == "P5" && whitest == 255) << "no picture of " << file;
}

bool RenderedPage::Dark(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return false;
  return grey_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x)] < kMiddleGrey;
}

double RenderedPage::Ink(double left, double top, double right, double bottom) const {
  int dark = 0, all = 0;
  for (int y = static_cast<int>(top / kPixel); y < bottom / kPixel; ++y) {
    for (int x = static_cast<int>(left / kPixel); x < right / kPixel; ++x) {
      dark += Dark(x, y);
      ++all;
    }
  }
  return all == 0 ? 0 : static_cast<double>(dark) / all;
}

RenderedPage::Extent RenderedPage::AlongRow(double y, double from, double to) const {
  const int row = static_cast<int>(y / kPixel);
  int first = static_cast<int>(from / kPixel), last = static_cast<int>(to / kPixel);
  while (first < last && !Dark(first, row)) ++first;
  while (last > first && !Dark(last - 1, row)) --last;
  if (first == last) return {from, from};
  return {first * kPixel, last * kPixel};
}

RenderedPage::Extent RenderedPage::AlongColumn(double x, double from, double to) const {
  const int column = static_cast<int>(x / kPixel);
  int first = static_cast<int>(from / kPixel), last = static_cast<int>(to / kPixel);
  while (first < last && !Dark(column, first)) ++first;
  while (last > first && !Dark(column, last - 1)) --last;
  if (first == last) return {from, from};
  return {first * kPixel, last * kPixel};
}

}  // namespace tagwright
