// Pictures of pixels: what is read, how large it is, what is refused.
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <filesystem>
#include <string>

#include "paint_environment.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "qt/pictures/pictures.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

constexpr double kPixel = 2540.0 / 96;  // hundredths of a millimetre

int FaultOf(const std::string& path) {
  try {
    LoadPicture(path);
  } catch (const Fault& fault) {
    return fault.number;
  }
  return 0;
}

class PictureReaderTest : public PaintTest {
 protected:
  // A picture of the test data, as pixels.
  std::shared_ptr<const PixelPicture> Load(const std::string& name) {
    return std::dynamic_pointer_cast<const PixelPicture>(
        LoadPicture(TestDataFolder() + "/pictures/" + name));
  }
  int FaultOfBytes(const std::string& bytes, const std::string& name = "picture.jpg") {
    WriteFile(folder.File(name), bytes);
    return FaultOf(folder.File(name));
  }
  TempFolder folder;
};

void ExpectColor(QRgb color, int red, int green, int blue, int tolerance) {
  EXPECT_NEAR(qRed(color), red, tolerance);
  EXPECT_NEAR(qGreen(color), green, tolerance);
  EXPECT_NEAR(qBlue(color), blue, tolerance);
}

TEST_F(PictureReaderTest, TheSizeCountsPixelsWhateverResolutionTheFileNames) {
  const auto picture = Load("turned-300dpi.jpg");
  EXPECT_NEAR(picture->Width, 12 * kPixel, 1e-9);
  EXPECT_NEAR(picture->Height, 8 * kPixel, 1e-9);
}

TEST_F(PictureReaderTest, APictureIsNotTurnedByItsExifData) {
  EXPECT_EQ(Load("turned-300dpi.jpg")->pixels.size(), QSize(12, 8));
}

TEST_F(PictureReaderTest, OnlyTheFirstFrameIsRead) {
  const auto picture = Load("two-frames.gif");
  EXPECT_EQ(picture->pixels.size(), QSize(8, 6));
  ExpectColor(picture->pixels.pixel(4, 3), 255, 0, 0, 0);
}

TEST_F(PictureReaderTest, HolesOfAGifStayHoles) {
  const auto picture = Load("hole.gif");
  EXPECT_EQ(qAlpha(picture->pixels.pixel(5, 1)), 0);
  ExpectColor(picture->pixels.pixel(1, 1), 0, 0, 0, 0);
  EXPECT_TRUE(picture->lossless);
}

TEST_F(PictureReaderTest, GreyAndCmykAreReadable) {
  ExpectColor(Load("gray.jpg")->pixels.pixel(1, 1), 128, 128, 128, 3);
  const QRgb red = Load("cmyk.jpg")->pixels.pixel(1, 1);
  EXPECT_GT(qRed(red), 180);
  EXPECT_LT(qGreen(red), 90);
}

TEST_F(PictureReaderTest, TheContentDecidesNotTheName) {
  const std::string gif = ReadFile(TestDataFolder() + "/pictures/two-frames.gif");
  EXPECT_EQ(FaultOfBytes(gif, "picture.jpg"), 0);
  EXPECT_EQ(FaultOfBytes(gif, "picture.wmf"), 0);
  EXPECT_EQ(FaultOfBytes(gif, "no extension"), 0);
}

TEST_F(PictureReaderTest, NamesMayHoldAnything) {
  const std::string gif = ReadFile(TestDataFolder() + "/pictures/two-frames.gif");
  EXPECT_EQ(FaultOfBytes(gif, "Grün & weiß 50%.gif"), 0);
}

TEST_F(PictureReaderTest, WhatIsNoPictureIsUnreadable) {
  EXPECT_EQ(FaultOfBytes(""), 481);
  EXPECT_EQ(FaultOfBytes("text"), 481);
  EXPECT_EQ(FaultOfBytes("\xFF\xD8\xFFtext that follows a mark"), 481);
  EXPECT_EQ(FaultOfBytes("GIF89a"), 481);
  EXPECT_EQ(FaultOfBytes("\x89PNG\r\n\x1A\n"), 481);  // another format is none of the four
  EXPECT_EQ(FaultOfBytes("<svg xmlns='http://www.w3.org/2000/svg'/>", "a.gif"), 481);
}

