#include "menu/compiled_tree.h"

#include <cwchar>
#include <memory>
#include <vector>

#include "adsdef.h"
#include "kernel/qvxexport.h"
#include "menu/mask_group.h"

namespace {

constexpr int kSmallestItem = 21;  // two strings, two numbers, three more strings, two numbers

// Switch, flags and the two functions of most lines: all empty.
constexpr unsigned char kPlainTail[] = {0xFF, 0xFF, 0xFF, 0xFF, 0,    0,    0,    0,
                                        0xFF, 0xFE, 0xFF, 0,    0xFF, 0xFE, 0xFF, 0};

void WriteGroup(CompiledWriter& out, const resbuf& group) {
  const auto code = static_cast<uint16_t>(group.restype);
  out.PutU16(code);
  switch (QvxExport::TypeOfCode(code)) {
    case RTREAL:
      return out.PutReal(group.resval.rreal);
    case RTSHORT:
      return out.PutI32(group.resval.rint);
    case RTLONG:
      return out.PutI32(group.resval.rlong);
    case RTSTR: {
      const wchar_t* text = group.resval.rstring ? group.resval.rstring : L"";
      return out.PutString(text, static_cast<int>(std::wcslen(text)));
    }
    default:
      return;
  }
}

void WriteMask(CompiledWriter& out, const TRBList& mask) {
  uint32_t count = 0;
  for (const resbuf* group = mask.Head(); group; group = group->rbnext) ++count;
  out.PutU32(count);
  for (const resbuf* group = mask.Head(); group; group = group->rbnext) WriteGroup(out, *group);
}

// A code without a value kind is stored without a value.
MaskGroup ReadGroup(CompiledReader& in) {
  const uint16_t code = in.GetU16();
  switch (QvxExport::TypeOfCode(code)) {
    case RTREAL:
      return NewRealGroup(code, in.GetReal());
    case RTSHORT:
      return NewShortGroup(code, static_cast<short>(in.GetI32()));
    case RTLONG:
      return NewLongGroup(code, in.GetI32());
    case RTSTR: {
      TWCString text;
      in.GetString(text);
      return NewTextGroup(code, text);
    }
    default:
      return NewGroupWithoutValue(code);
  }
}

void ReadMask(CompiledReader& in, TRBList& mask) {
  mask.SetHead(nullptr);
  TGroups* last = nullptr;
  for (uint32_t left = in.GetU32(); left; --left) {
    TGroups* group = ReadGroup(in).release();
    if (last)
      last->rbnext = group;
    else
      mask.SetHead(group);
    last = group;
  }
}

void WriteBarHead(CompiledWriter& out, TMenuBar& bar) {
  out.PutString(bar.m_strName);
  out.PutString(bar.m_strKind);
  WriteMask(out, bar.m_objectMask);
  out.PutU32(static_cast<uint32_t>(bar.Length()));
}

void WriteItemHead(CompiledWriter& out, TMenuItem& item) {
  out.PutString(item.m_strLabel);
  out.PutString(item.m_strCommand);
  out.PutU32(item.m_pSubMenu ? 1 : 0);
}

void WriteItemTail(CompiledWriter& out, TMenuItem& item) {
  if (!item.m_pSwitch && !item.m_nFlags && item.m_strCheckFn.IsEmpty() &&
      item.m_strGrayFn.IsEmpty()) {
    out.PutBytes(kPlainTail);
  } else {
    out.PutSwitch(item.m_pSwitch);
    out.PutU32(item.m_nFlags);
    out.PutString(item.m_strCheckFn);
    out.PutString(item.m_strGrayFn);
  }
  out.PutString(item.m_strIconName);
  out.PutI32(item.m_nIconIndex);
}

uint32_t ReadBarHead(CompiledReader& in, TMenuBar& bar) {
  in.GetString(bar.m_strName);
  in.GetString(bar.m_strKind);
  ReadMask(in, bar.m_objectMask);
  const uint32_t count = in.GetU32();
  bar.Reserve(bar.Length() + in.Grant(count, kSmallestItem));
  return count;
}

// True when a sub-menu follows, which is then attached to the item.
bool ReadItemHead(CompiledReader& in, TMenuItem& item) {
  in.GetString(item.m_strLabel);
  in.GetString(item.m_strCommand);
  if (item.m_pSubMenu && item.m_pSubMenu->m_bOwned) TMenuBar::Delete(item.m_pSubMenu);
  item.m_pSubMenu = nullptr;
  if (!in.GetU32()) return false;
  item.m_pSubMenu = new TMenuBar;
  return true;
}

void ReadItemTail(CompiledReader& in, TMenuItem& item) {
  item.m_pSwitch = in.GetSwitch();
  item.m_nFlags = in.GetU32();
  in.GetString(item.m_strCheckFn);
  in.GetString(item.m_strGrayFn);
  in.GetString(item.m_strIconName);
  item.m_nIconIndex = in.GetI32();
}

// Reads a line in its usual form: no sub-menu, no switch, no function. False, with nothing
// consumed, for any other line; the caller then reads all fields again.
bool ReadPlainItem(CompiledReader& in, TMenuItem& item) {
  const unsigned char* at = in.Buffered(3 * ShortForms::kStringBytes + sizeof kPlainTail + 8);
  if (!at) return false;
  ShortForms forms(at);
  if (!forms.GetString(item.m_strLabel) || !forms.GetString(item.m_strCommand)) return false;
  if (forms.GetU32() != 0 || !forms.Skip(kPlainTail)) return false;
  if (!forms.GetString(item.m_strIconName)) return false;
  item.m_nIconIndex = static_cast<int>(forms.GetU32());
  in.Advance(forms.At());
  return true;
}

TMenuItem* AppendItem(TMenuBar& bar) {
  auto item = std::make_unique<TMenuItem>();
  bar.Append(item.get());
  return item.release();
}

struct WritePlace {
  TMenuBar* bar;
  int next;
};

// Writes the remaining lines of all bars on the path, innermost first.
void WriteLines(CompiledWriter& out, std::vector<WritePlace>& path) {
  while (!path.empty()) {
    WritePlace& place = path.back();
    if (place.next == place.bar->Length()) {
      path.pop_back();
      if (!path.empty()) WriteItemTail(out, *path.back().bar->At(path.back().next - 1));
      continue;
    }
    TMenuItem& item = *place.bar->At(place.next++);
    WriteItemHead(out, item);
    if (!item.m_pSubMenu) {
      WriteItemTail(out, item);
      continue;
    }
    WriteBarHead(out, *item.m_pSubMenu);
    path.push_back({item.m_pSubMenu, 0});
  }
}

struct ReadPlace {
  TMenuBar* bar;
  uint32_t left;
};

void ReadLines(CompiledReader& in, std::vector<ReadPlace>& path) {
  while (!path.empty()) {
    ReadPlace& place = path.back();
    if (place.left == 0) {
      path.pop_back();
      if (!path.empty()) ReadItemTail(in, *path.back().bar->Last());
      continue;
    }
    --place.left;
    TMenuItem* item = AppendItem(*place.bar);
    if (ReadPlainItem(in, *item)) continue;
    if (!ReadItemHead(in, *item)) {
      ReadItemTail(in, *item);
      continue;
    }
    const uint32_t count = ReadBarHead(in, *item->m_pSubMenu);
    path.push_back({item->m_pSubMenu, count});
  }
}

}  // namespace

void WriteBar(CompiledWriter& out, TMenuBar& bar) {
  WriteBarHead(out, bar);
  std::vector<WritePlace> path{{&bar, 0}};
  WriteLines(out, path);
}

void WriteItem(CompiledWriter& out, TMenuItem& item) {
  WriteItemHead(out, item);
  if (item.m_pSubMenu) WriteBar(out, *item.m_pSubMenu);
  WriteItemTail(out, item);
}

void ReadBar(CompiledReader& in, TMenuBar& bar) {
  std::vector<ReadPlace> path{{&bar, ReadBarHead(in, bar)}};
  ReadLines(in, path);
}

void ReadItem(CompiledReader& in, TMenuItem& item) {
  if (ReadItemHead(in, item)) ReadBar(in, *item.m_pSubMenu);
  ReadItemTail(in, item);
}
