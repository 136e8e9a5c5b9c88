// System variables; see the header. Also acedGetVar and acedSetVar.
#include "devhost/core/variables/variables.h"

#include <cstring>
#include <cwchar>

#include "adslib.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/view/scene.h"
#include "devhost/core/selection/selection.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

constexpr VariableInfo kVariables[] = {
    // name, type, of the drawing, read only, low, high, initial value
    {L"ACADVER", VarType::Text, false, true, 1, 0, L""},
    {L"AUNITS", VarType::Short, true, false, 0, 4, L"0"},
    {L"BLIPMODE", VarType::Short, true, false, 0, 1, L"0"},
    {L"CECOLOR", VarType::Text, true, false, 1, 0, L"BYLAYER"},
    {L"CLAYER", VarType::Text, true, false, 1, 0, L"0"},
    {L"CMDACTIVE", VarType::Short, false, true, 1, 0, L"0"},
    {L"CMDECHO", VarType::Short, false, false, 0, 1, L"1"},
    {L"CMDNAMES", VarType::Text, false, true, 1, 0, L""},
    {L"CPROFILE", VarType::Text, false, true, 1, 0, L""},
    {L"CTAB", VarType::Text, true, false, 1, 0, L"Model"},
    {L"CVPORT", VarType::Short, true, false, 1, 32767, L"2"},
    {L"DBMOD", VarType::Short, true, true, 1, 0, L"0"},
    {L"DIMSCALE", VarType::Real, true, false, 0, 1e9, L"1"},
    {L"DWGNAME", VarType::Text, true, true, 1, 0, L""},
    {L"DWGPREFIX", VarType::Text, true, true, 1, 0, L""},
    {L"DWGTITLED", VarType::Short, true, true, 1, 0, L"0"},
    {L"EXTMAX", VarType::Point, true, true, 1, 0, L""},
    {L"EXTMIN", VarType::Point, true, true, 1, 0, L""},
    {L"FILEDIA", VarType::Short, false, false, 0, 1, L"1"},
    {L"GRIDMODE", VarType::Short, true, false, 0, 1, L"0"},
    {L"GRIPS", VarType::Short, false, false, 0, 2, L"2"},
    {L"HIGHLIGHT", VarType::Short, false, false, 0, 1, L"1"},
    {L"HPSCALE", VarType::Real, false, false, 0, 1e12, L"1"},
    {L"INSUNITS", VarType::Short, true, false, 0, 24, L"4"},
    {L"LTSCALE", VarType::Real, true, false, 0, 1e9, L"1"},
    {L"LUNITS", VarType::Short, true, false, 1, 5, L"2"},
    {L"ORTHOMODE", VarType::Short, true, false, 0, 1, L"0"},
    {L"OSMODE", VarType::Short, false, false, 0, 32767, L"4133"},
    {L"PICKADD", VarType::Short, false, false, 0, 2, L"2"},
    {L"PICKFIRST", VarType::Short, false, false, 0, 1, L"1"},
    {L"PICKSTYLE", VarType::Short, false, false, 0, 3, L"1"},
    {L"PSLTSCALE", VarType::Short, true, false, 0, 1, L"1"},
    {L"SCREENSIZE", VarType::Point, true, true, 1, 0, L""},
    {L"SDI", VarType::Short, false, false, 0, 3, L"0"},
    {L"SELECTIONPREVIEW", VarType::Short, false, false, 0, 3, L"3"},
    {L"SNAPMODE", VarType::Short, true, false, 0, 1, L"0"},
    {L"TEXTSIZE", VarType::Real, true, false, 1e-9, 1e9, L"2.5"},
    {L"TILEMODE", VarType::Short, true, false, 0, 1, L"1"},
    {L"UNDOCTL", VarType::Short, true, true, 1, 0, L"21"},
    {L"USERI1", VarType::Short, true, false, -32768, 32767, L"0"},
    {L"USERR1", VarType::Real, true, false, 1, 0, L"0"},
    {L"USERS1", VarType::Text, true, false, 1, 0, L""},
    {L"VIEWCTR", VarType::Point, true, true, 1, 0, L""},
    {L"VIEWSIZE", VarType::Real, true, true, 1, 0, L""},
};

std::wstring PointText(const AcGePoint3d& p) {
  wchar_t buffer[96];
  std::swprintf(buffer, 96, L"%.8g,%.8g,%.8g", p.x, p.y, p.z);
  return buffer;
}

std::wstring RealText(double value) {
  wchar_t buffer[40];
  std::swprintf(buffer, 40, L"%.17g", value);
  return buffer;
}

// What was picked lies in the other space, and so does what the view showed.
void ShowOtherSpace(Document& document) {
  document.view.ZoomTo(ExtentsOf(*document.database()));
  if (!document.pickFirst.empty()) SetPickFirst(document, {});
}

// Leaving or entering paper space takes the viewport and the tab along; which space is current
// follows from both.
void FollowSpace(Document& document, const std::wstring& name, const std::wstring& value) {
  if (name == L"TILEMODE") {
    document.variables[L"CVPORT"] = value == L"0" ? L"1" : L"2";
    document.variables[L"CTAB"] = value == L"0" ? L"Layout1" : L"Model";
  }
  if (name != L"TILEMODE" && name != L"CVPORT") return;
  const auto tile = document.variables.find(L"TILEMODE");
  const bool paper = tile != document.variables.end() && tile->second == L"0";
  bool& current = document.database()->body().paperIsCurrent;
  const bool before = current;
  current = paper && document.variables[L"CVPORT"] == L"1";
  if (current != before) ShowOtherSpace(document);
}

// What TILEMODE takes along is put back behind it, that is recorded before it.
void KeepForUndo(Document& document, const std::wstring& name) {
  if (name == L"TILEMODE")
    for (const wchar_t* follower : {L"CVPORT", L"CTAB"}) KeepVariableForUndo(document, follower);
  KeepVariableForUndo(document, name);
}

// Variables whose value is the state itself; false for the stored ones.
bool Computed(const std::wstring& name, const Document* document, std::wstring* value) {
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
    *value = PointText(
        document->view.ToWorld({document->view.Width() / 2, document->view.Height() / 2}));
  else if (name == L"VIEWSIZE")
    *value = RealText(document->view.Height() / document->view.PixelsPerUnit());
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

Document* VariableDocument() {
  AcApDocument* current = TheHost().documents.curDocument();
  return TheHost().documents.Known(current);
}

}  // namespace

const VariableInfo* VariableTable::Find(const std::wstring& name) const {
  const std::wstring wanted = UpperCase(name);
  for (const VariableInfo& v : kVariables)
    if (wanted == v.name) return &v;
  return nullptr;
}

VarResult VariableTable::Get(const std::wstring& name, std::wstring* value) const {
  const VariableInfo* info = Find(name);
  if (!info) return VarResult::Unknown;
  const Document* document = VariableDocument();
  if (Computed(info->name, document, value)) return VarResult::Ok;
  if (info->ofDrawing && !document) return VarResult::NoDrawing;
  const auto& stored = info->ofDrawing ? document->variables : m_global;
  const auto at = stored.find(info->name);
  *value = at == stored.end() ? info->initial : at->second;
  return VarResult::Ok;
}

VarResult VariableTable::Set(const std::wstring& name, const std::wstring& value, bool byHost) {
  const VariableInfo* info = Find(name);
  if (!info) return VarResult::Unknown;
  if (info->readOnly && !byHost) return VarResult::ReadOnly;
  Document* document = VariableDocument();
  if (info->ofDrawing && !document) return VarResult::NoDrawing;
  std::wstring stored = value;
  if (info->type == VarType::Short || info->type == VarType::Real) {
    wchar_t* end = nullptr;
    const double number = std::wcstod(value.c_str(), &end);
    if (end == value.c_str() || *end || !(number == number)) return VarResult::OutOfRange;
    if (info->low <= info->high && (number < info->low || number > info->high))
      return VarResult::OutOfRange;
    if (info->type == VarType::Short) {
      if (number < -32768 || number > 32767) return VarResult::OutOfRange;
      stored = std::to_wstring(static_cast<int>(number));
    }
  }
  if (info->ofDrawing) KeepForUndo(*document, info->name);
  (info->ofDrawing ? document->variables : m_global)[info->name] = stored;
  if (info->ofDrawing) FollowSpace(*document, info->name, stored);
  TheJournal().Record("var", {{"name", Utf8(info->name)}, {"value", Utf8(stored)}});
  TheHost().Ui().VariableChanged(info->name);
  return VarResult::Ok;
}

