#include "platform/database/reader_protocol.h"

#include <gtest/gtest.h>

#include "support/fault_of.h"

namespace tagwright {
namespace {

const std::vector<StoredValue> kRow = {std::monostate{},
                                       true,
                                       false,
                                       DecimalValue{"-12.5"},
                                       0.25F,
                                       -1e300,
                                       DateValue{34654.5},
                                       std::string("Grüße"),
                                       std::string()};

TEST(ReaderProtocolTest, RowComesBackAsItWas) {
  EXPECT_EQ(RowValues(RowContent(kRow)), kRow);
  EXPECT_TRUE(RowValues("").empty());
}

TEST(ReaderProtocolTest, BytesAreTheDocumentedOnes) {
  EXPECT_EQ(FrameBytes(FrameKind::kName, "Orders"), std::string("\7\0\0\0NOrders", 11));
  EXPECT_EQ(FrameBytes(FrameKind::kEnd, ""), std::string("\1\0\0\0E", 5));
  EXPECT_EQ(RowContent({std::monostate{}, true, false}), "0tf");
  EXPECT_EQ(RowContent({DecimalValue{"7"}, std::string("ab")}), std::string("n\1\0\0\0"
                                                                            "7\"\2\0\0\0ab",
                                                                            13));
  EXPECT_EQ(RowContent({1.0F}), std::string("s\0\0\x80\x3F", 5));
  EXPECT_EQ(RowContent({1.0}), std::string("d\0\0\0\0\0\0\xF0\x3F", 9));
  EXPECT_EQ(RowContent({DateValue{1.0}}), std::string("D\0\0\0\0\0\0\xF0\x3F", 9));
}

TEST(ReaderProtocolTest, RowCutShortIsNone) {
  const std::string content = RowContent(kRow);
  int whole = 0;
  for (std::size_t length = 0; length < content.size(); ++length) {
    const std::string_view cut = std::string_view(content).substr(0, length);
    std::vector<StoredValue> values;
    if (FaultOf([&] { values = RowValues(cut); }) == kDatabaseFault) continue;
    EXPECT_LT(values.size(), kRow.size());
    ++whole;
  }
  EXPECT_EQ(whole, static_cast<int>(kRow.size())) << "cuts between two values alone go unnoticed";
}

TEST(ReaderProtocolTest, UnknownKindOfValueFaults) {
  EXPECT_EQ(FaultOf([] { RowValues("x"); }), kDatabaseFault);
}

TEST(ReaderProtocolTest, TextLongerThanItsRowFaults) {
  EXPECT_EQ(FaultOf([] {
              RowValues(
                  std::string_view("\"\xFF\xFF\xFF\xFF"
                                   "ab",
                                   7));
            }),
            kDatabaseFault);
}

TEST(ReaderProtocolTest, FramesComeOutInPiecesOfAnyLength) {
  const std::string bytes = FrameBytes(FrameKind::kName, "Id") +
                            FrameBytes(FrameKind::kRow, RowContent(kRow)) +
                            FrameBytes(FrameKind::kLinked, "Far") + FrameBytes(FrameKind::kEnd, "");
  for (std::size_t piece = 1; piece <= bytes.size(); ++piece) {
    FrameReader reader;
    std::vector<Frame> frames;
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
      reader.Feed(std::string_view(bytes).substr(at, piece));
      while (std::optional<Frame> frame = reader.Next()) frames.push_back(*frame);
    }
    ASSERT_EQ(frames.size(), 4U) << "pieces of " << piece;
    EXPECT_EQ(frames[0].kind, FrameKind::kName);
    EXPECT_EQ(frames[0].content, "Id");
    EXPECT_EQ(RowValues(frames[1].content), kRow);
    EXPECT_EQ(frames[2].kind, FrameKind::kLinked);
    EXPECT_EQ(frames[3].kind, FrameKind::kEnd);
  }
}

TEST(ReaderProtocolTest, LengthThatNoReaderSendsFaults) {
  const auto fault = [](std::string_view bytes) {
    FrameReader reader;
    reader.Feed(bytes);
    return FaultOf([&] { reader.Next(); });
  };
  EXPECT_EQ(fault(std::string_view("\0\0\0\0", 4)), kDatabaseFault) << "not even a kind";
  EXPECT_EQ(fault(std::string_view("\1\0\0\4", 4)), kDatabaseFault) << "one too many";
  EXPECT_EQ(fault(std::string_view("\0\0\0\4", 4)), 0) << "the longest: wait for it";
  EXPECT_EQ(fault("Segmentation fault"), kDatabaseFault);
}

TEST(ReaderProtocolTest, UnknownKindOfFrameFaults) {
  FrameReader reader;
  reader.Feed(std::string_view("\1\0\0\0X", 5));
  EXPECT_EQ(FaultOf([&] { reader.Next(); }), kDatabaseFault);
}

TEST(ReaderProtocolTest, FrameThatIsTooLongIsNeverSent) {
  EXPECT_EQ(FrameBytes(FrameKind::kRow, std::string(kLongestFrame - 1, 'x')).size(),
            kLongestFrame + 4);
  EXPECT_EQ(FaultOf([] { FrameBytes(FrameKind::kRow, std::string(kLongestFrame, 'x')); }),
            kDatabaseFault);
}

}  // namespace
}  // namespace tagwright
