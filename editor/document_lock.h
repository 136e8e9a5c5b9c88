// The write lock of a drawing. Released with the object, unless the drawing has closed meanwhile.
#pragma once

namespace qvx {

class DocumentLock {
 public:
  virtual ~DocumentLock() = default;
};

}  // namespace qvx
