// Allocates the short texts of TWCString; private to it. Blocks are cut from chunks one after the
// other, so that a block has no heap header and the texts of a menu are in the order of its lines.
// A chunk consists of pages of 32 KiB, counts its blocks and is freed with the last one: a block
// that lives long keeps its chunk. The current chunk is reused instead of freed. Main thread only.
#pragma once

#include <cstddef>
#include <cstdint>

class TextMemory {
 public:
  static constexpr std::size_t kLargestBlock = 1024;  // bytes

  // A block aligned for int, or null when the current page has no room for it.
  static void* Cut(std::size_t bytes) noexcept {
    bytes = (bytes + kAlignment - 1) & ~(kAlignment - 1);
    if (bytes > static_cast<std::size_t>(s_end - s_next)) return nullptr;
    ++s_chunk->blocks;
    char* block = s_next;
    s_next += bytes;
    return block;
  }
  // Begins a new page. Throws std::bad_alloc.
  static void Refill();
  static void Free(void* block) noexcept {
    Chunk* chunk = PageOf(block)->chunk;
    if (--chunk->blocks == 0) Retire(chunk);
  }

 private:
  static constexpr std::size_t kAlignment = alignof(int);
  static constexpr std::size_t kPageBytes = 32768;  // and the alignment of a page

  struct Chunk {
    std::size_t blocks;
    std::size_t pages;
    std::size_t usedPages;
  };
  struct Page {
    Chunk* chunk;
  };

  static Page* PageOf(void* block) noexcept {
    return reinterpret_cast<Page*>(reinterpret_cast<std::uintptr_t>(block) & ~(kPageBytes - 1));
  }
  static Chunk* NewChunk();
  static void BeginPage() noexcept;
  static void Retire(Chunk* chunk) noexcept;

  static Chunk* s_chunk;  // the current one; null before the first
  static char* s_next;    // the free part of its current page
  static char* s_end;
  static std::size_t s_pages;  // of all chunks
};
