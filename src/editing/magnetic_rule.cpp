#include "editing/magnetic_rule.h"

#include "common/prog_settings.h"
#include "forms/frmMain.h"

namespace tagwright {

void mnuMagRule_Click(int Index) {
  for (const auto& [i, entry] : frmMain.mnuMagRule) entry->SetChecked(i == Index);
  ProgSettings.MagneticZone = (Index + 1) / 2.0;
}

void ResetMagneticRules() {
  MagRuleX = -1.0;
  MagRuleY = -1.0;
}

}  // namespace tagwright
