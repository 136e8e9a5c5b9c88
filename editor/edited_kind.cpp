#include "editor/edited_kind.h"

#include <algorithm>
#include <cwctype>

namespace qvx {
namespace {

struct Kind {
  const wchar_t* type;
  const wchar_t* name;
};

constexpr wchar_t kAnyText[] = L"文字";
constexpr Kind kKinds[] = {
    {L"ATTRIB", L"属性文字"},
    {L"TEXT", L"单行文字"},
    {L"MTEXT", L"多行文字"},
    {L"QVX_TEXT", L"单行文字"},
    {L"QVX_MTEXT", L"多行文字"},
    {L"QVX_ARROW", L"箭头引注文字"},
    {L"QVX_MULTILEADER", L"引出标注文字"},
    {L"QVX_COMPOSING", L"做法标注文字"},
    {L"QVX_INDEXPOINTER", L"索引符号文字"},
    {L"QVX_DRAWINGINDEX", L"索引图号文字"},
    {L"QVX_SYMB_SECTION", L"剖切符号文字"},
    {L"QVX_DRAWINGNAME", L"图名文字"},
    {L"QVX_ELEVATION", L"标高文字"},
    {L"QVX_SPACE", L"房间文字"},
    {L"QVX_AXIS_LABEL", L"轴号"},
    {L"QVX_OPENING", L"门窗编号"},
    {L"QVX_CORNER_WINDOW", L"转角窗编号"},
    {L"QVX_DORMER", L"老虎窗编号"},
    {L"QVX_COORD", L"坐标文字"},
    {L"QVX_NORTHTHUMB", L"指北针文字"},
    {L"QVX_DIMENSION2", L"尺寸文字"},
    {L"QVX_RADIUSDIM", L"半径标注文字"},
    {L"QVX_SHEET", L"表格单元格文字"},
    {L"QVX_EVACPATH", L"疏散路径文字"},
    {L"QVX_FIREZONE", L"防火分区文字"},
    {L"QVX_AREAREDLINE", L"面积轮廓文字"},
    {L"QVX_MODI", L"修订标记文字"},
    {L"QVX_TDBINSIGHT", L"内视符号文字"},
    {L"QVX_BLOCK_INSERT", L"图块文字"},
    {L"QVX_MVINSERT", L"图块文字"},
};

bool IsSameType(const std::wstring& a, const std::wstring& b) {
  return std::ranges::equal(a, b, [](wchar_t left, wchar_t right) {
    return std::towupper(left) == std::towupper(right);
  });
}

}  // namespace

std::wstring KindOfText(const std::wstring& type) {
  if (type.empty()) return kAnyText;
  for (const Kind& kind : kKinds)
    if (IsSameType(type, kind.type)) return kind.name;
  return type + L" " + kAnyText;
}

}  // namespace qvx
