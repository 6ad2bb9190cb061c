#include "barcode/validation.h"

#include "barcode/formats.h"
#include "barcode_test_support.h"

namespace tagwright {
namespace {

using ValidationTest = BarcodeTest;

TEST_F(ValidationTest, TheBadCharactersInOrderWithTheirRepeats) {
  EXPECT_EQ(ValidateBarcodeData(0, "A1A"), "AA");
  EXPECT_EQ(ValidateBarcodeData(0, "b1a2b"), "bab");
  EXPECT_EQ(ValidateBarcodeData(0, "0123456789"), "");
  EXPECT_EQ(ValidateBarcodeData(0, ""), "");
}

TEST_F(ValidationTest, ItDistinguishesCapitals) {
  EXPECT_EQ(ValidateBarcodeData(9, "AaBb"), "ab");
  EXPECT_EQ(ValidateBarcodeData(11, "AaBbT"), "ABT");
}

TEST_F(ValidationTest, EachFormatStoresItsRules) {
  const std::array<std::int16_t, 13> limits = {12, 8, 13, 8, -1, -1, -1, -1, -1, -1, -1, -1, -1};
  for (std::int16_t format = 0; format < 13; ++format) {
    ValidateBarcodeData(format, "x");
    const auto row = static_cast<std::size_t>(format);
    EXPECT_EQ(MaxChars, limits[row]) << format;
    EXPECT_EQ(ValidChars, kBarcodeFormats[row].set.characters) << format;
  }
}

TEST_F(ValidationTest, CommasUnderCode128AndOthers) {
  EXPECT_EQ(ValidateBarcodeData(6, "A,B"), ",");
  EXPECT_EQ(ValidateBarcodeData(7, "A,B"), ",");
  EXPECT_EQ(ValidateBarcodeData(10, "A,B"), "");
  EXPECT_EQ(ValidateBarcodeData(6, "\"\\^_"), "");
  EXPECT_EQ(ValidateBarcodeData(6, "`a"), "`a");
  EXPECT_EQ(ValidateBarcodeData(7, "`a~"), "");
}

TEST_F(ValidationTest, RoyalMailIsJudgedByTheFormatTestedBefore) {
  ValidateBarcodeData(0, "");
  EXPECT_EQ(ValidateBarcodeData(13, "AB12"), "AB");
  EXPECT_EQ(MaxChars, 12);
  ValidateBarcodeData(7, "");
  EXPECT_EQ(ValidateBarcodeData(13, "ab12"), "");
  EXPECT_EQ(MaxChars, -1);
}

TEST_F(ValidationTest, BeforeAnyFormatEveryCharacterIsBad) {
  EXPECT_EQ(ValidateBarcodeData(13, "AB12"), "AB12");
  EXPECT_EQ(MaxChars, 0);
  EXPECT_EQ(ValidChars, "");
}

TEST_F(ValidationTest, NoFormatAtAllChangesNothingEither) {
  ValidateBarcodeData(9, "");
  for (const std::int16_t format : {-1, 14, 15, 32767, -32768}) {
    EXPECT_EQ(ValidateBarcodeData(format, "Aa"), "a");
    EXPECT_EQ(MaxChars, -1);
  }
}

TEST_F(ValidationTest, CharactersBeyondAsciiAreReportedWhole) {
  EXPECT_EQ(ValidateBarcodeData(7,
                                "Stra\xC3\x9F"
                                "e \xE2\x82\xAC"),
            "\xC3\x9F\xE2\x82\xAC");
}

}  // namespace
}  // namespace tagwright
