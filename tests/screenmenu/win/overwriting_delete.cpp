// Overwrites freed memory in this program, so that a use after free fails
// instead of working by chance.
#include <malloc.h>

#include <cstdlib>
#include <cstring>
#include <new>

void* operator new(std::size_t size) {
  if (void* block = std::malloc(size ? size : 1)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
  if (block) std::memset(block, 0xDD, ::_msize(block));
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }
