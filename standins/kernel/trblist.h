// Chains of typed values in the host's resbuf layout. TGroups is one node: its type is a DXF group
// code (or one of the host's RT values), and it owns the text when the code is that of a string.
// TRBList owns a chain. FreeGroups is for these nodes only; a chain of the host is released with
// acutRelRb.
#pragma once

#include <cstddef>
#include <utility>

#include "adsdef.h"
#include "kernel/kernel_export.h"

struct QVX_KERNEL TGroups : resbuf {
  explicit TGroups(int code = 0) noexcept;  // value zero, no next
  ~TGroups();                               // frees a string value, not the next node
  TGroups(const TGroups&) = delete;
  TGroups& operator=(const TGroups&) = delete;

  static void* operator new(std::size_t size);
  static void operator delete(void* node) noexcept;

  TGroups* Next() const noexcept { return static_cast<TGroups*>(rbnext); }
  bool HoldsString() const noexcept;
};

class QVX_KERNEL TRBList {
 public:
  TRBList() noexcept = default;
  ~TRBList() { FreeGroups(m_head); }
  TRBList(TRBList&& other) noexcept : m_head(std::exchange(other.m_head, nullptr)) {}
  TRBList& operator=(TRBList&& other) noexcept {
    SetHead(other.Detach());
    return *this;
  }
  TRBList(const TRBList&) = delete;
  TRBList& operator=(const TRBList&) = delete;

  TGroups* Head() const noexcept { return m_head; }
  bool IsEmpty() const noexcept { return !m_head; }
  void SetHead(TGroups* head) noexcept;  // takes ownership; frees the old chain
  TGroups* Detach() noexcept { return std::exchange(m_head, nullptr); }

  // Each appends one node and returns it; the text is copied.
  TGroups* AppendShort(int code, int value);
  TGroups* AppendReal(int code, double value);
  TGroups* AppendString(int code, const wchar_t* value);
  TGroups* AppendLong(int code, int value);

  static void FreeGroups(resbuf* head) noexcept;  // any length, without recursion

 private:
  TGroups* Append(int code);

  TGroups* m_head = nullptr;
};
