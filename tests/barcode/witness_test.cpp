// Our bars beside those of another program, symbol by symbol: every row of every published table,
// and exactly the departures that are meant. The other program is only run, as a user would.
#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <sstream>

#include "barcode/code_39.h"
#include "barcode/postal.h"
#include "barcode_test_support.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

// Its numbers of symbologies.
enum Symbology {
  kInterleaved25 = 3,
  kIndustrial25 = 7,
  kCode39Plain = 8,
  kCode39Full = 9,
  kEan = 13,
  kCodabarPlain = 18,
  kCode128Auto = 20,
  kUpcA = 34,
  kUpcE = 37,
  kPostNetPlain = 40,
  kCode128BOnly = 60,
  kRoyalMailPlain = 70
};

std::string Quoted(const std::string& text) { return "'" + Replace(text, "'", "'\\''") + "'"; }

std::string OutputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string output;
  std::array<char, 4096> part{};
  for (std::size_t n; (n = std::fread(part.data(), 1, part.size(), pipe.get())) > 0;) {
    output.append(part.data(), n);
  }
  return output;
}

std::string BitsOf(const std::string& hexadecimal) {
  std::string bits;
  for (const char digit : hexadecimal) {
    if (!std::isxdigit(static_cast<unsigned char>(digit))) continue;
    const int value = std::stoi(std::string(1, digit), nullptr, 16);
    for (int bit = 3; bit >= 0; --bit) bits += value >> bit & 1 ? '1' : '0';
  }
  return bits;
}

// The rows of modules of one symbol, "1" black, without the padding behind the last black one.
std::vector<std::string> RowsOf(Symbology symbology, const std::string& data,
                                const std::string& options = "") {
  std::istringstream lines(OutputOf("zint -b " + std::to_string(symbology) + " " + options +
                                    " --dump -d " + Quoted(data) + " 2>/dev/null"));
  std::vector<std::string> rows;
  for (std::string line; std::getline(lines, line);) {
    std::string bits = BitsOf(line);
    bits.resize(bits.find_last_of('1') + 1);
    if (!bits.empty()) rows.push_back(bits);
  }
  return rows;
}

std::string Modules(Symbology symbology, const std::string& data, const std::string& options = "") {
  const auto rows = RowsOf(symbology, data, options);
  return rows.empty() ? "no symbol" : rows.front();
}

// Elements as narrow and wide, for symbologies whose ratio is free.
std::string Elements(const std::string& modules) {
  std::string elements;
  for (std::size_t i = 0; i < modules.size();) {
    const std::size_t end =
        std::min(modules.find(modules[i] == '1' ? '0' : '1', i), modules.size());
    elements += end - i > 1 ? 'w' : 'n';
    i = end;
  }
  return elements;
}

class WitnessTest : public BarcodeTest {
 protected:
  void SetUp() override {
    if (OutputOf("zint --version 2>/dev/null").empty()) GTEST_SKIP() << "zint is not installed";
  }

  std::string Ours(const std::string& data, std::int16_t format) {
    Draw(data, format);
    return Picture();
  }

  std::string Digits(std::size_t count) {
    std::string digits;
    while (digits.size() < count) {
      digits += static_cast<char>('0' + std::uniform_int_distribution<int>(0, 9)(random_));
    }
    return digits;
  }

  void Note(bool same, const std::string& what) {
    if (!same) departures.insert(what);
  }

  using Departures = std::set<std::string>;
  Departures departures;
  std::mt19937 random_{20260314};
};

