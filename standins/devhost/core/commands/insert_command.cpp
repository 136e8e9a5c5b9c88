// INSERT: a reference to a block of the drawing, or to a drawing file that becomes a block.
#include <memory>

#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/blocks/block_copy.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/commands/insert_drawing.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"

namespace devhost {
namespace {

// False: cancelled. Enter alone keeps the value.
bool Asked(int status) { return status == RTNORM || status == RTNONE; }

void Insert() {
  Document* document = TheHost().documents.Current();
  const std::wstring name = TheHost().engine.AskForFileName(L"输入块名或图形文件名: ");
  if (name.empty()) return;
  std::wstring why;
  const AcDbObjectId block = BlockForInsert(*document->database(), name, &why);
  if (!why.empty()) TheHost().Print(L"\n" + why + L"\n");
  if (block.isNull()) return;
  ads_point at{};
  ads_real scale = 1, angle = 0;
  if (acedGetPoint(nullptr, L"指定插入点: ", at) != RTNORM) return;
  acedInitGet(6, nullptr);
  if (!Asked(acedGetReal(L"指定比例 <1>: ", &scale))) return;
  if (!Asked(acedGetAngle(at, L"指定旋转角度 <0>: ", &angle))) return;
  const AcGePoint3d place = WorldOfUser(at);
  auto reference = std::make_unique<AcDbBlockReference>(place, block);
  reference->transformBy(AcGeMatrix3d::insertion(
      place, angle + std::atan2(CurrentUserSystem().x.y, CurrentUserSystem().x.x), scale, scale,
      place));
  std::wstring layer = L"0";
  TheHost().variables.Get(L"CLAYER", &layer);
  reference->setLayer(layer.c_str());
  auto* space = AcDbBlockTableRecord::cast(document->database()->currentSpaceId().object());
  if (space->appendAcDbEntity(reference.get()) != Acad::eOk) return;
  AppendAttributes(*reference.release());
  TheHost().Ui().PictureChanged(*document);
}

constexpr NativeCommand kInsert[] = {{L"INSERT", 0, Insert}};

}  // namespace

std::span<const NativeCommand> InsertCommands() { return kInsert; }

}  // namespace devhost
