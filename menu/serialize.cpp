// Serialize of all model classes: the fields in the order of the compiled file, and the file's
// header. docs/compiled-file.md has the byte table.
#include <memory>

#include "menu/compiled_tree.h"
#include "menu/menu_system.h"
#include "menu/fold_case.h"

namespace {

constexpr wchar_t kMagic[] = L"Quivera Compiled Menu File";
constexpr int kMagicLength = sizeof kMagic / sizeof *kMagic - 1;
constexpr uint32_t kVersion = 1;  // written; the reader accepts any

constexpr int kSmallestResource = 3;
constexpr int kSmallestSwitch = 7;
constexpr int kSmallestState = 10;
constexpr int kSmallestBar = 10;

void Write(CompiledWriter& out, const TMenuResItem& item) {
  out.PutString(item.m_strName);
  out.PutString(item.m_strImage);
  out.PutString(item.m_strImage2);
}

void Read(CompiledReader& in, TMenuResItem& item) {
  if (const unsigned char* at = in.Buffered(3 * ShortForms::kStringBytes)) {
    ShortForms forms(at);
    if (forms.GetString(item.m_strName) && forms.GetString(item.m_strImage) &&
        forms.GetString(item.m_strImage2)) {
      in.Advance(forms.At());
      return;
    }
  }
  in.GetString(item.m_strName);
  in.GetString(item.m_strImage);
  in.GetString(item.m_strImage2);
}

void Write(CompiledWriter& out, const TSwitchStateItem& state) {
  out.PutI32(state.m_nValue);
  out.PutString(state.m_strIconName);
  out.PutString(state.m_strLabel);
  out.PutI32(state.m_nIconIndex);
}

void Read(CompiledReader& in, TSwitchStateItem& state) {
  state.m_nValue = in.GetI32();
  in.GetString(state.m_strIconName);
  in.GetString(state.m_strLabel);
  state.m_nIconIndex = in.GetI32();
}

void Write(CompiledWriter& out, TMenuBar& bar) { WriteBar(out, bar); }
void Read(CompiledReader& in, TMenuBar& bar) { ReadBar(in, bar); }
void Write(CompiledWriter& out, TMenuItem& item) { WriteItem(out, item); }
void Read(CompiledReader& in, TMenuItem& item) { ReadItem(in, item); }
void Write(CompiledWriter& out, const TMenuSwitchItem& item);
void Read(CompiledReader& in, TMenuSwitchItem& item);

template <class T>
void WriteList(CompiledWriter& out, const TDPtrList<T>& list) {
  out.PutU32(static_cast<uint32_t>(list.Length()));
  for (T* element : list) Write(out, *element);
}

// Reads up to the claimed count; the file's end throws. An element is added to the list before it
// is read.
template <class T>
void ReadList(CompiledReader& in, TDPtrList<T>& list, int smallest) {
  const uint32_t count = in.GetU32();
  list.Reserve(list.Length() + in.Grant(count, smallest));
  for (uint32_t left = count; left; --left) {
    auto element = std::make_unique<T>();
    list.Append(element.get());
    Read(in, *element.release());
  }
}

void Write(CompiledWriter& out, const TMenuSwitchItem& item) {
  out.PutString(item.m_strName);
  out.PutString(item.m_strGetFn);
  out.PutString(item.m_strSetFn);
  WriteList(out, item.m_states);
}

void Read(CompiledReader& in, TMenuSwitchItem& item) {
  in.GetString(item.m_strName);
  in.GetString(item.m_strGetFn);
  in.GetString(item.m_strSetFn);
  ReadList(in, item.m_states, kSmallestState);
}

void WriteSystem(CompiledWriter& out, TMenuSystem& system) {
  out.PutString(kMagic, kMagicLength);
  out.PutU32(kVersion);
  out.PutU32(system.m_nReserved1);
  out.PutU32(system.m_nReserved2);
  out.PutString(system.m_strTitle);
  WriteList(out, system.m_resources);
  WriteList(out, system.m_switches);
  WriteList<TMenuBar>(out, system);
}

void ReadSystem(CompiledReader& in, TMenuSystem& system) {
  system.EmptyLists();
  TWCString magic;
  in.GetString(magic);
  if (!EqualNamesNoCase(magic, kMagic)) AfxThrowFileException(CFileException::none, -1);
  in.GetU32();
  system.m_nReserved1 = in.GetU32();
  system.m_nReserved2 = in.GetU32();
  in.GetString(system.m_strTitle);
  ReadList(in, system.m_resources, kSmallestResource);
  ReadList(in, system.m_switches, kSmallestSwitch);
  ReadList<TMenuBar>(in, system, kSmallestBar);
}

template <class T>
void StoreOrLoad(CArchive& ar, T& object) {
  if (ar.IsStoring()) {
    CompiledWriter out(ar, TMenuSystem::Current());
    Write(out, object);
    out.Finish();
  } else {
    CompiledReader in(ar, TMenuSystem::Current(), CompiledReader::Ahead::kNothing);
    Read(in, object);
  }
}

}  // namespace

void TMenuResItem::Serialize(CArchive& ar) { StoreOrLoad(ar, *this); }
void TSwitchStateItem::Serialize(CArchive& ar) { StoreOrLoad(ar, *this); }
void TMenuSwitchItem::Serialize(CArchive& ar) { StoreOrLoad(ar, *this); }
void TMenuItem::Serialize(CArchive& ar) { StoreOrLoad(ar, *this); }
void TMenuBar::Serialize(CArchive& ar) { StoreOrLoad(ar, *this); }

void TMenuSystem::Serialize(CArchive& ar) {
  if (ar.IsStoring()) {
    CompiledWriter out(ar, this);
    WriteSystem(out, *this);
    out.Finish();
  } else {
    CompiledReader in(ar, this, CompiledReader::Ahead::kMuch);
    ReadSystem(in, *this);
    in.Finish();
  }
}
