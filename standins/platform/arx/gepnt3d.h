// Points, vectors and boxes of the drawing: plain doubles in drawing units.
#pragma once

#include <cmath>

class AcGeVector3d {
 public:
  constexpr AcGeVector3d() = default;
  constexpr AcGeVector3d(double x, double y, double z) : x(x), y(y), z(z) {}
  double length() const { return std::sqrt(x * x + y * y + z * z); }
  AcGeVector3d normal() const {
    const double l = length();
    return l > 0 ? AcGeVector3d(x / l, y / l, z / l) : *this;
  }
  AcGeVector3d& normalize() { return *this = normal(); }  // a zero vector is unchanged
  constexpr AcGeVector3d operator*(double f) const { return {x * f, y * f, z * f}; }
  constexpr AcGeVector3d operator-() const { return {-x, -y, -z}; }
  constexpr AcGeVector3d operator+(const AcGeVector3d& o) const {
    return {x + o.x, y + o.y, z + o.z};
  }
  static const AcGeVector3d kXAxis, kYAxis, kZAxis;
  double x = 0, y = 0, z = 0;
};
inline constexpr AcGeVector3d AcGeVector3d::kXAxis{1, 0, 0};
inline constexpr AcGeVector3d AcGeVector3d::kYAxis{0, 1, 0};
inline constexpr AcGeVector3d AcGeVector3d::kZAxis{0, 0, 1};

class AcGePoint3d {
 public:
  constexpr AcGePoint3d() = default;
  constexpr AcGePoint3d(double x, double y, double z) : x(x), y(y), z(z) {}
  constexpr AcGePoint3d operator+(const AcGeVector3d& v) const {
    return {x + v.x, y + v.y, z + v.z};
  }
  constexpr AcGePoint3d operator-(const AcGeVector3d& v) const {
    return {x - v.x, y - v.y, z - v.z};
  }
  constexpr AcGeVector3d operator-(const AcGePoint3d& o) const {
    return {x - o.x, y - o.y, z - o.z};
  }
  double distanceTo(const AcGePoint3d& o) const { return (*this - o).length(); }
  double x = 0, y = 0, z = 0;
};

// A plane transform with one scale for each axis: all that blocks need.
class AcGeMatrix3d {
 public:
  static AcGeMatrix3d insertion(const AcGePoint3d& at, double rotation, double sx, double sy,
                                const AcGePoint3d& base);
  static AcGeMatrix3d translation(const AcGeVector3d& by);
  AcGePoint3d operator*(const AcGePoint3d& p) const {
    return {a * p.x + b * p.y + tx, c * p.x + d * p.y + ty, p.z};
  }
  AcGeVector3d operator*(const AcGeVector3d& v) const {
    return {a * v.x + b * v.y, c * v.x + d * v.y, v.z};
  }
  AcGeMatrix3d operator*(const AcGeMatrix3d& inner) const;  // applies inner first
  bool invert(AcGeMatrix3d* inverse) const;                 // false if the matrix is singular
  double scale() const { return std::sqrt(std::fabs(a * d - b * c)); }
  double rotation() const { return std::atan2(c, a); }
  double a = 1, b = 0, c = 0, d = 1, tx = 0, ty = 0;
};

class AcDbExtents {
 public:
  void addPoint(const AcGePoint3d& p);
  void addExt(const AcDbExtents& other);
  bool isValid() const { return m_valid; }
  const AcGePoint3d& minPoint() const { return m_min; }
  const AcGePoint3d& maxPoint() const { return m_max; }

 private:
  bool m_valid = false;
  AcGePoint3d m_min, m_max;
};
