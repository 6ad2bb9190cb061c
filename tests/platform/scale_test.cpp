#include "platform/painting/scale.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/faults/fault.h"

namespace tagwright {
namespace {

constexpr double kInch = 1440;

int FaultOf(void (*statement)(ScaleSpace&)) {
  ScaleSpace space(kInch, kInch);
  try {
    statement(space);
  } catch (const Fault& fault) {
    return fault.number;
  }
  return 0;
}

TEST(ScaleTest, AnAreaIsMeasuredInTwipsAtFirst) {
  const ScaleSpace space(2880, 1440);
  EXPECT_EQ(space.ScaleMode(), kTwips);
  EXPECT_EQ(space.ScaleWidth(), 2880);
  EXPECT_EQ(space.ScaleHeight(), 1440);
  EXPECT_EQ(space.UnitX(), 1);
}

TEST(ScaleTest, EachCodeHasItsUnit) {
  ScaleSpace space(2 * kInch, kInch);
  space.SetScaleMode(kPixels);
  EXPECT_DOUBLE_EQ(space.ScaleWidth(), 192);
  EXPECT_DOUBLE_EQ(space.UnitX(), 15);
  space.SetScaleMode(kMillimetres);
  EXPECT_DOUBLE_EQ(space.ScaleWidth(), 50.8);
  EXPECT_DOUBLE_EQ(space.ScaleHeight(), 25.4);
  space.SetScaleMode(kTwips);
  EXPECT_DOUBLE_EQ(space.ScaleHeight(), 1440);
}

TEST(ScaleTest, APrintersPixelIsItsOwn) {
  ScaleSpace space(kInch, kInch, 600);
  EXPECT_DOUBLE_EQ(space.ScaleX(25.4, kMillimetres, kPixels), 600);
  space.SetPixelsPerInch(300);
  EXPECT_DOUBLE_EQ(space.ScaleX(25.4, kMillimetres, kPixels), 300);
}

TEST(ScaleTest, OtherCodesAreRefused) {
  for (const int code : {-1, 2, 4, 5, 7}) {
    ScaleSpace space(kInch, kInch);
    EXPECT_THROW(space.SetScaleMode(code), Fault) << code;
    EXPECT_THROW(space.ScaleX(1, code, kTwips), Fault) << code;
    EXPECT_THROW(space.ScaleY(1, kTwips, code), Fault) << code;
    EXPECT_EQ(space.ScaleMode(), kTwips);
  }
  EXPECT_EQ(FaultOf([](ScaleSpace& space) { space.SetScaleMode(2); }), kBadValue);
}

TEST(ScaleTest, CodeZeroKeepsThePresentNumbers) {
  ScaleSpace space(kInch, 2 * kInch);
  space.SetScaleMode(kMillimetres);
  space.SetScaleMode(kUserScale);
  EXPECT_DOUBLE_EQ(space.ScaleWidth(), 25.4);
  EXPECT_DOUBLE_EQ(space.ScaleHeight(), 50.8);
}

TEST(ScaleTest, SettingAScaleSideMakesAUserScaleAndTheOtherSideKeepsItsNumber) {
  ScaleSpace space(kInch, 2 * kInch);
  space.SetScaleMode(kMillimetres);
  space.SetScaleWidth(100);
  EXPECT_EQ(space.ScaleMode(), kUserScale);
  EXPECT_DOUBLE_EQ(space.ScaleWidth(), 100);
  EXPECT_DOUBLE_EQ(space.ScaleHeight(), 50.8);
  space.SetScaleHeight(10);
  EXPECT_DOUBLE_EQ(space.ScaleWidth(), 100);
  EXPECT_DOUBLE_EQ(space.UnitY(), 288);
}

TEST(ScaleTest, AUserScaleStretchesWithItsAreaAndTheOthersDoNot) {
  ScaleSpace space(kInch, kInch);
  space.SetScaleWidth(10);
  space.Resize(2 * kInch, kInch);
  EXPECT_EQ(space.ScaleWidth(), 10);
  EXPECT_EQ(space.UnitX(), 288);
  space.SetScaleMode(kTwips);
  space.Resize(100, 50);
  EXPECT_EQ(space.ScaleWidth(), 100);
  EXPECT_EQ(space.UnitX(), 1);
}

TEST(ScaleTest, ScaleSidesMustBePositiveNumbers) {
  EXPECT_EQ(FaultOf([](ScaleSpace& space) { space.SetScaleWidth(0); }), kBadValue);
  EXPECT_EQ(FaultOf([](ScaleSpace& space) { space.SetScaleWidth(-1); }), kBadValue);
  EXPECT_EQ(FaultOf([](ScaleSpace& space) { space.SetScaleHeight(0); }), kBadValue);
  EXPECT_EQ(FaultOf([](ScaleSpace& space) {
              space.SetScaleHeight(std::numeric_limits<double>::infinity());
            }),
            kBadValue);
  EXPECT_EQ(FaultOf([](ScaleSpace& space) {
              space.SetScaleWidth(std::numeric_limits<double>::quiet_NaN());
            }),
            kBadValue);
  EXPECT_EQ(FaultOf([](ScaleSpace& space) { space.SetScaleWidth(1e-9); }), 0);
}

TEST(ScaleTest, ARefusedSideLeavesTheScaleAsItWas) {
  ScaleSpace space(kInch, kInch);
  EXPECT_THROW(space.SetScaleWidth(0), Fault);
  EXPECT_EQ(space.ScaleMode(), kTwips);
  EXPECT_EQ(space.ScaleWidth(), kInch);
}

TEST(ScaleTest, DistancesConvertBetweenAllCodes) {
  ScaleSpace space(kInch, kInch);
  space.SetScaleWidth(100);
  space.SetScaleHeight(50);
  EXPECT_DOUBLE_EQ(space.ScaleX(50, kUserScale, kPixels), 48);
  EXPECT_DOUBLE_EQ(space.ScaleY(50, kUserScale, kPixels), 96);
  EXPECT_DOUBLE_EQ(space.ScaleX(15, kTwips, kPixels), 1);
  EXPECT_DOUBLE_EQ(space.ScaleX(96, kPixels, kMillimetres), 25.4);
  EXPECT_DOUBLE_EQ(space.ScaleX(25.4, kMillimetres, kTwips), 1440);
}

TEST(ScaleTest, CodeZeroIsThePresentScaleWhateverItsMode) {
  ScaleSpace space(kInch, kInch);
  space.SetScaleMode(kMillimetres);
  EXPECT_DOUBLE_EQ(space.ScaleX(25.4, kUserScale, kTwips), 1440);
  space.SetScaleMode(kPixels);
  EXPECT_DOUBLE_EQ(space.ScaleX(1, kUserScale, kTwips), 15);
}

TEST(ScaleTest, AConversionToTheSameCodeIsExact) {
  ScaleSpace space(kInch, kInch);
  space.SetScaleWidth(0.3);
  EXPECT_EQ(space.ScaleX(0.1, kUserScale, kUserScale), 0.1);
}

TEST(ScaleTest, AnEmptyAreaCountsAsOneTwipAUnit) {
  ScaleSpace space(0, 0);
  space.SetScaleWidth(100);
  EXPECT_EQ(space.UnitX(), 1);
  EXPECT_EQ(space.ScaleX(5, kUserScale, kTwips), 5);
  ScaleSpace unset(0, 0);
  unset.SetScaleMode(kUserScale);
  unset.Resize(100, 100);
  EXPECT_EQ(unset.UnitX(), 1);
}

TEST(ScaleTest, ANegativeAreaIsEmpty) {
  const ScaleSpace space(-5, -7);
  EXPECT_EQ(space.ScaleWidth(), 0);
  EXPECT_EQ(space.ScaleHeight(), 0);
}

}  // namespace
}  // namespace tagwright
