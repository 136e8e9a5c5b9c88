#include "menu/mask_group.h"

#include <cstdlib>
#include <cwchar>
#include <new>

MaskGroup NewGroupWithoutValue(int code) {
  MaskGroup group(new TGroups);
  group->restype = static_cast<short>(code);
  return group;
}

MaskGroup NewShortGroup(int code, short value) {
  MaskGroup group = NewGroupWithoutValue(code);
  group->resval.rint = value;
  return group;
}

MaskGroup NewRealGroup(int code, double value) {
  MaskGroup group = NewGroupWithoutValue(code);
  group->resval.rreal = value;
  return group;
}

MaskGroup NewLongGroup(int code, int value) {
  MaskGroup group = NewGroupWithoutValue(code);
  group->resval.rlong = value;
  return group;
}

// Allocated with malloc, since the group's destructor frees the copy with free.
MaskGroup NewTextGroup(int code, const wchar_t* text) {
  MaskGroup group = NewGroupWithoutValue(code);
  const std::size_t units = std::wcslen(text) + 1;
  group->resval.rstring = static_cast<wchar_t*>(std::malloc(units * sizeof(wchar_t)));
  if (!group->resval.rstring) throw std::bad_alloc();
  std::wmemcpy(group->resval.rstring, text, units);
  return group;
}
