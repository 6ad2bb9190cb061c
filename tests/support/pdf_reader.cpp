#include "support/pdf_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <sstream>
#include <string_view>

namespace tagwright {
namespace {

constexpr double kMillimetresPerPoint = 25.4 / 72;

std::string Quoted(const std::string& path) {
  std::string quoted = "'";
  for (const char c : path) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

std::string OutputOf(const std::string& command) {
  std::string output;
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return output;
  std::array<char, 65536> part;
  for (std::size_t n; (n = fread(part.data(), 1, part.size(), pipe)) > 0;) {
    output.append(part.data(), n);
  }
  if (pclose(pipe) != 0) output.clear();
  return output;
}

std::string Attribute(const std::string& line, const std::string& name) {
  const std::size_t at = line.find(" " + name + "=\"");
  if (at == std::string::npos) return {};
  const std::size_t start = at + name.size() + 3;
  return line.substr(start, line.find('"', start) - start);
}

std::vector<double> Numbers(const std::string& line, const std::string& name) {
  std::istringstream text(Attribute(line, name));
  return {std::istream_iterator<double>(text), {}};
}

double Number(const std::string& line, const std::string& name) {
  const std::vector<double> numbers = Numbers(line, name);
  return numbers.empty() ? 0 : numbers[0];
}

std::string Unescaped(std::string text) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kNames = {
      {{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}}};
  for (const auto& [name, character] : kNames) {
    if (text == name) return std::string(character);
  }
  if (text.starts_with("&#x")) return {static_cast<char>(std::stoi(text.substr(3), nullptr, 16))};
  return text;
}

// From the units of a path or text to millimetres on the page.
struct Transform {
  double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;
  double X(double x, double y) const { return (a * x + c * y + e) * kMillimetresPerPoint; }
  double Y(double x, double y) const { return (b * x + d * y + f) * kMillimetresPerPoint; }
  double Scale() const { return std::sqrt(std::abs(a * d - b * c)); }
};

Transform TransformOf(const std::string& line) {
  const std::vector<double> n = Numbers(line, "transform");
  if (n.size() < 6) return {};
  return {n[0], n[1], n[2], n[3], n[4], n[5]};
}

Color ColorOf(const std::string& line) {
  std::vector<double> parts = Numbers(line, "color");
  if (parts.empty()) return 0;
  if (parts.size() == 1) parts.resize(3, parts[0]);
  const auto level = [](double part) { return static_cast<int>(std::lround(part * 255)); };
  return Rgb(level(parts[0]), level(parts[1]), level(parts[2]));
}

// Goes through the tool's output line by line; one mark is open at a time.
class Reader {
 public:
  PdfPages pages;

  void Line(const std::string& line) {
    const std::string tag = line.substr(0, line.find_first_of(" />", line.find('<') + 1));
    const std::string name = tag.substr(std::min(tag.find('<') + 1, tag.size()));
    if (name == "page") return Page(line);
    if (name == "fill_path") return Open(PdfMark::What::kFill, line);
    if (name == "stroke_path") return Open(PdfMark::What::kStroke, line);
    if (name == "fill_text") return Open(PdfMark::What::kText, line);
    if (name == "fill_image") return Picture(line);
    if (name.starts_with("clip_")) clipping_ = true;
    if (clipping_) return;
    if (name == "span") return Span(line);
    if (name == "g") return Glyph(line);
    if (name == "moveto") NextPart();
    if (name == "moveto" || name == "lineto") Point(Number(line, "x"), Number(line, "y"));
    if (name == "curveto") Curve(line);
  }

 private:
  void Page(const std::string& line) {
    const std::vector<double> box = Numbers(line, "mediabox");
    if (++pages.count > 1 || box.size() < 4) return;
    pages.width = (box[2] - box[0]) * kMillimetresPerPoint;
    pages.height = (box[3] - box[1]) * kMillimetresPerPoint;
  }

