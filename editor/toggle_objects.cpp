// Objects of the control toggle over the kernel.
#include "editor/live_objects.h"

#include "kernel/drawing_data.h"
#include "kernel/entities/tentitybase.h"
#include "kernel/tacdbobjectptr.h"

namespace qvx {
namespace {

class OpenedObject : public ToggleObject {
 public:
  explicit OpenedObject(AcDbObjectId id) : m_entity(id, AcDb::kForRead) {}

  TEntityBase* Base() const { return TEntityBase::Cast(m_entity.Get()); }
  long GroupKey() override { return Base()->GroupKey(); }
  void ToggleControl() override { Base()->ToggleCtrl(); }

 private:
  TAcDbObjectPtr<AcDbEntity> m_entity;
};

class LiveToggleObjects : public ToggleObjects {
 public:
  explicit LiveToggleObjects(ToggleSource source) {
    if (source == ToggleSource::kSelection) m_selection.Get(L"I");
    m_set = source == ToggleSource::kPickFirst ? &DocGetPickFirst() : &m_selection;
  }

  int Count() override { return m_set->Length(); }
  std::unique_ptr<ToggleObject> Open(int index) override {
    auto object = std::make_unique<OpenedObject>((*m_set)[index].ObjectId());
    if (!object->Base()) return nullptr;
    return object;
  }

 private:
  TPickEntSet m_selection;
  const TPickEntSet* m_set;
};

}  // namespace

std::unique_ptr<ToggleObjects> OpenToggleObjects(ToggleSource source) {
  return std::make_unique<LiveToggleObjects>(source);
}

}  // namespace qvx
