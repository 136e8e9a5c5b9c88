// System variables; see the header.
#include "devhost/core/variables/variables.h"

#include <cwchar>

#include "devhost/core/base/journal.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"
#include "devhost/core/variables/space_variables.h"
#include "devhost/core/variables/variable_values.h"

namespace devhost {
namespace {

constexpr VariableInfo kVariables[] = {
    // name, type, of the drawing, read only, low, high, initial value
    {L"ACADVER", VarType::Text, false, true, 1, 0, L""},
    {L"APERTURE", VarType::Short, false, false, 0, 50, L"10"},
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
    {L"ERRNO", VarType::Short, false, true, 1, 0, L"0"},
    {L"EXTMAX", VarType::Point, true, true, 1, 0, L""},
    {L"EXTMIN", VarType::Point, true, true, 1, 0, L""},
    {L"FILEDIA", VarType::Short, false, false, 0, 1, L"1"},
    {L"GRIDMODE", VarType::Short, true, false, 0, 1, L"0"},
    {L"GRIDUNIT", VarType::Point, true, false, 1e-9, 1e9, L"10,10,0"},
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
    {L"UCSORG", VarType::Point, true, true, 1, 0, L"0,0,0"},
    {L"UCSXDIR", VarType::Point, true, true, 1, 0, L"1,0,0"},
    {L"UCSYDIR", VarType::Point, true, true, 1, 0, L"0,1,0"},
    {L"UNDOCTL", VarType::Short, true, true, 1, 0, L"21"},
    {L"USERI1", VarType::Short, true, false, -32768, 32767, L"0"},
    {L"USERR1", VarType::Real, true, false, 1, 0, L"0"},
    {L"USERS1", VarType::Text, true, false, 1, 0, L""},
    {L"VIEWCTR", VarType::Point, true, true, 1, 0, L""},
    {L"VIEWSIZE", VarType::Real, true, true, 1, 0, L""},
    {L"WORLDUCS", VarType::Short, true, true, 1, 0, L"1"},
};

// Undo reverts in reverse order, so variables that TILEMODE sets are recorded before it.
void RecordForUndo(Document& document, const std::wstring& name) {
  if (name == L"TILEMODE")
    for (const wchar_t* follower : {L"CVPORT", L"CTAB"}) RecordVariableForUndo(document, follower);
  RecordVariableForUndo(document, name);
}

// Points that can be set are steps along the axes: "x,y", or one number for both.
bool ReadSteps(const std::wstring& value, const VariableInfo& info, std::wstring* stored) {
  wchar_t* end = nullptr;
  AcGePoint3d steps;
  steps.x = steps.y = std::wcstod(value.c_str(), &end);
  if (end == value.c_str()) return false;
  if (*end == L',') {
    const wchar_t* at = end + 1;
    steps.y = std::wcstod(at, &end);
    if (end == at) return false;
  }
  if (*end == L',') {  // the third number has no meaning
    const wchar_t* at = end + 1;
    std::wcstod(at, &end);
    if (end == at) return false;
  }
  for (const double step : {steps.x, steps.y})
    if (!(step >= info.low && step <= info.high)) return false;
  *stored = PointText(steps);
  return *end == 0;
}

// The current viewport belongs to the window and is not stored in files.
void MarkModified(Document& document, const std::wstring& name) {
  if (name != L"CVPORT") document.database()->body().modified |= kVariablesModified;
}

Document* VariableDocument() {
  AcApDocument* current = TheHost().documents.curDocument();
  return TheHost().documents.FindDocument(current);
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
  if (ComputedValue(info->name, document, value)) return VarResult::Ok;
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
  if (info->type == VarType::Point && !ReadSteps(value, *info, &stored))
    return VarResult::OutOfRange;
  if (!IsViewportAccepted(document, info->name, stored)) return VarResult::OutOfRange;
  if (info->ofDrawing) {
    RecordForUndo(*document, info->name);
    std::wstring before;
    if (!byHost && (Get(info->name, &before) != VarResult::Ok || before != stored))
      MarkModified(*document, info->name);
  }
  (info->ofDrawing ? document->variables : m_global)[info->name] = stored;
  if (info->ofDrawing) UpdateCurrentSpace(*document, info->name);
  TheJournal().Record("var", {{"name", Utf8(info->name)}, {"value", Utf8(stored)}});
  TheHost().Ui().VariableChanged(info->name);
  return VarResult::Ok;
}

void RestoreVariable(Document& document, const std::wstring& name,
                     const std::optional<std::wstring>& value) {
  const VariableInfo* info = TheHost().variables.Find(name);
  if (value)
    document.variables[name] = *value;
  else
    document.variables.erase(name);
  const std::wstring now = value ? *value : info->initial;
  MarkModified(document, name);
  UpdateCurrentSpace(document, name);
  TheJournal().Record("var", {{"name", Utf8(name)}, {"value", Utf8(now)}});
  TheHost().Ui().VariableChanged(name);
}

}  // namespace devhost
