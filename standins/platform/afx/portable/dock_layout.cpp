// Layout of docked bars; see the header.
#include "portable/dock_layout.h"

#include <algorithm>
#include <cstdlib>

namespace {

int Along(const SIZE& size, bool horizontal) { return horizontal ? size.cx : size.cy; }
int Across(const SIZE& size, bool horizontal) { return horizontal ? size.cy : size.cx; }
int Along(const POINT& point, bool horizontal) { return horizontal ? point.x : point.y; }
int Across(const POINT& point, bool horizontal) { return horizontal ? point.y : point.x; }

RECT MakeRect(bool horizontal, int alongStart, int acrossStart, int alongEnd, int acrossEnd) {
  return horizontal ? RECT{alongStart, acrossStart, alongEnd, acrossEnd}
                    : RECT{acrossStart, alongStart, acrossEnd, alongEnd};
}

struct Span {
  int start, end;
};

bool AnyFills(const DockRow& row) {
  return std::any_of(row.begin(), row.end(), [](const DockBox& box) { return box.fills; });
}

// Places one bar after the other. Filling bars share the rest of the row equally, the
// last gets the remainder.
std::vector<Span> FillRow(const DockRow& row, bool horizontal, int length) {
  int fixed = 0, fillers = 0;
  for (const DockBox& box : row) {
    fillers += box.fills;
    if (!box.fills) fixed += Along(box.wanted, horizontal);
  }
  const int rest = std::max(0, length - fixed), share = rest / fillers;
  std::vector<Span> spans;
  int at = 0, given = 0;
  for (const DockBox& box : row) {
    int size = Along(box.wanted, horizontal);
    if (box.fills) size = ++given == fillers ? rest - share * (fillers - 1) : share;
    spans.push_back({at, at + size});
    at += size;
  }
  return spans;
}

std::vector<Span> SpreadRow(const DockRow& row, bool horizontal, int length) {
  std::vector<Span> spans;
  int end = 0;
  for (const DockBox& box : row) {
    const int start = std::max(box.offset, end);
    end = start + Along(box.wanted, horizontal);
    spans.push_back({start, end});
  }
  int limit = length;
  for (auto span = spans.rbegin(); span != spans.rend() && span->end > limit; ++span) {
    const int size = span->end - span->start;
    span->start = std::max(0, limit - size);
    span->end = span->start + size;
    limit = span->start;
  }
  // Row too long: the first bars keep their offset, the window clips the last ones.
  end = 0;
  for (Span& span : spans) {
    const int push = std::max(0, end - span.start);
    span = {span.start + push, span.end + push};
    end = span.end;
  }
  return spans;
}

bool StripStandsBefore(DWORD side) { return side == kDockRight || side == kDockBottom; }

DockPlan::Row PlanRow(const DockRow& row, DWORD side, int length, int stripWidth, int start) {
  const bool horizontal = DockRunsAcrossScreen(side), fills = AnyFills(row);
  int thickness = 0;
  for (const DockBox& box : row) thickness = std::max(thickness, Across(box.wanted, horizontal));
  const int strip = fills ? stripWidth : 0;
  const int barStart = start + (StripStandsBefore(side) ? strip : 0);
  const auto spans = fills ? FillRow(row, horizontal, length) : SpreadRow(row, horizontal, length);

  DockPlan::Row planned{{}, {}, start, start + thickness + strip};
  for (std::size_t i = 0; i < row.size(); ++i) {
    const int own = fills ? thickness : Across(row[i].wanted, horizontal);
    planned.bars.push_back(
        {MakeRect(horizontal, spans[i].start, barStart, spans[i].end, barStart + own),
         row[i].entry});
  }
  if (strip > 0) {
    const int at = StripStandsBefore(side) ? start : barStart + thickness;
    planned.strip = MakeRect(horizontal, 0, at, length, at + strip);
  }
  return planned;
}

DockPlace PlaceInRow(const DockPlan::Row& row, bool horizontal, int along) {
  for (const DockPlan::Bar& bar : row.bars) {
    const POINT middle{(bar.rect.left + bar.rect.right) / 2, (bar.rect.top + bar.rect.bottom) / 2};
    if (along < Along(middle, horizontal)) return {bar.entry, false};
  }
  return {row.bars.back().entry + 1, false};
}

}  // namespace

