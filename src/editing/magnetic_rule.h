// The magnetic rules: one vertical and one horizontal line that objects snap to when they are
// dropped within the zone.
#pragma once

namespace tagwright {

// One rule: whether it is in force, where it stands, and how far its pull reaches to either side.
struct Rule {
  bool in_force;
  double at;
  double zone;
};

// A coordinate and whether the rule has caught it.
struct Snapped {
  double at;
  bool hit;
};

// The rule's place for a coordinate that is nearer to it than the zone, which itself is out; any
// other coordinate unchanged.
Snapped SnapPoint(double value, const Rule& rule);

// Where a box of `extent` from `start` comes to lie: its near edge is tried first, then the far
// one, then the middle. One that snaps ends the search, however close the others may be.
Snapped SnapBox(double start, double extent, const Rule& rule);

// --- on the board -------------------------------------------------------------------------------

inline bool SnapHit = false;  // SnapX or SnapY has snapped

// The coordinate, or that of the vertical (horizontal) magnetic rule when that is in force and
// near. Sets SnapHit when it snaps and leaves it alone otherwise.
double SnapX(double x);
double SnapY(double y);

// Moves shpBox to the rules that it is near, and never stretches it; each axis by itself.
void SnapFrame();

// Checks only the chosen entry of mnuMagRule and sets the settings' MagneticZone to
// (Index + 1) / 2 millimetres.
void mnuMagRule_Click(int Index);

// Both rules back to removed.
void ResetMagneticRules();

}  // namespace tagwright
