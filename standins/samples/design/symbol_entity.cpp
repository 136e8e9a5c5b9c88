// The symbol; see the header.
#include "symbol_entity.h"

#include "adslib.h"
#include "kernel/entities/class_registration.h"

ACRX_DXF_DEFINE_MEMBERS(QvxDbSymbol, AcDbBlockReference, 0, 0, 0, QVX_SYMBOL, qvx_design)

namespace {

// Keeps the label out of the groups that the base class reads.
class WithoutLabel : public AcDbDxfFiler {
 public:
  WithoutLabel(AcDbDxfFiler& filer, std::wstring& label) : m_filer(filer), m_label(label) {}
  AcDbDatabase* database() const override { return m_filer.database(); }
  Acad::ErrorStatus readItem(resbuf* item) override {
    for (;;) {
      const Acad::ErrorStatus status = m_filer.readItem(item);
      if (status != Acad::eOk || item->restype != 1) return status;
      m_label = item->resval.rstring ? item->resval.rstring : L"";
    }
  }
  void pushBackItem() override { m_filer.pushBackItem(); }
  Acad::ErrorStatus writeString(short, const ACHAR*) override { return Acad::eNotApplicable; }
  Acad::ErrorStatus writeDouble(short, double) override { return Acad::eNotApplicable; }
  Acad::ErrorStatus writeInt(short, int) override { return Acad::eNotApplicable; }
  Acad::ErrorStatus writePoint(short, const AcGePoint3d&) override { return Acad::eNotApplicable; }

 private:
  AcDbDxfFiler& m_filer;
  std::wstring& m_label;
};

}  // namespace

Acad::ErrorStatus QvxDbSymbol::dxfInFields(AcDbDxfFiler* filer) {
  label.clear();
  WithoutLabel rest(*filer, label);
  return AcDbBlockReference::dxfInFields(&rest);
}

Acad::ErrorStatus QvxDbSymbol::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbBlockReference::dxfOutFields(filer);
  filer->writeString(100, L"QvxDbSymbol");
  return filer->writeString(1, label.c_str());
}

void BeginSymbolEntity() {
  RegisterClasses<QvxDbSymbol>();
  acrxBuildClassHierarchy();
}

void EndSymbolEntity() { RemoveClasses<QvxDbSymbol>(); }
