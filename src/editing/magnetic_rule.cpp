#include "editing/magnetic_rule.h"

#include "common/prog_settings.h"
#include "document/objects.h"
#include "document/overlays.h"
#include "forms/frmMain.h"
#include "platform/controls/shapes.h"

namespace tagwright {
namespace {

Rule VerticalRule() {
  return {frmMain.lnMX.Visible(), MagRuleX + BoardOriginX, ProgSettings.MagneticZone};
}

Rule HorizontalRule() {
  return {frmMain.lnMY.Visible(), MagRuleY + BoardOriginY, ProgSettings.MagneticZone};
}

double Take(const Snapped& snapped) {
  if (snapped.hit) SnapHit = true;
  return snapped.at;
}

}  // namespace

Snapped SnapPoint(double value, const Rule& rule) {
  const bool caught = rule.in_force && rule.at - rule.zone < value && value < rule.at + rule.zone;
  return {caught ? rule.at : value, caught};
}

Snapped SnapBox(double start, double extent, const Rule& rule) {
  for (const double inside : {0.0, extent, extent / 2}) {
    const Snapped edge = SnapPoint(start + inside, rule);
    if (edge.hit) return {edge.at - inside, true};
  }
  return {start, false};
}

double SnapX(double x) { return Take(SnapPoint(x, VerticalRule())); }
double SnapY(double y) { return Take(SnapPoint(y, HorizontalRule())); }

void SnapFrame() {
  Shape& frame = frmMain.shpBox;
  SnapHit = false;
  frame.SetLeft(Take(SnapBox(frame.Left(), frame.Width(), VerticalRule())));
  SnapHit = false;
  frame.SetTop(Take(SnapBox(frame.Top(), frame.Height(), HorizontalRule())));
}

void mnuMagRule_Click(int Index) {
  for (const auto& [i, entry] : frmMain.mnuMagRule) entry->SetChecked(i == Index);
  ProgSettings.MagneticZone = (Index + 1) / 2.0;
}

void ResetMagneticRules() {
  MagRuleX = -1.0;
  MagRuleY = -1.0;
}

}  // namespace tagwright
