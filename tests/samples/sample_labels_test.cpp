#include <algorithm>
#include <string>

#include "document/objects.h"
#include "document/project_load.h"
#include "document/project_save.h"
#include "forms/frmMain.h"
#include "platform/files/files.h"
#include "platform/painting/picture.h"
#include "shell/startup.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

struct Sample {
  const char* name;
  int objects;
  double width;  // of its label, millimetres
  double height;
  const char* data;  // file of its data source, or empty
};

void PrintTo(const Sample& sample, std::ostream* out) { *out << sample.name; }

const Sample kSamples[] = {
    {"Address label.twp", 10, 99, 38, "addresses.csv"},
    {"Product label.twp", 14, 99, 38, ""},
    {"Shelf label.twp", 9, 63, 38, "products.csv"},
    {"Barcode sampler.twp", 28, 199, 143, ""},
};

class SampleLabels : public ProgramTest, public testing::WithParamInterface<Sample> {
 protected:
  SampleLabels() {
    SetPictureReader(
        [](const std::string&, std::string_view) { return BlankPicture(12700, 12700); });
    StartProgram();
  }
  ~SampleLabels() override { SetPictureReader(nullptr); }
  std::string Original() const { return std::string(TAGWRIGHT_SAMPLES "/") + GetParam().name; }
};

INSTANTIATE_TEST_SUITE_P(All, SampleLabels, testing::ValuesIn(kSamples),
                         [](const auto& each) { return "Sample" + std::to_string(each.index); });

TEST_P(SampleLabels, OpensWithAllItsFilesInPlace) {
  LoadProject(Original());
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(ObjectUB, GetParam().objects - 1);
  EXPECT_EQ(LabelWidth, GetParam().width);
  EXPECT_EQ(LabelHeight, GetParam().height);
  EXPECT_EQ(FileBaseName(frmMain.lblFileName.Caption()), GetParam().data);
}

TEST_P(SampleLabels, SavesTheBytesThatItOpened) {
  LoadProject(Original());
  ProjectPath = folder.File("again.twp");
  SaveProject(kFalse);
  EXPECT_EQ(ReadFile(ProjectPath), ReadFile(Original()));
}

TEST_P(SampleLabels, KeepsEveryObjectOnTheLabel) {
  LoadProject(Original());
  for (int i = 0; i <= ObjectUB; ++i) {
    const ObjectRecord& object = ObjectAt(i);
    EXPECT_GE(object.Left, 0) << i;
    EXPECT_GE(object.Top, 0) << i;
    EXPECT_LE(object.Left + object.Width, LabelWidth) << i;
    EXPECT_LE(object.Top + object.Height, LabelHeight) << i;
  }
}

// Whether something black begins where the object does. The first bar of an EAN-13 stands right of
// its first digit.
bool HasBars(const ObjectRecord& object, const RecordingSurface& board) {
  const double left = board.ScaleX(BoardOriginX + object.Left, kUserScale, kPixels);
  const double top = board.ScaleY(BoardOriginY + object.Top, kUserScale, kPixels);
  const double right = left + board.ScaleX(object.Width, kUserScale, kPixels);
  return std::ranges::any_of(board.painted, [&](const Painted& p) {
    return p.what == Painted::What::kBox && p.color == 0 && p.x1 > left - 1 && p.x1 < right &&
           p.y1 > top - 1 && p.y1 < top + 10;
  });
}

TEST_P(SampleLabels, PaintsEveryObject) {
  LoadProject(Original());
  const std::vector<Painted>& painted = Board().painted;
  std::size_t pictures = 0, pictures_painted = 0;
  for (int i = 0; i <= ObjectUB; ++i) {
    const ObjectRecord& object = ObjectAt(i);
    pictures += object.ObjType == kPicture;
    if (object.ObjType == kBarcode) {
      EXPECT_TRUE(HasBars(object, Board())) << object.Text.Trimmed();
    }
    if (object.ObjType != kText && object.ObjType != kDataField) continue;
    const std::string text = object.Text.Trimmed();
    const std::string first_line = text.substr(0, text.find("\r\n"));
    EXPECT_TRUE(std::ranges::any_of(painted, [&](const Painted& p) {
      return p.Text() == first_line;
    })) << first_line;
  }
  for (const Painted& p : painted) pictures_painted += p.what == Painted::What::kPicture;
  EXPECT_EQ(pictures > 0, pictures_painted > 0);
}

}  // namespace
}  // namespace tagwright
