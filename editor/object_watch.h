// Reports whether an object still exists. A call of the host, of a dialog or of a menu can unload
// the module or close the drawing: take a watch before such a call, check it afterwards, and use
// nothing of the object once IsGone() is true.
#pragma once

#include <memory>

namespace qvx {

class ObjectWatch;

// A member of the watched object.
class Lifetime {
 public:
  Lifetime() = default;
  ~Lifetime() { *m_isAlive = false; }
  Lifetime(const Lifetime&) = delete;
  Lifetime& operator=(const Lifetime&) = delete;

 private:
  friend class ObjectWatch;
  std::shared_ptr<bool> m_isAlive = std::make_shared<bool>(true);
};

class ObjectWatch {
 public:
  explicit ObjectWatch(const Lifetime& object) : m_isAlive(object.m_isAlive) {}
  bool IsGone() const { return !*m_isAlive; }

 private:
  std::shared_ptr<const bool> m_isAlive;
};

}  // namespace qvx
