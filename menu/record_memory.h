// Allocates the records of the menu model: lines, blocks, resources, switches and states. A large
// menu has a million of them, which are created in sequence and deleted together. They are cut from
// chunks, without a heap header for each. A chunk consists of pages of 32 KiB, counts its records
// and is freed with the last one: a record that lives long keeps its chunk. Main thread only.
//
// A class uses it by declaring an operator new and an operator delete that call NewRecord and
// FreeRecord.
#pragma once

#include <cstddef>
#include <cstdint>

class RecordMemory {
 public:
  static constexpr std::size_t kLargestRecord = 1024;  // bytes

  // Aligned for a pointer and a double. Throws std::bad_alloc.
  static void* Allocate(std::size_t bytes) {
    bytes = (bytes + kAlignment - 1) & ~(kAlignment - 1);
    if (bytes > static_cast<std::size_t>(s_end - s_next)) Refill();
    ++s_chunk->records;
    char* record = s_next;
    s_next += bytes;
    return record;
  }
  static void Free(void* record) noexcept {
    Chunk* chunk = PageOf(record)->chunk;
    if (--chunk->records == 0) FreeChunk(chunk);
  }

 private:
  static constexpr std::size_t kAlignment = 8;
  static constexpr std::size_t kPageBytes = 32768;  // and the alignment of a page

  struct Chunk {
    std::size_t records;
    std::size_t pages;
    std::size_t usedPages;
  };
  struct Page {
    Chunk* chunk;
  };

  static Page* PageOf(void* record) noexcept {
    return reinterpret_cast<Page*>(reinterpret_cast<std::uintptr_t>(record) & ~(kPageBytes - 1));
  }
  static void Refill();
  static Chunk* NewChunk();
  static void FreeChunk(Chunk* chunk) noexcept;

  static Chunk* s_chunk;  // the current one; null before the first
  static char* s_next;    // the free part of its current page
  static char* s_end;
  static std::size_t s_pages;  // of all chunks
};

// For operator new and operator delete. In builds for memory checkers each record is a heap block,
// so that the checker knows its bounds and its lifetime.
void* NewRecord(std::size_t bytes);
void FreeRecord(void* record) noexcept;
