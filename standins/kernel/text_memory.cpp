#include "kernel/text_memory.h"

#include <algorithm>
#include <new>

TextMemory::Chunk* TextMemory::s_chunk = nullptr;
char* TextMemory::s_next = nullptr;
char* TextMemory::s_end = nullptr;
std::size_t TextMemory::s_pages = 0;

namespace {
// Unused bytes at the end of a chunk. The header of the next heap block fits into them, so that the
// next chunk can begin at the next multiple of the alignment.
constexpr std::size_t kHeapRecord = 64;
}  // namespace

void TextMemory::Refill() {
  if (!s_chunk || s_chunk->usedPages == s_chunk->pages) s_chunk = NewChunk();
  BeginPage();
}

// The size of a chunk grows with the total: a large menu needs few chunks, a small menu wastes
// little.
TextMemory::Chunk* TextMemory::NewChunk() {
  const std::size_t pages = std::clamp<std::size_t>(s_pages / 4, 1, 8);
  const std::size_t bytes = pages * kPageBytes - kHeapRecord;
  auto* page = static_cast<Page*>(::operator new(bytes, std::align_val_t(kPageBytes)));
  s_pages += pages;
  return new (page + 1) Chunk{0, pages, 0};
}

void TextMemory::BeginPage() noexcept {
  char* begin = reinterpret_cast<char*>(PageOf(s_chunk)) + kPageBytes * s_chunk->usedPages;
  const bool isFirst = s_chunk->usedPages == 0;
  const bool isLast = ++s_chunk->usedPages == s_chunk->pages;
  new (begin) Page{s_chunk};
  s_next = begin + sizeof(Page) + (isFirst ? sizeof(Chunk) : 0);
  s_end = begin + kPageBytes - (isLast ? kHeapRecord : 0);
}

void TextMemory::Retire(Chunk* chunk) noexcept {
  if (chunk == s_chunk) {
    chunk->usedPages = 0;
    return BeginPage();
  }
  s_pages -= chunk->pages;
  ::operator delete(PageOf(chunk), std::align_val_t(kPageBytes));
}
