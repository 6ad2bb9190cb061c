// Files that are anything but projects: whatever stands in them, they load without a fault and
// leave a document that can be painted and saved.

#include "document/project_save.h"
#include "document/random_projects.h"
#include "document/redraw.h"

namespace tagwright {
namespace {

class ProjectRandomTest : public RandomProjectsTest<LabelTest> {
 protected:
  ProjectRandomTest() {
    for (const char* name : {"a", "b", "c"}) frmMain.cboLabelLayout.AddItem(name);
    for (const char* name : {"database", "comma", "tab"}) frmMain.cboImportType.AddItem(name);
  }
};

TEST_F(ProjectRandomTest, RandomFilesLoadWithoutFault) { LoadMany(300); }

TEST_F(ProjectRandomTest, Long_TenThousandRandomFilesLoadWithoutFault) { LoadMany(10000); }

TEST_F(ProjectRandomTest, WhatHasBeenLoadedCanBePrintedAndSaved) {
  for (int i = 0; i < 50; ++i) {
    LoadOne(projects.Mutated());
    EXPECT_NO_THROW(RedrawBoard(10, 10, true));
    DrawTarget = &frmMain.picBoard.Canvas();
    EXPECT_NO_THROW(SaveProject(kFalse));
  }
}

}  // namespace
}  // namespace tagwright
