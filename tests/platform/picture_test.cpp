#include "platform/painting/picture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

int reads = 0;
std::string last_bytes, last_name;

PicturePtr RememberingReader(const std::string& bytes, std::string_view name) {
  ++reads;
  last_bytes = bytes;
  last_name = name;
  return bytes == "good" ? BlankPicture(100, 50) : nullptr;
}

int FaultOf(const std::string& path) {
  try {
    LoadPicture(path);
  } catch (const Fault& fault) {
    return fault.number;
  }
  return 0;
}

class LoadPictureTest : public testing::Test {
 protected:
  LoadPictureTest() {
    reads = 0;
    SetPictureReader(RememberingReader);
  }
  ~LoadPictureTest() override { SetPictureReader(nullptr); }
  TempFolder folder;
};

TEST_F(LoadPictureTest, HandsTheBytesAndTheLastPartOfTheNameToTheReader) {
  WriteFile(folder.File("Logo.GIF"), "good");
  const PicturePtr picture = LoadPicture(folder.File("Logo.GIF"));
  EXPECT_EQ(picture->Width, 100);
  EXPECT_EQ(picture->Height, 50);
  EXPECT_EQ(last_bytes, "good");
  EXPECT_EQ(last_name, "Logo.GIF");
}

// Files of the tests' own data have lain there since long before the tests ran.
const std::string kOldFile = TestDataFolder() + "/pictures/hole.gif";
const std::string kOtherOldFile = TestDataFolder() + "/pictures/placeable.wmf";

PicturePtr AnyReader(const std::string&, std::string_view) {
  ++reads;
  return BlankPicture(100, 50);
}

TEST_F(LoadPictureTest, AFileThatStaysTheSameIsReadOnce) {
  SetPictureReader(AnyReader);
  const PicturePtr first = LoadPicture(kOldFile);
  EXPECT_EQ(LoadPicture(kOldFile), first);
  EXPECT_EQ(reads, 1);
}

TEST_F(LoadPictureTest, ThePictureOfAnotherReaderIsNoneOfThisOne) {
  SetPictureReader(AnyReader);
  LoadPicture(kOldFile);
  SetPictureReader(RememberingReader);
  EXPECT_EQ(FaultOf(kOldFile), 481);
}

TEST_F(LoadPictureTest, AnotherFileUnderTheSameNameIsReadAnew) {
  SetPictureReader(AnyReader);
  const std::string name = folder.File("a.gif");
  std::filesystem::create_symlink(kOldFile, name);
  const PicturePtr first = LoadPicture(name);
  std::filesystem::remove(name);
  EXPECT_EQ(FaultOf(name), 53);
  std::filesystem::create_symlink(kOtherOldFile, name);
  EXPECT_NE(LoadPicture(name), first);
  EXPECT_EQ(reads, 2);
}

// Within one tick of a file's clock a change would not show.
TEST_F(LoadPictureTest, AFileThatHasJustChangedIsReadAnewAtEachCall) {
  WriteFile(folder.File("a.gif"), "good");
  LoadPicture(folder.File("a.gif"));
  LoadPicture(folder.File("a.gif"));
  EXPECT_EQ(reads, 2);
  WriteFile(folder.File("a.gif"), "evil");
  EXPECT_EQ(FaultOf(folder.File("a.gif")), 481);
}

TEST_F(LoadPictureTest, OfManyPicturesTheOldestAreForgotten) {
  SetPictureReader(AnyReader);
  LoadPicture(kOldFile);
  for (int i = 0; i < 256; ++i) {
    const std::string name = folder.File(std::to_string(i) + ".gif");
    std::filesystem::create_symlink(kOldFile, name);
    LoadPicture(name);
  }
  EXPECT_EQ(reads, 257);
  LoadPicture(kOldFile);
  EXPECT_EQ(reads, 258);
  LoadPicture(folder.File("255.gif"));
  EXPECT_EQ(reads, 258);
}

// A little more than half of what is kept at most, counted in pixels of the screen.
PicturePtr HalfReader(const std::string&, std::string_view) {
  constexpr double kSide = 4100 * 2540.0 / 96;
  ++reads;
  return BlankPicture(kSide, kSide);
}

TEST_F(LoadPictureTest, LargePicturesAreKeptAsLongAsTheyFitTogether) {
  SetPictureReader(HalfReader);
  for (const char* name : {"1.gif", "2.gif", "3.gif"}) {
    std::filesystem::create_symlink(kOldFile, folder.File(name));
  }
  LoadPicture(folder.File("1.gif"));
  LoadPicture(folder.File("2.gif"));
  LoadPicture(folder.File("1.gif"));
  EXPECT_EQ(reads, 2) << "the newest is kept whatever follows up to the limit";
  LoadPicture(folder.File("3.gif"));
  LoadPicture(folder.File("2.gif"));
  EXPECT_EQ(reads, 3);
  LoadPicture(folder.File("1.gif"));
  EXPECT_EQ(reads, 4) << "the oldest made room";
}

// A label that shows it needs it at every redraw.
TEST_F(LoadPictureTest, APictureLargerThanAllThatIsKeptStaysAlone) {
  SetPictureReader([](const std::string&, std::string_view) {
    ++reads;
    return BlankPicture(1e6, 1e6);
  });
  std::filesystem::create_symlink(kOldFile, folder.File("1.gif"));
  LoadPicture(kOldFile);
  LoadPicture(folder.File("1.gif"));
  LoadPicture(folder.File("1.gif"));
  EXPECT_EQ(reads, 2);
  LoadPicture(kOldFile);
  EXPECT_EQ(reads, 3);
}

TEST_F(LoadPictureTest, FindsTheFileWhateverTheCaseOfItsName) {
  WriteFile(folder.File("Logo.GIF"), "good");
  EXPECT_EQ(FaultOf(folder.File("logo.gif")), 0);
}

TEST_F(LoadPictureTest, AMissingFileIsFault53) {
  EXPECT_EQ(FaultOf(folder.File("none.gif")), 53);
  EXPECT_EQ(FaultOf(""), 53);
  EXPECT_EQ(reads, 0);
}

TEST_F(LoadPictureTest, AnUnreadableFileIsFault481) {
  WriteFile(folder.File("bad.gif"), "bad");
  WriteFile(folder.File("empty.gif"), "");
  EXPECT_EQ(FaultOf(folder.File("bad.gif")), 481);
  EXPECT_EQ(FaultOf(folder.File("empty.gif")), 481);
}

TEST_F(LoadPictureTest, AFileThatIsNoPictureByItsSizeIsNotRead) {
  const std::string path = folder.File("huge.gif");
  WriteFile(path, "good");
  std::filesystem::resize_file(path, 256 * 1024 * 1024 + 1);
  EXPECT_EQ(FaultOf(path), 481);
  EXPECT_EQ(reads, 0);
}

TEST_F(LoadPictureTest, WithoutAReaderNothingIsReadable) {
  SetPictureReader(nullptr);
  WriteFile(folder.File("a.gif"), "good");
  EXPECT_EQ(FaultOf(folder.File("a.gif")), 481);
  EXPECT_EQ(FaultOf(folder.File("none.gif")), 53);
}

}  // namespace
}  // namespace tagwright
