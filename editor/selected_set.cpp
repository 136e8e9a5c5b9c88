#include "editor/selected_set.h"

#include "adslib.h"

namespace qvx {
namespace {

class HostSet : public SelectedObjects {
 public:
  ~HostSet() override {
    if (!IsEmpty()) acedSSFree(m_name);
  }
  bool Includes(const TEntitySet& entity) override {
    return !IsEmpty() && acedSSMemb(entity.Name(), m_name) == RTNORM;
  }

  // Takes the set of a result, or frees it when there is one already.
  void Take(const resbuf* result) {
    if (!result || result->restype != RTPICKS) return;
    const ads_name& set = result->resval.rlname;
    if (!IsEmpty()) {
      acedSSFree(set);
      return;
    }
    m_name[0] = set[0];
    m_name[1] = set[1];
  }

 private:
  bool IsEmpty() const { return !m_name[0] && !m_name[1]; }

  ads_name m_name = {0, 0};
};

}  // namespace

std::unique_ptr<SelectedObjects> ReadSelectedObjects() {
  auto selected = std::make_unique<HostSet>();
  resbuf *gripped = nullptr, *picked = nullptr;
  const int result = acedSSGetFirst(&gripped, &picked);
  selected->Take(gripped);
  selected->Take(picked);
  acutRelRb(gripped);
  acutRelRb(picked);
  if (result != RTNORM) return nullptr;
  return selected;
}

}  // namespace qvx
