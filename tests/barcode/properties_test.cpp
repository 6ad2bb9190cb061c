// What holds for any data, format and size, tried on many.
#include <random>

#include "barcode_test_support.h"

namespace tagwright {
namespace {

class BarcodePropertiesTest : public BarcodeTest {
 protected:
  int Whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
  double Real(double from, double to) {
    return std::uniform_real_distribution<double>(from, to)(random_);
  }
  std::string Data(std::string_view characters, int longest) {
    std::string data;
    for (int n = Whole(1, longest); n > 0; --n) {
      data +=
          characters[static_cast<std::size_t>(Whole(0, static_cast<int>(characters.size()) - 1))];
    }
    return data;
  }

  // The right edge of what is painted may be off by one rounding of the cursor for each element.
  static double Slack(const Symbol& symbol, std::size_t elements) {
    const double largest = std::abs(symbol.x) + std::abs(symbol.width);
    return (static_cast<double>(elements) + 2) * largest * 6e-8;
  }

  std::mt19937 random_{20260314};
};

constexpr std::string_view kAnything =
    "!#$%&'()*+,-./0123456789:;<=>?@ "
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~\""
    "\x01\x7F\x80\xFF";
constexpr std::string_view kOfAllFormats = "0123456789";

TEST_F(BarcodePropertiesTest, NoFaultGetsOutAndTheSameCallPaintsTheSame) {
  for (int i = 0; i < 4000; ++i) {
    Symbol symbol{Data(i % 2 ? kAnything : kOfAllFormats, 40),
                  static_cast<std::int16_t>(Whole(-2, 16))};
    symbol.x = static_cast<float>(Real(-300, 300));
    symbol.y = static_cast<float>(Real(-300, 300));
    symbol.width = Whole(0, 9) ? Real(-50, 200) : -1;
    symbol.height = Real(-20, 60);
    symbol.text = Whole(0, 1) == 1;
    symbol.font_size = Real(-4, 40);
    const std::string data = symbol.data;
    ASSERT_NO_THROW(Draw(symbol)) << data;
    const std::vector<Painted> first = page.painted;
    symbol.data = data;
    ASSERT_NO_THROW(Draw(symbol)) << data;
    ASSERT_EQ(first.size(), page.painted.size()) << data;
    for (std::size_t k = 0; k < first.size(); ++k) {
      ASSERT_EQ(first[k].x1, page.painted[k].x1) << data;
      ASSERT_EQ(first[k].y1, page.painted[k].y1) << data;
      ASSERT_EQ(first[k].x2, page.painted[k].x2) << data;
      ASSERT_EQ(first[k].y2, page.painted[k].y2) << data;
      ASSERT_EQ(first[k].Text(), page.painted[k].Text()) << data;
    }
  }
}

TEST_F(BarcodePropertiesTest, BoxesOfFormats4To11StayWithinTheirWidth) {
  const std::array<std::string_view, 12> sets = {"",
                                                 "",
                                                 "",
                                                 "",
                                                 "0123456789",
                                                 "0123456789",
                                                 "ABCDEFGHIJ0123<",
                                                 "abcDEF 12<`~",
                                                 "0123456789",
                                                 "ABC5*-. $/+%",
                                                 "ab{`}~ABC*,",
                                                 "0123456789-$:/.+abcdtn*e"};
  for (int i = 0; i < 4000; ++i) {
    const int format = Whole(4, 11);
    Symbol symbol{Data(sets[static_cast<std::size_t>(format)], 60),
                  static_cast<std::int16_t>(format)};
    if (symbol.data.find_first_not_of(' ') == std::string::npos) continue;
    symbol.x = static_cast<float>(Real(-100, 200));
    symbol.width = Real(1, 200);
    symbol.height = Real(1, 50);
    Draw(symbol);
    const auto bars = Bars();
    ASSERT_FALSE(bars.empty()) << symbol.data;
    const double slack = Slack(symbol, 2 * bars.size());
    EXPECT_DOUBLE_EQ(bars.front().left, static_cast<double>(symbol.x));
    for (std::size_t k = 0; k < bars.size(); ++k) {
      ASSERT_GE(bars[k].left, symbol.x - slack) << symbol.data;
      ASSERT_LE(bars[k].right, symbol.x + symbol.width + slack) << symbol.data;
      ASSERT_GT(bars[k].right, bars[k].left);
      ASSERT_DOUBLE_EQ(bars[k].top, static_cast<double>(symbol.y));
      ASSERT_DOUBLE_EQ(bars[k].bottom, symbol.y + symbol.height);
      if (k == 0) continue;
      ASSERT_GE(bars[k].left, bars[k - 1].right - slack) << symbol.data;
    }
    // Formats that end on a bar fill the width exactly, the others leave their last narrow space.
    const bool ends_on_space = format == 4 || format == 10 || format == 11;
    const double end = symbol.x + symbol.width - (ends_on_space ? ModuleWidth : 0);
    EXPECT_NEAR(bars.back().right, end, slack) << symbol.data;
  }
}

// Whatever the symbol, all of the data stands below its bars, once and centred.
TEST_F(BarcodePropertiesTest, TextOfFormats4To11StandsCentredBelowTheBars) {
  for (int i = 0; i < 2000; ++i) {
    Symbol symbol{Data(kOfAllFormats, 60), static_cast<std::int16_t>(Whole(4, 11))};
    symbol.x = static_cast<float>(Real(-100, 200));
    symbol.y = static_cast<float>(Real(-100, 200));
    symbol.width = Real(1, 200);
    symbol.height = Real(1, 50);
    symbol.font_size = Real(1, 20);
    symbol.text = true;
    Draw(symbol);
    const double letter = symbol.font_size / kMillimetreFont;
    const double text_width = 0.5 * letter * static_cast<double>(symbol.data.size());
    const auto texts = Texts();
    ASSERT_EQ(texts.size(), 1U) << symbol.data;
    EXPECT_EQ(texts[0].Text(), symbol.data);
    EXPECT_NEAR(texts[0].x1, symbol.x + symbol.width / 2 - text_width / 2, 1e-9) << symbol.data;
    EXPECT_NEAR(texts[0].y1, symbol.y + symbol.height - 0.85 * 1.1 * letter, 1e-9) << symbol.data;
  }
}

// One module right of a left digit's own space, at the left edge of a right digit.
TEST_F(BarcodePropertiesTest, DigitsOfUpcAndEan8StandUnderTheirBars) {
  for (int i = 0; i < 1000; ++i) {
    const bool upc = Whole(0, 1) == 1;
    const int digits = upc ? 12 : 8;
    Symbol symbol{Data(kOfAllFormats, 1), static_cast<std::int16_t>(upc ? 0 : 3)};
    while (static_cast<int>(symbol.data.size()) < digits) symbol.data += Data(kOfAllFormats, 1);
    symbol.x = static_cast<float>(Real(-100, 200));
    symbol.width = Real(1, 200);
    symbol.height = Real(10, 50);
    symbol.font_size = Real(1, 12);
    symbol.text = true;
    Draw(symbol);
    const auto texts = Texts();
    ASSERT_EQ(texts.size(), symbol.data.size());
    const double letter = symbol.font_size / kMillimetreFont;
    for (int k = 0; k < digits; ++k) {
      const Painted& text = texts[static_cast<std::size_t>(k)];
      const double modules = 3 + 7 * k + (2 * k < digits ? 1 : 5);
      EXPECT_EQ(text.Text(), symbol.data.substr(static_cast<std::size_t>(k), 1));
      EXPECT_NEAR(text.x1, symbol.x + modules * ModuleWidth, 1e-3) << symbol.data;
      EXPECT_NEAR(text.y1, symbol.y + symbol.height - 0.65 * 1.1 * letter - 1.5 + 0.25, 1e-9);
    }
  }
}

TEST_F(BarcodePropertiesTest, UpcAndEanFollowTheirDivisors) {
  for (int i = 0; i < 2000; ++i) {
    const int format = Whole(0, 3);
    const std::array<int, 4> longest = {12, 8, 13, 8};
    Symbol symbol{Data(kOfAllFormats, longest[static_cast<std::size_t>(format)]),
                  static_cast<std::int16_t>(format)};
    symbol.x = static_cast<float>(Real(-100, 200));
    symbol.width = Real(1, 200);
    symbol.text = Whole(0, 1) == 1;
    symbol.font_size = Real(1, 12);
    Draw(symbol);
    const double length = static_cast<double>(symbol.data.size());
    const double character = 0.5 * symbol.font_size / kMillimetreFont;
    const double divisor = format == 2 ? 2 * character + length * 7 + 14 : length * 7 + 12;
    EXPECT_NEAR(ModuleWidth, symbol.width / divisor, 1e-9) << symbol.data;
    const double digits = format == 2 ? length - 1 : length;
    const bool centre = format != 1 && length > 1;
    const double modules = 3 + 7 * digits + (centre ? 5 : 0) + (format == 1 ? 6 : 3);
    const double left = symbol.x + (format == 2 && symbol.text ? character + 0.5 : 0);
    const auto bars = Bars();
    EXPECT_NEAR(bars.front().left, left, 1e-4) << symbol.data;
    EXPECT_NEAR(bars.back().right, left + modules * ModuleWidth, 1e-3) << symbol.data;
  }
}

TEST_F(BarcodePropertiesTest, PostalSymbolsHaveTheirOwnWidth) {
  for (int i = 0; i < 1000; ++i) {
    const bool post_net = Whole(0, 1) == 1;
    Symbol symbol{Data(kOfAllFormats, 30), static_cast<std::int16_t>(post_net ? 12 : 13)};
    int sum = 0;
    for (const char digit : symbol.data) sum += digit - '0';
    symbol.width = Real(-10, 500);
    Draw(symbol);
    const auto bars = Bars();
    const std::size_t length = symbol.data.size();
    const std::size_t count = post_net ? length * 5 + (sum % 10 ? 5 : 0) + 2 : (length + 1) * 4 + 2;
    ASSERT_EQ(bars.size(), count) << symbol.data;
    const double step = post_net ? 0.508 + 0.6604 : 1.1, width = post_net ? 0.508 : 0.55;
    const double end = symbol.x + step * static_cast<double>(count - 1) + width;
    EXPECT_NEAR(bars.back().right, end, 1e-3) << symbol.data;
  }
}

}  // namespace
}  // namespace tagwright
