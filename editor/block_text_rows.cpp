#include "editor/block_text_rows.h"

namespace qvx {
namespace {

using Action = BlockTextAction;

struct Row {
  const wchar_t* type;
  bool byName;  // or by Is
  Action action;
};

constexpr Row kRows[] = {
    {L"ATTRIB", true, Action::kAttributeEditor},
    {L"TEXT", true, Action::kPlainText},
    {L"QVX_MTEXT", true, Action::kOwnEdit},
    {L"QVX_TEXT", true, Action::kOwnEdit},
    {L"QVX_ARROW", false, Action::kOwnEditAtText},
    {L"QVX_MULTILEADER", false, Action::kOwnEditAtText},
    {L"QVX_COMPOSING", false, Action::kOwnEditAtText},
    {L"QVX_INDEXPOINTER", false, Action::kOwnEditAtText},
    {L"QVX_DRAWINGINDEX", false, Action::kOwnEditAtText},
    {L"QVX_SYMB_SECTION", false, Action::kOwnEditAtText},
    {L"QVX_DRAWINGNAME", false, Action::kOwnEditAtText},
    {L"QVX_TDBINSIGHT", false, Action::kOwnEditAtText},
    {L"QVX_ELEVATION", false, Action::kOwnEdit},
    {L"QVX_SPACE", false, Action::kInPlaceAtText},
    {L"QVX_AXIS_LABEL", false, Action::kInPlaceAtText},
    {L"QVX_OPENING", false, Action::kInPlaceAtText},
    {L"QVX_CORNER_WINDOW", false, Action::kInPlaceAtText},
    {L"QVX_DORMER", false, Action::kInPlaceAtText},
    {L"QVX_COORD", false, Action::kInPlaceAtText},
    {L"QVX_MODI", false, Action::kInPlaceAtText},
    {L"QVX_NORTHTHUMB", false, Action::kInPlaceAtText},
    {L"QVX_DIMENSION2", false, Action::kInPlaceAtText},
    {L"QVX_SHEET", false, Action::kInPlaceAtText},
    {L"QVX_EVACPATH", false, Action::kInPlaceAtText},
    {L"QVX_FIREZONE", false, Action::kInPlaceAtText},
    {L"QVX_AREAREDLINE", false, Action::kInPlaceAtText},
    {L"QVX_RADIUSDIM", false, Action::kInPlaceAtText},
};

}  // namespace

BlockTextAction FindBlockTextAction(const TypeTest& object) {
  for (const Row& row : kRows)
    if (row.byName ? object.HasName(row.type) : object.Is(row.type)) return row.action;
  return Action::kNone;
}

}  // namespace qvx