std::string TwoDigits(int number) {
  return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

TEST_F(WitnessTest, UpcAIsThePublishedOne) {
  for (int i = 0; i < 40; ++i) {
    Symbol symbol{Digits(11), 0};
    Draw(symbol);
    EXPECT_EQ(Picture(), Modules(kUpcA, symbol.data)) << symbol.data;
  }
}

TEST_F(WitnessTest, Ean13IsThePublishedOneForEveryFirstDigit) {
  for (int i = 0; i < 50; ++i) {
    Symbol symbol{std::string(1, static_cast<char>('0' + i % 10)) + Digits(11), 2};
    Draw(symbol);
    EXPECT_EQ(Picture(), Modules(kEan, symbol.data)) << symbol.data;
  }
}

TEST_F(WitnessTest, Ean8IsThePublishedOneOnceItsCheckDigitIsTyped) {
  for (int i = 0; i < 30; ++i) {
    const std::string seven = Digits(7);
    const std::string theirs = Modules(kEan, seven);
    int matches = 0;
    for (char check = '0'; check <= '9'; ++check) {
      matches += Ours(seven + check, 3) == theirs ? 1 : 0;
    }
    EXPECT_EQ(matches, 1) << seven;
  }
}

// The one retail symbol that is wholly the program's own.
TEST_F(WitnessTest, UpcEIsNeverThePublishedOne) {
  for (const char* data : {"01234565", "00000000", "06543217"}) {
    const std::string theirs = Modules(kUpcE, data);
    EXPECT_EQ(theirs.size(), 51U) << data;
    EXPECT_NE(Ours(data, 1), theirs) << data;
  }
}

TEST_F(WitnessTest, Code128BDepartsInTheLessThanSignAlone) {
  for (char character = ' '; character <= '~'; ++character) {
    if (character == ',' || character == ' ') continue;  // not drawn; blank data neither
    const std::string data(1, character);
    Note(Ours(data, 7) == Modules(kCode128BOnly, data), data);
  }
  // "<" is value 28, and so is the check value of ";".
  EXPECT_EQ(departures, (Departures{"<", ";"}));
  EXPECT_EQ(Ours("A B", 7), Modules(kCode128BOnly, "A B"));
}

TEST_F(WitnessTest, Code128CDepartsInTheValue28Alone) {
  for (int number = 0; number < 100; ++number) {
    const std::string data = TwoDigits(number) + "00";
    Note(Ours(data, 8) == Modules(kCode128Auto, data), data);
  }
  // 105 + 26 is 28 modulo 103.
  EXPECT_EQ(departures, (Departures{"2800", "2600"}));
}

TEST_F(WitnessTest, Code128CTakesAnOddLastDigitForAValue) {
  EXPECT_NE(Ours("123", 8), Modules(kCode128Auto, "123"));
  EXPECT_EQ(Ours("1203", 8), Modules(kCode128Auto, "1203"));
  EXPECT_EQ(Ours("123", 8), Ours("1203", 8));
}

// A control character makes the other program begin with code set A.
TEST_F(WitnessTest, Code128ABeginsAsPublishedAndDropsHighCheckValues) {
  EXPECT_EQ(Ours("A", 6).substr(0, 11), Modules(kCode128Auto, "\\x01\\x02", "--esc").substr(0, 11));
  // "ABC" in code set B and A: the same characters between start and check.
  EXPECT_EQ(Ours("ABC", 6).substr(11, 33), Modules(kCode128BOnly, "ABC").substr(11, 33));
  EXPECT_EQ(Ours("AB", 6).size() + 11, Modules(kCode128BOnly, "AB").size());
}

TEST_F(WitnessTest, Code39DepartsInTheFiveAlone) {
  for (const char character : std::string("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%")) {
    const std::string data = std::string("A") + character;
    Note(Ours(data, 9) == Modules(kCode39Plain, data), std::string(1, character));
  }
  EXPECT_EQ(departures, (Departures{"5"}));
}

// Without "*" around it, and with the grave accent under the code of the brace.
TEST_F(WitnessTest, Code39ExtendedDepartsInTheFiveAndTheGraveAccent) {
  const std::string star = Ours("A", 9).substr(0, 12);
  for (char character = ' '; character <= '~'; ++character) {
    const std::string data = std::string("A") + character;
    Note(star + "0" + Ours(data, 10) + "0" + star == Modules(kCode39Full, data),
         std::string(1, character));
  }
  EXPECT_EQ(departures, (Departures{"5", "`"}));
}

TEST_F(WitnessTest, CodabarDepartsInHyphenAndDollarAlone) {
  for (const char character : std::string("0123456789-$:/.+")) {
    const std::string data(1, character);
    const std::string theirs = Modules(kCodabarPlain, "A" + data + "A");
    Note(Elements(Ours(data, 11)) == Elements(theirs), data);
  }
  EXPECT_EQ(departures, (Departures{"$", "-"}));
  // The hyphen has what is published for the dollar sign.
  EXPECT_EQ(Elements(Ours("-", 11)), Elements(Modules(kCodabarPlain, "A$A")));
}

TEST_F(WitnessTest, TwoOfFiveIsThePublishedIndustrialForm) {
  for (int number = 0; number < 100; ++number) {
    const std::string data = TwoDigits(number);
    EXPECT_EQ(Elements(Ours(data, 4)), Elements(Modules(kIndustrial25, data))) << data;
  }
}

TEST_F(WitnessTest, InterleavedDepartsInDoubleZeroAndOddLengthsAlone) {
  for (int number = 0; number < 100; ++number) {
    const std::string data = TwoDigits(number) + "12";
    Note(Elements(Ours(data, 5)) == Elements(Modules(kInterleaved25, data)), data);
  }
  EXPECT_EQ(departures, (Departures{"0012"}));
  EXPECT_NE(Elements(Ours("123", 5)), Elements(Modules(kInterleaved25, "123")));
  EXPECT_EQ(Elements(Ours("123", 5)), Elements(Modules(kInterleaved25, "1233")));
}

// One module in two is a bar. The first row has what rises above the track, the third what hangs
// below it.
std::string PostalStates(const std::vector<std::string>& rows, const std::string& names) {
  const auto has = [](const std::string& row, std::size_t at) {
    return at < row.size() && row[at] == '1';
  };
  const std::size_t track = rows.size() == 3 ? 1 : rows.size() - 1;
  std::string states;
  for (std::size_t at = 0; at < rows[track].size(); at += 2) {
    const std::size_t up = has(rows[0], at) ? 1 : 0;
    const std::size_t down = rows.size() == 3 && has(rows[2], at) ? 2 : 0;
    states += names[up + down];
  }
  return states;
}

std::string Joined(const Patterns& patterns) {
  std::string all;
  for (const std::string_view pattern : patterns) all += pattern;
  return all;
}

TEST_F(WitnessTest, PostNetDepartsInTheCheckDigitOfSumsThatEndInZero) {
  for (int number = 0; number < 100; ++number) {
    const std::string data = "123" + TwoDigits(number);
    const auto rows = RowsOf(kPostNetPlain, data);
    ASSERT_EQ(rows.size(), 2U) << data;
    Note(Joined(PostNetPatterns(data)) == PostalStates(rows, "12"), data);
  }
  // 1 + 2 + 3 and 4 or 14.
  EXPECT_EQ(departures, (Departures{"12304", "12313", "12322", "12331", "12340", "12359", "12368",
                                    "12377", "12386", "12395"}));
}

TEST_F(WitnessTest, RoyalMailIsThePublishedOne) {
  const std::string characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const std::string data = characters.substr(i, 1) + characters.substr(i * 7 % 36, 1) + "SN3";
    const auto rows = RowsOf(kRoyalMailPlain, data);
    ASSERT_EQ(rows.size(), 3U) << data;
    EXPECT_EQ(Joined(RoyalMailPatterns(data)), PostalStates(rows, "3210")) << data;
  }
}

}  // namespace
}  // namespace tagwright
