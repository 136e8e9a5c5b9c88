#include "tests/doubles/aligned_blocks.h"

#include <cstdlib>
#include <new>

#ifdef _WIN32
#include <malloc.h>
#endif

namespace {
long g_live = 0;

#ifdef _WIN32
void* Allocate(std::size_t size, std::size_t step) { return _aligned_malloc(size, step); }
void Free(void* block) { _aligned_free(block); }
#else
void* Allocate(std::size_t size, std::size_t step) {
  return std::aligned_alloc(step, (size + step - 1) / step * step);
}
void Free(void* block) { std::free(block); }
#endif
}  // namespace

long LiveAlignedBlocks() { return g_live; }

void* operator new(std::size_t size, std::align_val_t alignment) {
  void* block = Allocate(size, static_cast<std::size_t>(alignment));
  if (!block) throw std::bad_alloc();
  ++g_live;
  return block;
}
void operator delete(void* block, std::align_val_t) noexcept {
  if (block) --g_live;
  Free(block);
}
void operator delete(void* block, std::size_t, std::align_val_t alignment) noexcept {
  operator delete(block, alignment);
}
