#include "platform/database/jet_header.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "platform/text/text.h"
#include "support/jet_writer.h"

namespace tagwright {
namespace {

class JetHeaderTest : public testing::TestWithParam<int> {
 protected:
  JetHeaderTest() { SetCodePage(1252); }

  std::string Bytes(const std::string& password) const {
    return JetBytes({.version = GetParam(), .password = password}).substr(0, kJetHeaderBytes);
  }
  JetHeader Header(const std::string& password) const {
    return ReadJetHeader(Bytes(password)).value();
  }
};

INSTANTIATE_TEST_SUITE_P(Versions, JetHeaderTest, testing::Values(3, 4));

TEST_P(JetHeaderTest, TellsTheVersion) { EXPECT_EQ(Header("").version, GetParam()); }

TEST_P(JetHeaderTest, FieldOfZerosIsNoPasswordAndOpensWithAny) {
  EXPECT_EQ(Header("").password, "");
  EXPECT_TRUE(OpensWith(Header(""), ""));
  EXPECT_TRUE(OpensWith(Header(""), "whatever"));
}

TEST_P(JetHeaderTest, PasswordOpensAndNothingElseDoes) {
  const JetHeader header = Header("secret97");
  EXPECT_TRUE(OpensWith(header, "secret97"));
  for (const char* wrong : {"", "secret9", "secret977", "Secret97", " secret97", "secret97 "}) {
    EXPECT_FALSE(OpensWith(header, wrong)) << wrong;
  }
}

TEST_P(JetHeaderTest, PasswordMayHaveUmlautsBlanksAndAnEuroSign) {
  const JetHeader header = Header("Grüße €97");
  EXPECT_TRUE(OpensWith(header, "Grüße €97"));
  EXPECT_FALSE(OpensWith(header, "Grüsse €97"));
}

TEST_P(JetHeaderTest, LongestPasswordFillsItsField) {
  const std::string longest = "abcdefghijklmnopqrst";
  EXPECT_TRUE(OpensWith(Header(longest), longest));
  EXPECT_FALSE(OpensWith(Header(longest), longest + "u"));
}

TEST_P(JetHeaderTest, FileCutShortOrOfAnotherKindHasNone) {
  const std::string bytes = Bytes("");
  EXPECT_TRUE(ReadJetHeader(bytes));
  EXPECT_FALSE(ReadJetHeader(bytes.substr(0, kJetHeaderBytes - 1)));
  EXPECT_FALSE(ReadJetHeader(""));
  EXPECT_FALSE(ReadJetHeader(std::string(kJetHeaderBytes, 'x')));
  std::string later = bytes;
  later.replace(4, 15, "Standard ACE DB");
  EXPECT_FALSE(ReadJetHeader(later));
  later = bytes;
  later[0x14] = 2;
  EXPECT_FALSE(ReadJetHeader(later));
}

// The mask as it is known, over the password's forty bytes: whoever knows no cipher can read them.
constexpr std::array<unsigned char, 40> kMask = {
    0x86, 0xFB, 0xEC, 0x37, 0x5D, 0x44, 0x9C, 0xFA, 0xC6, 0x5E, 0x28, 0xE6, 0x13, 0xB6,
    0x8A, 0x60, 0x54, 0x94, 0x7B, 0x36, 0xF5, 0x72, 0xDF, 0xB1, 0x77, 0xF4, 0x13, 0x43,
    0xCF, 0xAF, 0xB1, 0x33, 0x34, 0x61, 0x79, 0x5B, 0x92, 0xB5, 0x7C, 0x2A};

TEST(JetHeaderMaskTest, IsTheSameForEveryFileOfVersion3) {
  std::string bytes = JetBytes({.version = 3}).substr(0, kJetHeaderBytes);
  const std::string password = "Kennwort";
  for (std::size_t i = 0; i < 20; ++i) {
    const unsigned char plain = i < password.size() ? static_cast<unsigned char>(password[i]) : 0;
    bytes[0x42 + i] = static_cast<char>(plain ^ kMask[i]);
  }
  EXPECT_EQ(ReadJetHeader(bytes).value().password, password);
}

TEST(JetHeaderMaskTest, HasTheWholeDaysOfCreationOverItInVersion4) {
  for (const double created : {38000.0, 38000.999, 0.0, -2.5}) {
    std::string bytes = JetBytes({.version = 4, .created = created}).substr(0, kJetHeaderBytes);
    const auto days = static_cast<unsigned>(static_cast<int>(created));
    const std::string password("p\0w\0", 4);
    for (std::size_t i = 0; i < 40; ++i) {
      const unsigned char plain = i < password.size() ? static_cast<unsigned char>(password[i]) : 0;
      bytes[0x42 + i] = static_cast<char>(plain ^ kMask[i] ^ (days >> 8 * (i % 4) & 0xFF));
    }
    const JetHeader header = ReadJetHeader(bytes).value();
    EXPECT_TRUE(OpensWith(header, "pw")) << created;
    EXPECT_FALSE(OpensWith(header, "p")) << created;
  }
}

TEST(JetHeaderMaskTest, DateBeyondAllCountsIsTakenForNone) {
  const JetDatabase database{.version = 4, .password = "pw", .created = 0};
  const std::string undated = JetBytes(database).substr(0, kJetHeaderBytes);
  for (const double created : {1e300, -1e300, 2147483648.0, std::nan("")}) {
    std::string bytes = undated;
    const auto bits = std::bit_cast<std::uint64_t>(created);
    for (std::size_t i = 0; i < 8; ++i) {
      bytes[0x72 + i] =
          static_cast<char>(static_cast<unsigned char>(bytes[0x72 + i]) ^ (bits >> 8 * i & 0xFF));
    }
    ASSERT_NE(bytes, undated);
    EXPECT_TRUE(OpensWith(ReadJetHeader(bytes).value(), "pw")) << created;
  }
}

}  // namespace
}  // namespace tagwright
