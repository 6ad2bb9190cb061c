#include "tools/rule_drag.h"

#include <string>

#include "common/prog_settings.h"
#include "document/board_space.h"
#include "document/objects.h"
#include "document/overlays.h"
#include "editing/magnetic_rule.h"
#include "forms/frmMain.h"
#include "platform/controls/shapes.h"
#include "platform/text/locale.h"
#include "tools/placement.h"

namespace tagwright {
namespace {

constexpr double kStrip = 125;     // twips from the edge: a press takes a new rule
constexpr double kWayBack = 200;   // twips from the edge: a release removes it
constexpr double kNear = 0.5;      // board units to either side of a rule that stands
constexpr double kRemoved = -1.0;  // a rule's place

bool StandsAt(const LineControl& line, double rule, double place) {
  return CurrentTool == kNoTool && line.Visible() && rule - kNear < place && place < rule + kNear;
}

// The figure in inches is the program's own, not the length of the zone.
std::string ZoneText() {
  const double zone = ProgSettings.MagneticZone;
  const bool metric = UnitScale == 1.0;
  return metric ? FormatFixed(zone, 1) + " mm" : FormatFixed(zone * 25.4, 3) + "in";
}

void DragRuleX(double X) {
  SpanDown(frmMain.lnMX, X, frmMain.picBoard.ScaleHeight());
  ShowInFront(frmMain.lnMX);
}

void DragRuleY(double Y) {
  SpanAcross(frmMain.lnMY, Y, frmMain.picBoard.ScaleWidth());
  ShowInFront(frmMain.lnMY);
}

void PutRule(LineControl& line, double& place, double at, bool removed) {
  place = removed ? kRemoved : at;
  line.SetVisible(!removed);
  if (removed) frmMain.sB1.SetPanelText(kSelectionPanel, "");
}

}  // namespace

bool GrabRules(double X, double Y) {
  DraggingRuleX = X < BoardUnitsX(kStrip) || StandsAt(frmMain.lnMX, MagRuleX + BoardOriginX, X);
  DraggingRuleY = Y < BoardUnitsY(kStrip) || StandsAt(frmMain.lnMY, MagRuleY + BoardOriginY, Y);
  if (!DraggingRuleX && !DraggingRuleY) return false;
  frmMain.sB1.SetPanelText(kSelectionPanel, "Magnetic Rule - Zone: " + ZoneText());
  return true;
}

void DragRules(double X, double Y) {
  if (DraggingRuleX) DragRuleX(X);
  if (DraggingRuleY) DragRuleY(Y);
}

void ReleaseRules(double X, double Y) {
  if (DraggingRuleX) PutRule(frmMain.lnMX, MagRuleX, X - BoardOriginX, X < BoardUnitsX(kWayBack));
  if (DraggingRuleY) PutRule(frmMain.lnMY, MagRuleY, Y - BoardOriginY, Y < BoardUnitsY(kWayBack));
  ResetRuleDrag();
}

void ResetRuleDrag() {
  DraggingRuleX = false;
  DraggingRuleY = false;
}

}  // namespace tagwright
