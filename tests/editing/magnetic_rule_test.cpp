#include "editing/magnetic_rule.h"

#include "common/prog_settings.h"
#include "document/overlays.h"
#include "forms/frmMain.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class MagneticRuleTest : public ProgramTest {};

TEST_F(MagneticRuleTest, EachEntryIsHalfAMillimetreMoreAndTheOnlyOneChecked) {
  const double zones[] = {0.5, 1.0, 1.5, 2.0, 2.5, 3.0, 3.5};
  for (int chosen = 0; chosen < 7; ++chosen) {
    mnuMagRule_Click(chosen);
    EXPECT_EQ(ProgSettings.MagneticZone, zones[chosen]);
    for (int i = 0; i < 7; ++i) EXPECT_EQ(frmMain.mnuMagRule(i).Checked(), i == chosen) << i;
  }
}

TEST_F(MagneticRuleTest, ChoosingAZoneLeavesTheStatusBarAlone) {
  frmMain.sB1.SetPanelText(3, "Objects Selected: 2");
  mnuMagRule_Click(0);
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 2");
}

TEST_F(MagneticRuleTest, ResetTakesBothRulesAway) {
  MagRuleX = 5;
  MagRuleY = 6;
  ResetMagneticRules();
  EXPECT_EQ(MagRuleX, -1.0);
  EXPECT_EQ(MagRuleY, -1.0);
}

}  // namespace
}  // namespace tagwright
