// What the scale pane decides, without a window and without a drawing: the scales of its menu, the
// text for a drawing and a selection, which scales a drawing takes.
#pragma once

#include <cmath>
#include <optional>
#include <string>

#include "kernel/twcstring.h"

namespace qvx {

// The scale of a line of the menu; nothing for "other" and for what is no line of it.
std::optional<double> ScaleOfCommand(unsigned command);

// Reads the scales of the selected objects one after the other.
class ScaleWalk {
 public:
  // Objects whose scales differ by no more than this count as one scale.
  static constexpr double kTolerance = 0.001;

  // False when the walk ends here: two scales that differ.
  bool Take(double scale) {
    if (!m_first) m_first = scale;
    m_mixed = std::fabs(scale - *m_first) > kTolerance;
    return !m_mixed;
  }
  bool IsMixed() const { return m_mixed; }
  // The scale of a walk that ran through; 0 when no object had one.
  double Common() const { return m_first.value_or(0); }

 private:
  std::optional<double> m_first;
  bool m_mixed = false;
};

// "比例 1:100", or with stars for a mixed selection. Without a common scale above 0 the drawing's
// stands.
TWCString ScalePaneText(double drawingScale, const ScaleWalk& selection);

// A drawing's own scale has to be above this; less is dropped in silence. The sheet takes anything.
constexpr bool DrawingTakesScale(double scale) { return scale > 0.0001; }

// An angular dimension keeps its line at the same distance on paper from what it measures.
constexpr double DimRadiusAt(double radius, double paperDistance, double scale, double before) {
  return radius - paperDistance * (scale - before);
}

}  // namespace qvx
