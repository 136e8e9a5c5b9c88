// The opening of the in-place editor's box, its place and its growth.
#include "editor/in_place_editor.h"

#include "editor/block_references.h"
#include "editor/edit_box.h"
#include "editor/edit_state.h"
#include "editor/text_wrap.h"
#include "kernel/globals.h"

namespace qvx {
namespace {

// Gives a text without a usable extent the size that a word has in its place.
constexpr const wchar_t* kMeasuredWord = L"Vexra";

void ReadCorners(EditFragment& fragment, AcGePoint3d& lower, AcGePoint3d& upper) {
  fragment.GetExtent2d(lower, upper);
  if (HasUsableExtent(lower, upper)) return;
  const std::wstring text = fragment.GetText();
  fragment.SetText(kMeasuredWord);
  fragment.GetExtent2d(lower, upper);
  fragment.SetText(text);
}

}  // namespace

TextPlace InPlaceEditor::FindPlace(const AcGeMatrix3d& toWorld) {
  AcGePoint3d lower, upper;
  ReadCorners(*m_pSubText, lower, upper);
  const int viewport = m_host.CurrentViewport();
  return PlaceOfText(m_host.WorldToPixel(viewport, toWorld * lower),
                     m_host.WorldToPixel(viewport, toWorld * upper));
}

void InPlaceEditor::OpenBox(const AcGeMatrix3d& toWorld) {
  const EditWatch watch(m_state);
  ResetForBox();
  const std::wstring text = m_pSubText->GetText();
  const TextPlace place = FindPlace(toWorld);
  const BoxParent parent = ParentOfBox(g_dHostVersion);
  // Deliberate: the text's rectangle stays in pixels of the view.
  const POINT centre =
      parent == BoxParent::kFrame ? m_host.ViewToFrame(place.centre) : place.centre;
  const bool isCreated = m_control.Create(parent);
  if (watch.IsGone()) return;
  if (!isCreated) return CancelEdit();
  watch.Run([&] { m_control.SetFont(-g_iInPlaceFontHeight); },
            [&] { PlaceFirstBox(centre, place, text.empty()); }, [&] { FillBox(text); },
            [&] { SelectAndSize(); }, [&] { FinishOpening(place); });
}

void InPlaceEditor::ResetForBox() {
  m_drag.Reset();
  m_bInSubDialog = m_isComposing = false;
}

void InPlaceEditor::PlaceFirstBox(POINT centre, const TextPlace& place, bool isEmpty) {
  const RECT box = FirstBox(centre, m_control.Measure(L"a", MeasureFont::kContext).cy);
  const bool atText = isEmpty && g_dHostVersion < kLastHostWithMovingBox;
  m_control.Move(atText ? WithLeftEdgeAt(box, place.box.left) : box);
}

void InPlaceEditor::FillBox(const std::wstring& text) {
  const EditWatch watch(m_state);
  m_bCentreGrow = true;
  m_control.SetText(text);
  if (watch.IsGone()) return;
  const std::wstring shown = m_control.Text();
  const int limit = WidthLimit(m_host.ScreenWidth());
  m_bWrapped = m_control.Measure(shown, MeasureFont::kContext).cx > limit && IsOneLine();
  if (m_bWrapped) m_control.SetText(WrapText(shown, m_control.PrefixWidths(shown), limit));
}

void InPlaceEditor::SelectAndSize() {
  const EditWatch watch(m_state);
  watch.Run([&] { m_control.SelectAll(); }, [&] { m_control.ScrollToCaret(); },
            [&] { m_control.TakeFocus(); }, [&] { m_control.SetModified(false); },
            [&] { AdjustEditSize(); }, [&] { m_bCentreGrow = false; });
}

void InPlaceEditor::FinishOpening(const TextPlace& place) {
  if (!Contains(place.box, m_control.ScreenToParent(m_host.CursorPosition())))
    m_host.MoveCursor(CentreOf(m_control.BoxOnScreen()));
  const EditWatch watch(m_state);
  if (g_dHostVersion > kLastHostWithMovingBox) m_control.BringToTop();
  if (watch.IsGone()) return;
  m_pMenuBar = nullptr;
  m_drag.m_bFreshClick = true;
}

void InPlaceEditor::AdjustEditSize() {
  if (!m_pSubText || !m_control.Exists()) return;
  const RECT parent = m_control.ParentClient(), old = m_control.Box();
  const std::wstring text = m_control.Text();
  const SIZE room{parent.right - parent.left, parent.bottom - parent.top};
  const SIZE needed = NeededSize(text, !IsOneLine() || m_bWrapped, room, m_control);
  const RECT box = ShiftedInside(GrownBox(old, needed, m_bCentreGrow), parent);
  if (!IsSameBox(box, old)) m_control.Move(box);
}

void InPlaceEditor::RepositionEdit() {
  if (!m_pSubText || !m_control.Exists() || !m_host.HasView()) return;
  const RECT box = CentredBox(m_control.Box(), FindPlace(AcGeMatrix3d()).centre);
  const EditWatch watch(m_state);
  watch.Run([&] { m_control.Move(box); }, [&] { AdjustEditSize(); },
            [&] { m_control.Invalidate(); }, [&] { m_control.ShowCaret(); });
}

}  // namespace qvx
