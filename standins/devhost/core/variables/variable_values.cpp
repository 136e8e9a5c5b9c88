// Values of variables; see the header.
#include "devhost/core/variables/variable_values.h"

#include <cwchar>

#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"
#include "devhost/core/view/scene.h"

namespace devhost {

std::wstring PointText(const AcGePoint3d& p) {
  wchar_t buffer[96];
  std::swprintf(buffer, 96, L"%.8g,%.8g,%.8g", p.x, p.y, p.z);
  return buffer;
}

// In full, as axes have to stay perpendicular.
std::wstring VectorText(const AcGeVector3d& v) {
  return RealText(v.x) + L"," + RealText(v.y) + L"," + RealText(v.z);
}

std::wstring RealText(double value) {
  wchar_t buffer[40];
  std::swprintf(buffer, 40, L"%.17g", value);
  return buffer;
}

bool ComputedValue(const std::wstring& name, const Document* document, std::wstring* value) {
  Host& host = TheHost();
  if (name == L"CMDACTIVE")
    *value = std::to_wstring(host.engine.CommandActive());
  else if (name == L"CMDNAMES")
    *value = host.engine.CommandNames();
  else if (name == L"CPROFILE")
    *value = host.Options().profile;
  else if (name == L"ACADVER")
    *value = std::to_wstring(host.Options().major) + L"." + std::to_wstring(host.Options().minor);
  else if (!document)
    return false;
  else if (name == L"DWGNAME")
    *value = document->Title();
  else if (name == L"DWGTITLED")
    *value = document->HasFile() ? L"1" : L"0";
  else if (name == L"DBMOD")
    *value = std::to_wstring(document->database()->body().modified);
  else if (name == L"SCREENSIZE")
    *value = PointText({1.0 * document->view.Width(), 1.0 * document->view.Height(), 0});
  else if (name == L"VIEWCTR")
    *value =
        VectorText(document->database()->body().CurrentSystem().ToUser(document->view.Center()) -
                   AcGePoint3d());
  else if (name == L"VIEWSIZE")
    *value = RealText(document->view.Height() / document->view.PixelsPerUnit());
  else if (name == L"UCSORG")
    *value = PointText(document->database()->ucsorg());
  else if (name == L"UCSXDIR")
    *value = VectorText(document->database()->ucsxdir());
  else if (name == L"UCSYDIR")
    *value = VectorText(document->database()->ucsydir());
  else if (name == L"WORLDUCS")
    *value = document->database()->body().CurrentSystem().IsWorld() ? L"1" : L"0";
  else if (name == L"DWGPREFIX") {
    const std::wstring path = document->fileName();
    *value = path.substr(0, path.size() - document->Title().size());
  } else if (name == L"EXTMIN" || name == L"EXTMAX") {
    const AcDbExtents e = ExtentsOf(*document->database());
    *value = e.isValid() ? PointText(name == L"EXTMIN" ? e.minPoint() : e.maxPoint()) : L"0,0,0";
  } else
    return false;
  return true;
}

}  // namespace devhost
