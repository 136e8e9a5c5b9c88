// Decisions of the scale pane, without a window or a drawing: the scales of its menu, the text for
// a drawing and a selection, the valid scales of a drawing.
#pragma once

#include <cmath>
#include <optional>
#include <string>

#include "kernel/twcstring.h"

namespace qvx {

// The scale of a line of the menu; none for "other" and for an unknown command.
std::optional<double> ScaleOfCommand(unsigned command);

// Compares the scales of the selected objects.
class ScaleWalk {
 public:
  // Scales that differ by no more than this count as equal.
  static constexpr double kTolerance = 0.001;

  // False: the walk ends, two scales differ.
  bool Take(double scale) {
    if (!m_first) m_first = scale;
    m_mixed = std::fabs(scale - *m_first) > kTolerance;
    return !m_mixed;
  }
  bool IsMixed() const { return m_mixed; }
  // The common scale after a complete walk; 0 if no object has one.
  double Common() const { return m_first.value_or(0); }

 private:
  std::optional<double> m_first;
  bool m_mixed = false;
};

// "比例 1:100", or with asterisks for a mixed selection. The drawing's scale if the
// common one is not above 0.
TWCString ScalePaneText(double drawingScale, const ScaleWalk& selection);

// Whether a typed text is a finite decimal number, blanks around it allowed. The class library
// takes infinity, "nan" and hexadecimal digits too.
bool IsScaleText(const wchar_t* text);

// A drawing ignores a scale that is not above this value. Paper space takes any.
constexpr bool DrawingTakesScale(double scale) { return scale > 0.0001; }

// An angular dimension keeps the distance on paper between its line and what it measures.
constexpr double DimRadiusAt(double radius, double paperDistance, double scale, double before) {
  return radius - paperDistance * (scale - before);
}

}  // namespace qvx
