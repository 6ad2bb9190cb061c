#include "forms/frmMain.h"
#include "support/test_support.h"
#include "tools/font_box.h"

namespace tagwright {
namespace {

class FontListTest : public ProgramTest {
 protected:
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int i = 0; i < combo.ListCount(); ++i) rows.push_back(combo.List(i));
    return rows;
  }

  ComboBox& combo = frmMain.cboFont;
};

TEST_F(FontListTest, HoldsEveryFamilyOnce) {
  FillFontList(combo);
  EXPECT_EQ(Rows(), (std::vector<std::string>{"Arial", "Courier New", "Times New Roman"}));
  EXPECT_EQ(combo.ListIndex(), -1);
}

TEST_F(FontListTest, LeavesClearingToItsCaller) {
  combo.AddItem("Zapf");
  FillFontList(combo);
  EXPECT_EQ(combo.ListCount(), 4);
}

TEST_F(FontListTest, AFaceNameEndsAtItsFirstZeroCharacter) {
  EXPECT_EQ(AddFontToCombo(std::string_view("Arial\0Bold", 10), combo), -1);
  EXPECT_EQ(Rows(), (std::vector<std::string>{"Arial"}));
}

}  // namespace
}  // namespace tagwright
