// Memory for the many small things that are made once, stay as they are and go together: the lines
// of a menu and their texts. Blocks lie one behind the other in chunks of 32 KiB; a chunk counts
// its blocks and is free when the last one is dropped, so that a block costs neither a heap record
// of its own nor a walk through the heap. A few free chunks are kept for the next menu, the others
// go back to the heap. A block may have several owners. Main thread only, like all menus. What
// comes and goes by itself for hours does not belong here: one block holds its whole chunk. Under
// the address sanitizer blocks lie apart, and dropped records may not be touched.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kernel/kernel_export.h"

#if defined(__SANITIZE_ADDRESS__)
#define QVX_WATCHED_MEMORY 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QVX_WATCHED_MEMORY 1
#endif
#endif

class QVX_KERNEL PackedMemory {
 public:
  static constexpr std::size_t kLargest = 4096;  // bytes of one block
  // Bytes behind the block that was taken last that may be written until the next one is taken: so
  // a short text is copied in one piece of fixed size.
#if defined(QVX_WATCHED_MEMORY)
  static constexpr std::size_t kOverrun = 0;
#else
  static constexpr std::size_t kOverrun = 64;
#endif

  // A block of at most kLargest bytes, aligned for int. Throws std::bad_alloc.
  static void* Take(std::size_t bytes) { return Cut(RoundedUp(bytes, kUnit)); }
  // The same, aligned for a pointer or a double.
  static void* TakeRecord(std::size_t bytes) {
    s_next += reinterpret_cast<std::uintptr_t>(s_next) & (kRecordUnit - 1);
    return Cut(RoundedUp(bytes, kRecordUnit));
  }
  // More owners.
  static void Share(const void* block, std::size_t owners = 1) noexcept {
    ChunkOf(block)->blocks += owners;
  }
  // Owners less; the last one of a chunk frees it.
  static void Drop(const void* block, std::size_t owners = 1) noexcept {
    Chunk* chunk = ChunkOf(block);
    if ((chunk->blocks -= owners) == 0) Retire(chunk);
  }
  // The only owner of a record drops it.
  static void DropRecord(void* block, std::size_t bytes) noexcept {
    Forbid(block, bytes);
    Drop(block);
  }

  // Blocks that were taken or shared and not dropped.
  static std::size_t LiveBlocks() noexcept;

 private:
  struct Chunk {
    std::size_t blocks;
    Chunk* before;
    Chunk* behind;
  };
  static constexpr std::size_t kChunkBytes = 32768;
  static constexpr std::size_t kRoomForTheHeap = 64;  // so that aligned chunks lie side by side
  static constexpr std::size_t kRecordUnit = 8;
#if defined(QVX_WATCHED_MEMORY)
  static constexpr int kMostSpares = 0;
  static constexpr std::size_t kUnit = 8;
  static constexpr std::size_t kGap = 16;
  static void Forbid(void* block, std::size_t bytes) noexcept;
  static void Allow(void* block, std::size_t bytes) noexcept;
#else
  static constexpr int kMostSpares = 128;  // 4 MiB
  static constexpr std::size_t kUnit = 4;
  static constexpr std::size_t kGap = 0;
  static void Forbid(void*, std::size_t) noexcept {}
  static void Allow(void*, std::size_t) noexcept {}
#endif

  static constexpr std::size_t RoundedUp(std::size_t bytes, std::size_t unit) {
    return (bytes + unit - 1) & ~(unit - 1);
  }
  static Chunk* ChunkOf(const void* block) noexcept {
    return reinterpret_cast<Chunk*>(reinterpret_cast<std::uintptr_t>(block) & ~(kChunkBytes - 1));
  }
  static void* Cut(std::size_t bytes) {
    if (bytes + kGap > static_cast<std::size_t>(s_end - s_next)) Refill();
    ++ChunkOf(s_next)->blocks;
    char* block = s_next;
    s_next += bytes + kGap;
    Allow(block, bytes);
    return block;
  }
  static void Refill();
  static void Retire(Chunk* chunk) noexcept;
  static Chunk* NewChunk();
  static void StartOver(Chunk* chunk) noexcept;

  // The free part of the chunk that is being filled; both null before the first one.
  static char* s_next;
  static char* s_end;
  static Chunk* s_chunks;  // those with blocks and the one that is being filled
  static Chunk* s_spare;   // emptied ones, for the next menu; linked by `behind`
  static int s_spares;
};

// Makes the objects of a class records in packed memory.
#define QVX_PACKED_RECORD                                                                  \
 public:                                                                                   \
  static void* operator new(std::size_t bytes) { return PackedMemory::TakeRecord(bytes); } \
  static void operator delete(void* record, std::size_t bytes) noexcept {                  \
    PackedMemory::DropRecord(record, bytes);                                               \
  }
