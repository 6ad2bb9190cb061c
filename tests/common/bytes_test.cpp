#include "platform/files/bytes.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

#include "platform/text/text.h"

namespace tagwright {
namespace {

using std::string_literals::operator""s;

TEST(ByteWriter, NumbersAreLittleEndian) {
  ByteWriter out;
  out.U16(0xABCD);
  out.I16(-2);
  out.I32(0x01020304);
  EXPECT_EQ(out.Bytes(), "\xCD\xAB\xFE\xFF\x04\x03\x02\x01"s);
}

TEST(ByteWriter, FloatsAreIeee754) {
  ByteWriter out;
  out.F32(1.0F);  // 3F800000
  out.F64(-2.5);  // C004000000000000
  EXPECT_EQ(out.Bytes(), "\0\0\x80\x3F\0\0\0\0\0\0\x04\xC0"s);
}

TEST(ByteWriter, TextIsCutOrPaddedWithBlanks) {
  ByteWriter out;
  out.Text("ab", 4);
  out.Text("abcde", 4);
  out.Text("", 2);
  EXPECT_EQ(out.Bytes(), "ab  abcd  ");
}

TEST(ByteWriter, TextIsOneBytePerCharacterOfTheCodePage) {
  ByteWriter out;
  out.Text("é€語", 4);
  EXPECT_EQ(out.Bytes(), "\xE9\x80? ");
}

TEST(ByteWriter, RawBytesAndZerosAreAsGiven) {
  ByteWriter out;
  out.Raw("a\0b"s);
  out.Zeros(2);
  EXPECT_EQ(out.Bytes(), "a\0b\0\0"s);
}

TEST(ByteReader, ReadsWhatTheWriterWrote) {
  ByteWriter out;
  out.U16(65535);
  out.I16(std::numeric_limits<std::int16_t>::min());
  out.I32(std::numeric_limits<std::int32_t>::min());
  out.F32(3.175F);
  out.F64(-1000.033);
  out.Text("Größe", 8);
  out.Raw("\x01\x02");
  ByteReader in(out.Bytes());
  EXPECT_EQ(in.U16(), 65535);
  EXPECT_EQ(in.I16(), std::numeric_limits<std::int16_t>::min());
  EXPECT_EQ(in.I32(), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(in.F32(), 3.175F);
  EXPECT_EQ(in.F64(), -1000.033);
  EXPECT_EQ(in.Text(8), "Größe   ");
  EXPECT_EQ(in.Raw(2), "\x01\x02");
}

TEST(ByteReader, KeepsEveryBitOfWhatIsNoNumber) {
  const std::string bytes = "\x01\0\xA0\x7F\x02\0\0\0\0\0\xF4\xFF"s;  // two signalling NaNs
  ByteReader in(bytes);
  ByteWriter out;
  out.F32(in.F32());
  out.F64(in.F64());
  EXPECT_EQ(out.Bytes(), bytes);
}

TEST(ByteReader, WhatIsMissingIsZeroInNumbersAndBlankInText) {
  ByteReader in("ab");
  EXPECT_EQ(in.Text(4), "ab  ");
  EXPECT_EQ(in.Text(2), "  ");
  EXPECT_EQ(in.I16(), 0);
  EXPECT_EQ(in.I32(), 0);
  EXPECT_EQ(in.F32(), 0);
  EXPECT_EQ(in.F64(), 0);
  EXPECT_EQ(in.Raw(3), "\0\0\0"s);
}

TEST(ByteReader, APartOfANumberIsFilledWithZeroBytes) {
  ByteReader in("\x34\x12\x01");
  EXPECT_EQ(in.I16(), 0x1234);
  EXPECT_EQ(in.I32(), 1);
  EXPECT_EQ(in.I32(), 0);
}

TEST(ByteReader, SkipsWithinAndPastTheEnd) {
  ByteReader in("abc");
  in.Skip(1);
  EXPECT_EQ(in.Raw(1), "b");
  in.Skip(10);
  EXPECT_EQ(in.Text(1), " ");
}

TEST(ByteReader, ZeroBytesAreKeptInTextAndBlankInPaths) {
  const std::string bytes = "a\0b\0"s;
  EXPECT_EQ(ByteReader(bytes).Text(4), "a\0b\0"s);
  EXPECT_EQ(ByteReader(bytes).PathText(4), "a b ");
}

}  // namespace
}  // namespace tagwright
