// Files that are anything but projects, opened in the whole program: its layout list redraws while
// they load, pictures are refused on the way, barcodes are painted, its lists answer their choice.
#include "document/random_projects.h"

#include <map>

#include "platform/painting/picture.h"
#include "shell/shell_fixture.h"

namespace tagwright {
namespace {

PicturePtr ReadPicture(const std::string& bytes, std::string_view) {
  return bytes.starts_with("picture") ? BlankPicture(9000, 3000) : nullptr;
}

class StartedRandomProjectsTest : public RandomProjectsTest<ShellTest> {
 protected:
  StartedRandomProjectsTest() {
    StartProgram();
    SetPictureReader(ReadPicture);
    const std::map<std::string, std::string> files = {
        {"good.jpg", "picture"}, {"bad.jpg", "rubbish"}, {"data.csv", "a,b\n1,2\n"}};
    for (const auto& [name, contents] : files) {
      WriteFile(folder.File(name), contents);
      projects.texts.push_back(folder.File(name));
    }
    projects.texts.emplace_back("4006381");
  }
  ~StartedRandomProjectsTest() override { SetPictureReader(nullptr); }
};

TEST_F(StartedRandomProjectsTest, RandomFilesLoadWithoutFault) {
  LoadMany(300);
  EXPECT_GT(RedrawCount, 300) << "each once at most, but for the redraws of the layout list";
}

TEST_F(StartedRandomProjectsTest, Long_TenThousandRandomFilesLoadWithoutFault) { LoadMany(10000); }

}  // namespace
}  // namespace tagwright
