#include "layer_commands.h"

#include <cwchar>

#include "adslib.h"
#include "dbapserv.h"
#include "dbents.h"
#include "design_input.h"
#include "kernel/entities/block_inserts.h"

namespace {

constexpr int kMostColor = 255;

std::wstring CurrentLayer() {
  resbuf value{};
  if (acedGetVar(L"CLAYER", &value) != RTNORM || value.restype != RTSTR) return L"0";
  const std::wstring name = value.resval.rstring;
  acutDelString(value.resval.rstring);
  return name;
}

bool HasLayer(const wchar_t* name) {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  AcDbLayerTable* layers = nullptr;
  if (!database || database->getLayerTable(layers, AcDb::kForRead) != Acad::eOk) return false;
  const bool has = layers->has(name);
  layers->close();
  return has;
}

// The blocks of the drawing that have names of their own.
std::wstring BlockNames(const AcDbBlockTable& blocks) {
  std::wstring names;
  for (AcDbObjectId id : blocks.records()) {
    const auto* block = AcDbBlockTableRecord::cast(id.object());
    if (!block || block->getName()[0] == L'*') continue;
    names += (names.empty() ? L"" : L"、") + std::wstring(block->getName());
  }
  return names;
}

// The block that the user names; null after a message or Escape.
AcDbObjectId AskBlock() {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  AcDbBlockTable* blocks = nullptr;
  AcDbObjectId id;
  if (!database || database->getBlockTable(blocks, AcDb::kForRead) != Acad::eOk) return id;
  const std::wstring names = BlockNames(*blocks);
  blocks->close();
  if (names.empty()) {
    acutPrintf(L"\n本图没有图块，请先用 INSERT 插入图形文件。\n");
    return id;
  }
  acutPrintf(L"\n本图的图块: %ls\n", names.c_str());
  std::wstring name;
  if (!AskText(L"图块名", name) || name.empty()) return id;
  return FindBlock(name.c_str());
}

}  // namespace

void SetLayer() {
  std::wstring name = CurrentLayer();
  int color = 7;
  if (!AskText(L"图层名", name) || name.empty()) return;
  if (!HasLayer(name.c_str())) {
    if (!AskCount(L"新图层的颜色", color, kMostColor) || !EnsureLayer(name.c_str(), color)) return;
  }
  resbuf value{};
  value.restype = RTSTR;
  value.resval.rstring = name.data();
  if (acedSetVar(L"CLAYER", &value) == RTNORM) acutPrintf(L"\n当前图层: %ls\n", name.c_str());
}

void MoveBlocksToLayer() {
  TPickEntSet set;
  std::wstring name = CurrentLayer();
  if (!Chosen(set) || !AskText(L"目标图层", name) || !EnsureLayer(name.c_str(), 7)) return;
  const int count = ChangeEach<AcDbBlockReference>(set, [&name](AcDbBlockReference& block) {
    return block.setLayer(name.c_str()) == Acad::eOk;
  });
  acutPrintf(L"\n%d 个图块改到图层 %ls。\n", count, name.c_str());
  acedRedraw(nullptr, 0);
}

void InsertLibraryBlock() {
  ads_point at{};
  const AcDbObjectId block = AskBlock();
  std::wstring caption;
  if (block.isNull() || !AskPoint(L"\n插入点: ", at) || !AskText(L"说明文字", caption)) return;
  auto reference = std::make_unique<TDbBlockInsert>(WorldPoint(at), block);
  if (!caption.empty()) reference->SetCaption(caption);
  AddEntity(std::move(reference), L"0", 7);
}

void ToggleOrtho() {
  resbuf value{};
  if (acedGetVar(L"ORTHOMODE", &value) != RTNORM) return;
  value.resval.rint = value.resval.rint ? 0 : 1;
  acedSetVar(L"ORTHOMODE", &value);
}
