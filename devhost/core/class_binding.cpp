// Objects change their class with its module; see the header.
#include "devhost/core/class_binding.h"

#include <cwchar>
#include <memory>
#include <string>
#include <vector>

#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/database_body.h"
#include "devhost/core/dxf_groups.h"
#include "devhost/core/host.h"
#include "devhost/core/selection.h"

namespace devhost {
namespace {

// Keeps what one object writes and gives it to another to read.
class MemoryFiler : public AcDbDxfFiler {
 public:
  explicit MemoryFiler(AcDbDatabase& database) : m_database(database) {}

  AcDbDatabase* database() const override { return &m_database; }
  Acad::ErrorStatus writeString(short code, const ACHAR* value) override {
    // Class marks and the groups that all entities share are carried over apart.
    if (code != 100 && code != 8 && code != 6 && code != 62)
      m_groups.push_back({code, value ? value : L""});
    return Acad::eOk;
  }
  Acad::ErrorStatus writeDouble(short code, double value) override {
    wchar_t text[40];
    std::swprintf(text, 40, L"%.17g", value);
    return writeString(code, text);
  }
  Acad::ErrorStatus writeInt(short code, int value) override {
    return writeString(code, std::to_wstring(value).c_str());
  }
  Acad::ErrorStatus writePoint(short code, const AcGePoint3d& value) override {
    writeDouble(code, value.x);
    writeDouble(static_cast<short>(code + 10), value.y);
    return writeDouble(static_cast<short>(code + 20), value.z);
  }

  Acad::ErrorStatus readItem(resbuf* item) override {
    m_before = m_at;
    if (m_at >= m_groups.size()) return Acad::eEndOfFile;
    const Group& group = m_groups[m_at++];
    *item = resbuf{};
    item->restype = group.code;
    switch (KindOfGroup(group.code)) {
      case GroupKind::Real:
        item->resval.rreal = Number(group);
        break;
      case GroupKind::Short:
        item->resval.rint = static_cast<short>(Number(group));
        break;
      case GroupKind::Long:
        item->resval.rlong = static_cast<LONG>(Number(group));
        break;
      case GroupKind::Point:
        item->resval.rpoint[0] = Number(group);
        for (short i = 1;
             i < 3 && m_at < m_groups.size() && m_groups[m_at].code == group.code + 10 * i; ++i)
          item->resval.rpoint[i] = Number(m_groups[m_at++]);
        break;
      default:
        item->resval.rstring = const_cast<ACHAR*>(group.text.c_str());
        break;
    }
    return Acad::eOk;
  }
  void pushBackItem() override { m_at = m_before; }

 private:
  struct Group {
    short code;
    std::wstring text;
  };
  static double Number(const Group& group) { return std::wcstod(group.text.c_str(), nullptr); }

  AcDbDatabase& m_database;
  std::vector<Group> m_groups;
  std::size_t m_at = 0, m_before = 0;
};

void CarryOver(AcDbEntity& from, AcDbEntity& to) {
  to.setLayer(from.layer());
  to.setLinetype(from.linetype());
  to.setColorIndex(from.colorIndex());
  MemoryFiler filer(*from.database());
  from.dxfOutFields(&filer);
  to.dxfInFields(&filer);
  AcDbObjectAccess::TakeXData(&from, &to);
}

std::unique_ptr<AcDbEntity> RealOf(const AcDbProxyEntity& opaque) {
  const AcRxClass* cls = acrxClassOfDxfName(opaque.originalDxfName());
  AcDbEntity* made = cls ? AcDbEntity::cast(cls->create()) : nullptr;
  return std::unique_ptr<AcDbEntity>(made);
}

// `replacement` gives the new object of one that has to change, or null.
template <class F>
void Exchange(Document& document, F replacement) {
  AcDbDatabase::Body& body = document.database()->body();
  bool changed = false;
  for (std::unique_ptr<AcDbObject>& held : body.objects) {
    AcDbEntity* old = AcDbEntity::cast(held.get());
    std::unique_ptr<AcDbEntity> fresh = old ? replacement(*old) : nullptr;
    if (!fresh) continue;
    if (!changed) {  // whoever held ids of this drawing lets go of them first
      SetPickFirst(document, {});
      document.previousSelection.clear();
      document.undo.clear();
      changed = true;
    }
    CarryOver(*old, *fresh);
    AcDbObjectAccess::Replace(body, held, fresh.release());
  }
  if (changed) TheHost().Ui().PictureChanged(document);
}

}  // namespace

void BindOpaqueEntities() {
  for (const auto& document : TheHost().documents.All())
    Exchange(*document, [](AcDbEntity& old) -> std::unique_ptr<AcDbEntity> {
      const AcDbProxyEntity* opaque = AcDbProxyEntity::cast(&old);
      return opaque ? RealOf(*opaque) : nullptr;
    });
}

void MakeEntitiesOpaque(const AcRxClass& cls) {
  for (const auto& document : TheHost().documents.All())
    Exchange(*document, [&](AcDbEntity& old) -> std::unique_ptr<AcDbEntity> {
      if (old.isA() != &cls || !cls.dxfName()) return nullptr;
      auto opaque = std::make_unique<AcDbProxyEntity>();
      opaque->setOriginalDxfName(cls.dxfName());
      return opaque;
    });
}

}  // namespace devhost