TEST_F(PictureReaderTest, AFolderIsNoPicture) {
  std::filesystem::create_directory(folder.File("folder.gif"));
  EXPECT_NE(FaultOf(folder.File("folder.gif")), 0);
}

// A header can promise pixels that no computer has.
TEST_F(PictureReaderTest, SizesBeyondReasonAreRefusedBeforeMemoryIsTaken) {
  std::string gif = ReadFile(TestDataFolder() + "/pictures/two-frames.gif");
  gif.replace(6, 4, "\xFF\xFF\xFF\xFF");
  EXPECT_EQ(FaultOfBytes(gif), 481);
}

TEST_F(PictureReaderTest, EqualFilesHaveEqualDigestsAndOthersDoNot) {
  EXPECT_EQ(Load("hole.gif")->digest, Load("hole.gif")->digest);
  EXPECT_NE(Load("hole.gif")->digest, Load("two-frames.gif")->digest);
  EXPECT_EQ(Load("hole.gif")->pixels.cacheKey(), Load("hole.gif")->pixels.cacheKey());
}

// --- the larger collection ----------------------------------------------------------------------

QJsonObject FactsOf(const std::string& folder) {
  QFile file(QString::fromStdString(folder + "/facts.json"));
  return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                        : QJsonObject();
}

void ExpectFacts(const std::string& path, const QJsonObject& facts, int tolerance) {
  SCOPED_TRACE(path);
  const auto picture = std::dynamic_pointer_cast<const PixelPicture>(LoadPicture(path));
  ASSERT_TRUE(picture);
  const int width = facts["width"].toInt(), height = facts["height"].toInt();
  EXPECT_EQ(picture->pixels.size(), QSize(width, height));
  EXPECT_NEAR(picture->Width, width * kPixel, 1e-6);
  const QJsonArray middle = facts["centre_rgba"].toArray();
  if (middle.size() < 4 || middle[3].toInt() < 255) return;
  ExpectColor(picture->pixels.pixel(width / 2, height / 2), middle[0].toInt(), middle[1].toInt(),
              middle[2].toInt(), tolerance);
}

TEST_F(PictureReaderTest, EveryFileOfTheCollectionReadsAsItsFactsSay) {
  if (SharedDataFolder().empty()) GTEST_SKIP() << "the larger picture collection is not here";
  const std::string pictures = SharedDataFolder() + "/pictures";
  const QJsonObject facts = FactsOf(pictures);
  ASSERT_GT(facts.size(), 20);
  for (const QString& name : facts.keys()) {
    const std::string path = pictures + "/" + name.toStdString();
    if (name.startsWith("broken")) continue;
    const bool cmyk = name.contains("cmyk");
    ExpectFacts(path, facts[name].toObject(), cmyk ? 40 : name.endsWith(".gif") ? 0 : 6);
  }
}

TEST_F(PictureReaderTest, TheBrokenFilesOfTheCollectionGiveTheirAnswer) {
  if (SharedDataFolder().empty()) GTEST_SKIP() << "the larger picture collection is not here";
  const std::string pictures = SharedDataFolder() + "/pictures/";
  EXPECT_EQ(FaultOf(pictures + "broken-truncated_jpeg.jpg"), 0);  // as much as there is
  EXPECT_EQ(FaultOf(pictures + "broken-not-a-picture.jpg"), 481);
  EXPECT_EQ(FaultOf(pictures + "broken-empty.jpg"), 481);
  EXPECT_EQ(FaultOf(pictures + "broken-zero_width.gif"), 481);
  EXPECT_EQ(FaultOf(pictures + "broken-header.gif"), 481);
}

}  // namespace
}  // namespace tagwright
