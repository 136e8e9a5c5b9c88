#include "tests/fuzz/drawing_fuzz.h"

#include "dbsymtb.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/host.h"
#include "devhost/core/view/scene.h"

namespace {

std::size_t CountIn(AcDbDatabase& database) {
  std::size_t count = 0;
  for (AcDbObjectId id : AcDbBlockTable::cast(database.blockTableId().object())->records())
    count += AcDbBlockTableRecord::cast(id.object())->entities().size();
  return count;
}

}  // namespace

std::wstring FuzzDrawing(std::string_view bytes) {
  devhost::TheHost();  // registers the drawing classes
  AcDbDatabase first, second;
  if (!devhost::ReadDrawingText(bytes, L"fuzz.dxf", first).readAnything) return {};
  devhost::BuildScene(first, 1);
  const std::string text = devhost::DrawingText(first);
  const std::wstring message = devhost::ReadDrawingText(text, L"again.dxf", second).message;
  if (!message.empty()) return message;
  return CountIn(first) == CountIn(second) ? L"" : L"entities were lost";
}
