#include "bench/filter/allocation_count.h"

#include <cstddef>

namespace {

long g_allocations = 0;

}  // namespace

// The C library's own allocator under its other name. operator new calls malloc.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) noexcept {
  ++g_allocations;
  return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept {
  ++g_allocations;
  return __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) noexcept {
  ++g_allocations;
  return __libc_realloc(block, size);
}
}

long AllocationCount() { return g_allocations; }