void PutBackVariable(Document& document, const std::wstring& name,
                     const std::optional<std::wstring>& value) {
  const VariableInfo* info = TheHost().variables.Find(name);
  if (value)
    document.variables[name] = *value;
  else
    document.variables.erase(name);
  const std::wstring now = value ? *value : info->initial;
  FollowSpace(document, name, now);
  TheJournal().Record("var", {{"name", Utf8(name)}, {"value", Utf8(now)}});
  TheHost().Ui().VariableChanged(name);
}

void LoadHeaderVariables(Document& document) {
  const std::vector<KeptGroup>& groups = document.database()->body().header;
  for (std::size_t i = 0; i + 1 < groups.size(); ++i) {
    if (groups[i].code != 9 || groups[i].text.size() < 2) continue;
    const VariableInfo* info = TheHost().variables.Find(groups[i].text.substr(1));
    if (!info || !info->ofDrawing || info->readOnly || info->type == VarType::Point) continue;
    std::wstring value = groups[i + 1].text;
    if (info->type != VarType::Text) {
      wchar_t* end = nullptr;
      const double number = std::wcstod(value.c_str(), &end);
      if (end == value.c_str() || number < info->low ||
          (info->low <= info->high && number > info->high))
        continue;
      value = info->type == VarType::Short ? std::to_wstring(static_cast<int>(number))
                                           : RealText(number);
    }
    document.variables[info->name] = value;
    FollowSpace(document, info->name, value);
  }
}

void SaveHeaderVariables(Document& document) {
  std::vector<KeptGroup>& groups = document.database()->body().header;
  for (std::size_t i = 0; i + 1 < groups.size(); ++i) {
    if (groups[i].code != 9 || groups[i].text.size() < 2) continue;
    const auto at = document.variables.find(UpperCase(groups[i].text.substr(1)));
    if (at != document.variables.end()) groups[i + 1].text = at->second;
  }
}

}  // namespace devhost

using namespace devhost;

int acedGetVar(const ACHAR* name, resbuf* result) {
  if (name) TheStartTrace().Step("acedGetVar", Utf8(name));
  std::wstring value;
  if (!name || !result || TheHost().variables.Get(name, &value) != VarResult::Ok) return RTERROR;
  std::memset(result, 0, sizeof *result);
  switch (TheHost().variables.Find(name)->type) {
    case VarType::Short:
      result->restype = RTSHORT;
      result->resval.rint = static_cast<short>(std::wcstol(value.c_str(), nullptr, 10));
      break;
    case VarType::Real:
      result->restype = RTREAL;
      result->resval.rreal = std::wcstod(value.c_str(), nullptr);
      break;
    case VarType::Text:
      result->restype = RTSTR;
      acutNewString(value.c_str(), result->resval.rstring);
      break;
    case VarType::Point: {
      result->restype = RT3DPOINT;
      const wchar_t* at = value.c_str();
      for (int i = 0; i < 3; ++i) {
        wchar_t* end = nullptr;
        result->resval.rpoint[i] = std::wcstod(at, &end);
        at = *end == L',' ? end + 1 : end;
      }
      break;
    }
  }
  return RTNORM;
}

int acedSetVar(const ACHAR* name, const resbuf* value) {
  if (!name || !value) return RTERROR;
  const VariableInfo* info = TheHost().variables.Find(name);
  if (!info) return RTERROR;
  std::wstring text;
  switch (value->restype) {
    case RTSHORT:
      text = std::to_wstring(value->resval.rint);
      break;
    case RTLONG:
      text = std::to_wstring(value->resval.rlong);
      break;
    case RTREAL:
      text = RealText(value->resval.rreal);
      break;
    case RTSTR:
      text = value->resval.rstring ? value->resval.rstring : L"";
      break;
    default:
      return RTERROR;
  }
  if ((info->type == VarType::Text) != (value->restype == RTSTR)) return RTERROR;
  switch (TheHost().variables.Set(name, text)) {
    case VarResult::Ok:
      return RTNORM;
    case VarResult::ReadOnly:
    case VarResult::OutOfRange:
      return RTREJ;
    default:
      return RTERROR;
  }
}
