// Reading of groups into members; see the header.
#include "devhost/core/entities/entity_io.h"

#include <algorithm>

namespace devhost {
namespace {

struct StoreValue {
  const resbuf& item;
  double factor;

  void operator()(std::wstring* target) const { *target = item.resval.rstring; }
  void operator()(int* target) const { *target = item.resval.rint; }
  void operator()(double* target) const { *target = item.resval.rreal * factor; }
  void operator()(AcGePoint3d* target) const { *target = PointOfItem(item); }
  void operator()(AcGeVector3d* target) const { *target = PointOfItem(item) - AcGePoint3d(); }
};

}  // namespace

Acad::ErrorStatus ReadFields(AcDbDxfFiler* filer, std::initializer_list<Field> fields,
                             const std::function<void(const resbuf&)>& other) {
  return ForEachItem(filer, [&](const resbuf& item) {
    const auto field = std::find_if(fields.begin(), fields.end(),
                                    [&](const Field& f) { return f.code == item.restype; });
    if (field != fields.end())
      std::visit(StoreValue{item, field->factor}, field->target);
    else if (other)
      other(item);
  });
}

}  // namespace devhost
