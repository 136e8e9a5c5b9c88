#include "tests/menu/memory_faults.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <new>

#ifdef _WIN32
#include <malloc.h>
#endif
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

extern "C" {
void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* block, std::size_t size);
void __real_free(void* block);
void* __wrap_malloc(std::size_t size);
void* __wrap_calloc(std::size_t count, std::size_t size);
void* __wrap_realloc(void* block, std::size_t size);
void __wrap_free(void* block);
}

namespace memory_faults {
namespace {

// Blocks of the current watch by address, in a table of fixed size, which allocates nothing. The
// addresses are stored inverted, so that a leak checker does not take them for references.
struct Entry {
  std::uintptr_t key;
  std::size_t size;
};
constexpr std::size_t kSlots = std::size_t{1} << 18;
constexpr std::uintptr_t kErased = 1;
Entry* g_table = nullptr;

thread_local bool g_on = false;
long g_at = 0;
Fails g_fails = Fails::kOnce;
bool g_failed = false;
Count g_count;
std::size_t g_used = 0;
std::size_t g_slots[kSlots / 2];  // the used slots, for clearing them

std::uintptr_t KeyOf(const void* block) { return ~reinterpret_cast<std::uintptr_t>(block); }
std::size_t SlotOf(std::uintptr_t key) { return (key >> 4) * 0x9E3779B1u & (kSlots - 1); }

void Remember(void* block, std::size_t size) {
  g_count.bytes += size;
  g_count.liveBytes += size;
  g_count.peakBytes = std::max(g_count.peakBytes, g_count.liveBytes);
  g_count.largest = std::max(g_count.largest, size);
  ++g_count.live;
  if (g_used == kSlots / 2) std::abort();  // the table is too small for this test
  std::size_t at = SlotOf(KeyOf(block));
  while (g_table[at].key) at = (at + 1) & (kSlots - 1);
  g_slots[g_used++] = at;
  g_table[at] = {KeyOf(block), size};
}

// True when the block is of this watch.
bool Forget(const void* block) {
  if (!g_table || !block) return false;
  std::size_t at = SlotOf(KeyOf(block));
  for (; g_table[at].key; at = (at + 1) & (kSlots - 1)) {
    if (g_table[at].key != KeyOf(block)) continue;
    g_table[at].key = kErased;
    g_count.liveBytes -= g_table[at].size;
    --g_count.live;
    return true;
  }
  return false;
}

// With QVX_TRACE_ALLOCATION=n in the environment, prints where each n-th allocation that fails was
// made.
void TraceIfAsked() {
#if defined(__SANITIZE_ADDRESS__)
  static const char* const wanted = std::getenv("QVX_TRACE_ALLOCATION");
  if (!wanted || std::atol(wanted) != g_count.allocations) return;
  Pause pause;
  __sanitizer_print_stack_trace();
#endif
}

bool MayAllocate() {
  if (!g_on) return true;
  ++g_count.allocations;
  const bool refuse =
      g_at && (g_fails == Fails::kOnce ? g_count.allocations == g_at : g_count.allocations >= g_at);
  if (refuse) {
    if (!g_failed) TraceIfAsked();
    g_failed = true;
    errno = ENOMEM;
  }
  return !refuse;
}

void* Made(void* block, std::size_t size) {
  if (block && g_on) Remember(block, size);
  return block;
}

#ifdef _WIN32
void* Aligned(std::size_t size, std::size_t step) { return _aligned_malloc(size, step); }
void FreeAligned(void* block) { _aligned_free(block); }
#else
void* Aligned(std::size_t size, std::size_t step) {
  return std::aligned_alloc(step, (size + step - 1) / step * step);
}
void FreeAligned(void* block) { __real_free(block); }
#endif

}  // namespace

void Begin(long at, Fails fails) {
  if (!g_table) g_table = static_cast<Entry*>(__real_calloc(kSlots, sizeof(Entry)));
  while (g_used) g_table[g_slots[--g_used]] = {};
  g_count = {};
  g_failed = false;
  g_at = at;
  g_fails = fails;
  g_on = true;
}

Count End() {
  g_on = false;
  return g_count;
}

bool HasFailed() { return g_failed; }

long FreeLost() {
  long lost = 0;
#ifndef _WIN32
  for (std::size_t i = 0; i < kSlots; ++i) {
    if (g_table[i].key <= kErased) continue;
    __real_free(reinterpret_cast<void*>(~g_table[i].key));
    ++lost;
  }
#endif
  return lost;
}

Pause::Pause() : m_was(g_on) { g_on = false; }
Pause::~Pause() { g_on = m_was; }

}  // namespace memory_faults

using namespace memory_faults;

extern "C" {
void* __wrap_malloc(std::size_t size) {
  return MayAllocate() ? Made(__real_malloc(size), size) : nullptr;
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
  return MayAllocate() ? Made(__real_calloc(count, size), count * size) : nullptr;
}

void* __wrap_realloc(void* block, std::size_t size) {
  if (!MayAllocate()) return nullptr;
  Forget(block);
  return Made(__real_realloc(block, size), size);
}

void __wrap_free(void* block) {
  Forget(block);
  __real_free(block);
}
}

void* operator new(std::size_t size) {
  if (void* block = __wrap_malloc(size ? size : 1)) return block;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return __wrap_malloc(size ? size : 1);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return __wrap_malloc(size ? size : 1);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  const auto step = static_cast<std::size_t>(alignment);
  void* block = nullptr;
  if (MayAllocate()) block = Made(Aligned(size, step), size);
  if (!block) throw std::bad_alloc();
  return block;
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return operator new(size, alignment);
}
void operator delete(void* block, std::align_val_t) noexcept {
  Forget(block);
  FreeAligned(block);
}
void operator delete[](void* block, std::align_val_t alignment) noexcept {
  operator delete(block, alignment);
}
void operator delete(void* block, std::size_t, std::align_val_t alignment) noexcept {
  operator delete(block, alignment);
}
void operator delete[](void* block, std::size_t, std::align_val_t alignment) noexcept {
  operator delete(block, alignment);
}

void operator delete(void* block) noexcept { __wrap_free(block); }
void operator delete[](void* block) noexcept { __wrap_free(block); }
void operator delete(void* block, std::size_t) noexcept { __wrap_free(block); }
void operator delete[](void* block, std::size_t) noexcept { __wrap_free(block); }