  void Open(PdfMark::What what, const std::string& line) {
    clipping_ = false;
    transform_ = TransformOf(line);
    PdfMark mark;
    mark.what = what;
    mark.page = pages.count;
    mark.color = ColorOf(line);
    mark.pen_width = Number(line, "linewidth") * transform_.Scale() * kMillimetresPerPoint;
    mark.x1 = mark.y1 = std::numeric_limits<double>::infinity();
    mark.x2 = mark.y2 = -mark.x1;
    pages.marks.push_back(mark);
  }

  // Boxes that are filled together are one path of many parts, and each is a mark of its own.
  void NextPart() {
    if (pages.marks.empty()) return;
    PdfMark part = pages.marks.back();
    if (part.what != PdfMark::What::kFill || part.x1 > part.x2) return;
    part.has_curves = false;
    part.x1 = part.y1 = std::numeric_limits<double>::infinity();
    part.x2 = part.y2 = -part.x1;
    pages.marks.push_back(part);
  }

  void Point(double x, double y) {
    if (pages.marks.empty()) return;
    PdfMark& mark = pages.marks.back();
    mark.x1 = std::min(mark.x1, transform_.X(x, y));
    mark.y1 = std::min(mark.y1, transform_.Y(x, y));
    mark.x2 = std::max(mark.x2, transform_.X(x, y));
    mark.y2 = std::max(mark.y2, transform_.Y(x, y));
  }

  // Control points count: the quarters of ellipses touch their box with them.
  void Curve(const std::string& line) {
    for (const char* i : {"1", "2", "3"}) {
      Point(Number(line, std::string("x") + i), Number(line, std::string("y") + i));
    }
    pages.marks.back().has_curves = true;
  }

  void Picture(const std::string& line) {
    Open(PdfMark::What::kPicture, line);
    Point(0, 0);
    Point(1, 1);
    pages.marks.back().pixel_width = static_cast<int>(Number(line, "width"));
    pages.marks.back().pixel_height = static_cast<int>(Number(line, "height"));
  }

  void Span(const std::string& line) {
    if (pages.marks.empty()) return;
    const std::vector<double> size = Numbers(line, "trm");
    em_ = size.empty() ? 1 : size[0];
    pages.marks.back().font = Attribute(line, "font");
    pages.marks.back().font_size = em_ * transform_.Scale();
  }

  // Gaps as wide as a blank read as one: pages need not store blanks.
  void Glyph(const std::string& line) {
    constexpr double kGap = 0.15;  // of the size
    if (pages.marks.empty()) return;
    PdfMark& mark = pages.marks.back();
    const double x = Number(line, "x"), y = Number(line, "y");
    if (mark.text.empty()) {
      mark.x1 = transform_.X(x, y);
      mark.y1 = transform_.Y(x, y);
    } else if (x > end_ + kGap * em_) {
      mark.text += ' ';
    }
    mark.text += Unescaped(Attribute(line, "unicode"));
    end_ = x + Number(line, "adv") * em_;
    mark.x2 = transform_.X(end_, y);
    mark.y2 = transform_.Y(end_, y);
  }

  Transform transform_;
  double em_ = 1;
  double end_ = 0;         // of the last glyph
  bool clipping_ = false;  // what comes limits the marks after it and is none itself
};

}  // namespace

std::vector<PdfMark> PdfPages::Of(PdfMark::What what) const {
  std::vector<PdfMark> found;
  std::copy_if(marks.begin(), marks.end(), std::back_inserter(found),
               [&](const PdfMark& mark) { return mark.what == what; });
  return found;
}

PdfMark PdfPages::Text(const std::string& text) const {
  for (const PdfMark& mark : Of(PdfMark::What::kText)) {
    if (mark.text == text) return mark;
  }
  ADD_FAILURE() << "no text \"" << text << "\" on the pages";
  return {};
}

PdfPages ReadPdf(const std::string& path, const std::string& pages) {
  const std::string output =
      OutputOf("mutool trace " + Quoted(path) + " " + pages + " 2>/dev/null");
  EXPECT_FALSE(output.empty()) << "mutool could not read " << path;
  Reader reader;
  std::istringstream lines(output);
  for (std::string line; std::getline(lines, line);) reader.Line(line);
  return reader.pages;
}

}  // namespace tagwright
