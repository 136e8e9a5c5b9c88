#include "menu/record_memory.h"

#include <algorithm>
#include <new>

RecordMemory::Chunk* RecordMemory::s_chunk = nullptr;
char* RecordMemory::s_next = nullptr;
char* RecordMemory::s_end = nullptr;
std::size_t RecordMemory::s_pages = 0;

namespace {
// Unused bytes at the end of a chunk. The header of the next heap block fits into them, so that the
// next chunk can begin at the next multiple of the alignment.
constexpr std::size_t kHeapRecord = 64;
}  // namespace

void RecordMemory::Refill() {
  if (!s_chunk || s_chunk->usedPages == s_chunk->pages) s_chunk = NewChunk();
  char* begin = reinterpret_cast<char*>(PageOf(s_chunk)) + kPageBytes * s_chunk->usedPages;
  const bool isFirst = s_chunk->usedPages == 0;
  const bool isLast = ++s_chunk->usedPages == s_chunk->pages;
  new (begin) Page{s_chunk};
  s_next = begin + sizeof(Page) + (isFirst ? sizeof(Chunk) : 0);
  s_end = begin + kPageBytes - (isLast ? kHeapRecord : 0);
}

// The size of a chunk grows with the total: a large menu needs few chunks, a small menu wastes
// little.
RecordMemory::Chunk* RecordMemory::NewChunk() {
  const std::size_t pages = std::clamp<std::size_t>(s_pages / 4, 1, 8);
  const std::size_t bytes = pages * kPageBytes - kHeapRecord;
  auto* page = static_cast<Page*>(::operator new(bytes, std::align_val_t(kPageBytes)));
  s_pages += pages;
  return new (page + 1) Chunk{0, pages, 0};
}

// Frees the current chunk too, so that the unloaded module leaves no memory.
void RecordMemory::FreeChunk(Chunk* chunk) noexcept {
  if (chunk == s_chunk) {
    s_chunk = nullptr;
    s_next = s_end = nullptr;
  }
  s_pages -= chunk->pages;
  ::operator delete(PageOf(chunk), std::align_val_t(kPageBytes));
}

#if defined(QVX_SEPARATE_BLOCKS)
void* NewRecord(std::size_t bytes) { return ::operator new(bytes); }
void FreeRecord(void* record) noexcept { ::operator delete(record); }
#else
void* NewRecord(std::size_t bytes) { return RecordMemory::Allocate(bytes); }
void FreeRecord(void* record) noexcept { RecordMemory::Free(record); }
#endif
