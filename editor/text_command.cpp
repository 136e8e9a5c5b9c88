#include "editor/text_command.h"

#include <utility>

#include "adscodes.h"

namespace qvx {
namespace {

constexpr const wchar_t* kPrompt = L"\n选择需要修改文字的图元<退出>:";
constexpr const wchar_t* kTypes = L"QVX_*";

std::unique_ptr<EditFragment> FirstText(TextCommandHost& host, AcDbObjectId object) {
  std::unique_ptr<EditFragment> text;
  if (host.IsCarrier(TextCarrier::kEntity, object)) {
    text = host.GetSubText(TextCarrier::kEntity, object, 0);
    if (!text) text = host.GetSubText(TextCarrier::kEntity, object, 1);
  }
  if (!text && host.IsCarrier(TextCarrier::kCurve, object))
    text = host.GetSubText(TextCarrier::kCurve, object, 0);
  return text;
}

}  // namespace

void EditPickedText(TextCommandHost& host) {
  AcDbObjectId object;
  if (host.PickOne(kPrompt, kTypes, object) != RTNORM || host.IsGone()) return;
  std::unique_ptr<EditFragment> text = FirstText(host, object);
  if (!text) return;
  host.ClearSelection();
  if (!host.IsGone()) host.BeginEdit(std::move(text), AcGeMatrix3d());
}

}  // namespace qvx