DockPlan PlanDockRows(const std::vector<DockRow>& rows, DWORD side, int length, int stripWidth) {
  DockPlan plan;
  for (const DockRow& row : rows) {
    plan.rows.push_back(PlanRow(row, side, std::max(0, length), stripWidth, plan.thickness));
    plan.thickness = plan.rows.back().end;
  }
  return plan;
}

DockPlace FindDockPlace(const DockPlan& plan, DWORD side, POINT middle, int arraySize) {
  const bool horizontal = DockRunsAcrossScreen(side);
  const int across = Across(middle, horizontal);
  for (std::size_t i = 0; i < plan.rows.size(); ++i) {
    const DockPlan::Row& row = plan.rows[i];
    const int sixth = (row.end - row.start) / 6;
    if (across < row.start + sixth) return {row.bars.front().entry, true};
    if (across < row.end - sixth) return PlaceInRow(row, horizontal, Along(middle, horizontal));
    if (i + 1 < plan.rows.size() && across < row.end)
      return {plan.rows[i + 1].bars.front().entry, true};
  }
  return {arraySize, true};
}

DWORD DropSide(POINT point, const RECT& area, DWORD allowed, int reach) {
  if (point.x < area.left - reach || point.x >= area.right + reach || point.y < area.top - reach ||
      point.y >= area.bottom + reach)
    return kDockNone;
  const struct {
    DWORD side;
    int distance;
  } edges[] = {{kDockLeft, point.x - area.left},
               {kDockTop, point.y - area.top},
               {kDockRight, area.right - 1 - point.x},
               {kDockBottom, area.bottom - 1 - point.y}};
  DWORD best = kDockNone;
  int bestDistance = reach + 1;
  for (const auto& edge : edges)
    if ((allowed & edge.side) && std::abs(edge.distance) < bestDistance) {
      best = edge.side;
      bestDistance = std::abs(edge.distance);
    }
  return best;
}

RECT DockPreview(const RECT& area, DWORD side, SIZE wanted) {
  RECT band = area;
  if (side == kDockLeft) band.right = std::min(area.right, area.left + wanted.cx);
  if (side == kDockRight) band.left = std::max(area.left, area.right - wanted.cx);
  if (side == kDockTop) band.bottom = std::min(area.bottom, area.top + wanted.cy);
  if (side == kDockBottom) band.top = std::max(area.top, area.bottom - wanted.cy);
  return band;
}

RECT DragDockStrip(const RECT& strip, const RECT& bar, DWORD side, POINT from, POINT to, int least,
                   const RECT& area) {
  const bool horizontal = DockRunsAcrossScreen(side);
  int shift = Across(to, horizontal) - Across(from, horizontal);
  const int stripStart = horizontal ? strip.top : strip.left;
  const int stripEnd = horizontal ? strip.bottom : strip.right;
  const int barSize = horizontal ? bar.bottom - bar.top : bar.right - bar.left;
  // `spare`: how much the bar can shrink. `room`: how far the strip can move the other way.
  const int spare = std::max(0, barSize - least);
  const int room = StripStandsBefore(side)
                       ? stripStart - static_cast<int>(horizontal ? area.top : area.left)
                       : static_cast<int>(horizontal ? area.bottom : area.right) - stripEnd;
  if (StripStandsBefore(side))
    shift = std::clamp(shift, -std::max(0, room), spare);
  else
    shift = std::clamp(shift, -spare, std::max(0, room));
  RECT moved = strip;
  (horizontal ? moved.top : moved.left) += shift;
  (horizontal ? moved.bottom : moved.right) += shift;
  return moved;
}

int ThicknessAfterDrag(const RECT& before, const RECT& after, const RECT& bar, DWORD side) {
  const bool horizontal = DockRunsAcrossScreen(side);
  const int shift = horizontal ? after.top - before.top : after.left - before.left;
  const int barSize = horizontal ? bar.bottom - bar.top : bar.right - bar.left;
  return StripStandsBefore(side) ? barSize - shift : barSize + shift;
}
