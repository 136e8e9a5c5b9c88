// Calls to the host core; see the header.
#include "devhost/ui/frame/host_actions.h"

#include "dbsymtb.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/base/json.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/host/host.h"
#include "devhost/core/selection/highlight.h"
#include "devhost/core/selection/selection.h"

namespace devhost {
namespace {

// A file of the working folder precedes those of the support path.
std::wstring FullPath(const std::wstring& path) {
  wchar_t full[1024] = L"";
  const DWORD length = ::GetFullPathNameW(path.c_str(), 1024, full, nullptr);
  const bool there =
      length > 0 && length < 1024 && ::GetFileAttributesW(full) != INVALID_FILE_ATTRIBUTES;
  return there ? std::wstring(full) : path;
}

AcDbEntity* EntityOf(Document& document, const std::string& handle) {
  char* end = nullptr;
  const AcDbHandle value(std::strtoull(handle.c_str(), &end, 16));
  AcDbObjectId id;
  if (end == handle.c_str() || *end != 0 ||
      document.database()->getAcDbObjectId(id, false, value) != Acad::eOk || id.isErased())
    return nullptr;
  return AcDbEntity::cast(id.object());
}

Json DescribeEntity(AcDbEntity& entity) {
  ACHAR handle[17] = L"";
  entity.handle().getIntoAsciiBuffer(handle);
  const ACHAR* dxfName = entity.isA()->dxfName();
  Json out = {{"handle", Utf8(handle)},
              {"type", Utf8(dxfName ? dxfName : entity.isA()->name())},
              {"layer", Utf8(entity.layer())},
              {"color", entity.colorIndex()}};
  AcDbExtents extents;
  if (entity.getGeomExtents(extents) == Acad::eOk)
    out["extents"] = {extents.minPoint().x, extents.minPoint().y, extents.maxPoint().x,
                      extents.maxPoint().y};
  return out;
}

}  // namespace

std::string DescribeActiveDatabase() {
  Document* document = TheHost().documents.Current();
  if (!document) return "{}";
  Json entities = Json::array(), picked = Json::array();
  const AcDbObjectId space = document->database()->currentSpaceId();
  if (const auto* record = AcDbBlockTableRecord::cast(space.object()))
    for (const AcDbObjectId& id : record->entities())
      if (AcDbEntity* entity = id.isErased() ? nullptr : AcDbEntity::cast(id.object()))
        entities.push_back(DescribeEntity(*entity));
  for (const AcDbObjectId& id : document->pickFirst) {
    ACHAR handle[17] = L"";
    id.handle().getIntoAsciiBuffer(handle);
    picked.push_back(Utf8(handle));
  }
  const Json out = {
      {"drawing", Utf8(document->fileName())}, {"selected", picked}, {"entities", entities}};
  return JsonText(out, 1);
}

bool OpenDrawingFile(const std::wstring& path) {
  return TheHost().documents.Open(FullPath(path)) != nullptr;
}

Document* MakeNewDrawing() { return TheHost().documents.New(); }

bool ActivateDrawingNamed(const std::wstring& name) {
  Document* document = TheHost().documents.FindByName(name);
  if (document) TheHost().documents.Activate(document);
  return document != nullptr;
}

void CloseActiveDrawing() {
  if (Document* document = TheHost().documents.Current()) TheHost().documents.Close(document);
}

void RunHostCommand(Document& document, const std::wstring& name) {
  // A command that waits in the front drawing would delay the text of another one.
  if (TheHost().engine.IsCommandRunning()) TheHost().engine.PressEscape();
  TheHost().engine.Post(document, L"\x1b_." + name + L"\n");
}

void RunHostCommand(const std::wstring& name) {
  if (Document* document = TheHost().documents.Current())
    RunHostCommand(*document, name);
  else if (name == L"QUIT")
    TheHost().Ui().EndProgram();
}

bool SelectByHandles(const std::vector<std::string>& handles) {
  Document* document = TheHost().documents.Current();
  if (!document) return false;
  std::vector<AcDbObjectId> picked;
  for (const std::string& handle : handles) {
    AcDbEntity* entity = EntityOf(*document, handle);
    if (!entity) return false;
    picked.push_back(entity->objectId());
  }
  SetPickFirst(*document, std::move(picked));
  return true;
}

std::vector<std::string> HighlightedHandles() {
  std::vector<std::string> handles;
  const Document* document = TheHost().documents.Current();
  if (!document) return handles;
  for (AcDbObjectId id : HighlightedObjects(*document)) {
    ACHAR handle[17] = L"";
    id.handle().getIntoAsciiBuffer(handle);
    handles.push_back(Utf8(handle));
  }
  return handles;
}

void ShowHostHelp() {
  const std::wstring command = TheHost().engine.CommandNames();
  TheJournal().Record("hosthelp", {{"command", Utf8(command)}});
  TheHost().Print(L"\n帮助: " + (command.empty() ? std::wstring(L"命令一览") : command) + L"\n");
}

bool SetVariableText(const std::wstring& name, const std::wstring& value) {
  return TheHost().variables.Set(name, value) == VarResult::Ok;
}

bool GetVariableText(const std::wstring& name, std::wstring* value) {
  return TheHost().variables.Get(name, value) == VarResult::Ok;
}

}  // namespace devhost
