#include "kernel/packed_memory.h"

#include <new>

#if defined(QVX_WATCHED_MEMORY)
#include <sanitizer/asan_interface.h>
void PackedMemory::Forbid(void* block, std::size_t bytes) noexcept {
  __asan_poison_memory_region(block, bytes);
}
void PackedMemory::Allow(void* block, std::size_t bytes) noexcept {
  __asan_unpoison_memory_region(block, bytes);
}
#endif

char* PackedMemory::s_next = nullptr;
char* PackedMemory::s_end = nullptr;
PackedMemory::Chunk* PackedMemory::s_chunks = nullptr;
PackedMemory::Chunk* PackedMemory::s_spare = nullptr;
int PackedMemory::s_spares = 0;

PackedMemory::Chunk* PackedMemory::NewChunk() {
  if (!s_spare)
    return static_cast<Chunk*>(
        ::operator new(kChunkBytes - kRoomForTheHeap, std::align_val_t(kChunkBytes)));
  Chunk* chunk = s_spare;
  s_spare = chunk->behind;
  --s_spares;
  return chunk;
}

void PackedMemory::Refill() {
  auto* chunk = new (NewChunk()) Chunk{0, nullptr, s_chunks};
  if (s_chunks) s_chunks->before = chunk;
  s_chunks = chunk;
  StartOver(chunk);
}

void PackedMemory::StartOver(Chunk* chunk) noexcept {
  s_next = reinterpret_cast<char*>(chunk + 1);
  s_end = reinterpret_cast<char*>(chunk) + kChunkBytes - kRoomForTheHeap - kOverrun;
  Forbid(s_next, static_cast<std::size_t>(s_end - s_next));
}

// The chunk that is being filled is filled anew; any other one is done with.
void PackedMemory::Retire(Chunk* chunk) noexcept {
  if (chunk == ChunkOf(s_next)) return StartOver(chunk);
  (chunk->before ? chunk->before->behind : s_chunks) = chunk->behind;
  if (chunk->behind) chunk->behind->before = chunk->before;
  if (s_spares < kMostSpares) {
    chunk->behind = s_spare;
    s_spare = chunk;
    ++s_spares;
    return;
  }
  Allow(chunk, kChunkBytes - kRoomForTheHeap);
  ::operator delete(chunk, std::align_val_t(kChunkBytes));
}

std::size_t PackedMemory::LiveBlocks() noexcept {
  std::size_t blocks = 0;
  for (const Chunk* chunk = s_chunks; chunk; chunk = chunk->behind) blocks += chunk->blocks;
  return blocks;
}
