#include "kernel/trblist.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <new>

#include "kernel/qvxexport.h"

namespace {
wchar_t* CopyText(const wchar_t* text) {
  const std::size_t bytes = sizeof(wchar_t) * (std::wcslen(text) + 1);
  auto* copy = static_cast<wchar_t*>(std::malloc(bytes));
  if (!copy) throw std::bad_alloc();
  std::memcpy(copy, text, bytes);
  return copy;
}
}  // namespace

TGroups::TGroups(int code) noexcept : resbuf() {
  rbnext = nullptr;
  restype = static_cast<short>(code);
  std::memset(&resval, 0, sizeof resval);
}

TGroups::~TGroups() {
  if (HoldsString()) std::free(resval.rstring);
}

bool TGroups::HoldsString() const noexcept {
  return restype == RTSTR || QvxExport::TypeOfCode(restype) == RTSTR;
}

void* TGroups::operator new(std::size_t size) {
  if (void* node = std::malloc(size)) return node;
  throw std::bad_alloc();
}

void TGroups::operator delete(void* node) noexcept { std::free(node); }

void TRBList::SetHead(TGroups* head) noexcept {
  if (head == m_head) return;
  FreeGroups(m_head);
  m_head = head;
}

TGroups* TRBList::Append(int code) {
  auto* node = new TGroups(code);
  if (!m_head) return m_head = node;
  resbuf* last = m_head;
  while (last->rbnext) last = last->rbnext;
  last->rbnext = node;
  return node;
}

TGroups* TRBList::AppendShort(int code, int value) {
  TGroups* node = Append(code);
  node->resval.rint = static_cast<short>(value);
  return node;
}

TGroups* TRBList::AppendReal(int code, double value) {
  TGroups* node = Append(code);
  node->resval.rreal = value;
  return node;
}

// Not stored under a code of another kind: the node would not free the copy.
TGroups* TRBList::AppendString(int code, const wchar_t* value) {
  TGroups* node = Append(code);
  if (node->HoldsString()) node->resval.rstring = CopyText(value ? value : L"");
  return node;
}

TGroups* TRBList::AppendLong(int code, int value) {
  TGroups* node = Append(code);
  node->resval.rlong = value;
  return node;
}

void TRBList::FreeGroups(resbuf* head) noexcept {
  while (head) {
    resbuf* next = head->rbnext;
    delete static_cast<TGroups*>(head);
    head = next;
  }
}
