// The elements of a compiled menu file over a CArchive: little-endian integers, strings, counts.
// The reader takes every size for a claim until the bytes have come: room is made for no more than
// what the file can still hold. Both end by the archive's exceptions.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <unordered_map>

#include "afx.h"
#include "kernel/twcstring.h"

class TMenuSystem;
class TMenuSwitchItem;

constexpr int kArchiveBuffer = 409600;  // bytes; of the archives on compiled files

// Numbers are copied as they lie in memory.
static_assert(std::endian::native == std::endian::little);

// Gathers what is written and hands it to the archive in large pieces; Finish hands over the rest.
class CompiledWriter {
 public:
  // Switches are written as indexes into the system's table; without a system they are lost.
  CompiledWriter(CArchive& ar, TMenuSystem* system);

  void PutU16(uint16_t value) { Store(Room(sizeof value), value); }
  void PutU32(uint32_t value) { Store(Room(sizeof value), value); }
  void PutI32(int32_t value) { PutU32(static_cast<uint32_t>(value)); }
  void PutReal(double value);
  template <size_t kSize>
  void PutBytes(const unsigned char (&bytes)[kSize]) {
    std::memcpy(Room(kSize), bytes, kSize);
  }
  void PutString(const TWCString& text) { PutString(text, text.Length()); }
  void PutString(const wchar_t* text, int length);
  void PutSwitch(const TMenuSwitchItem* item);
  void Finish();

 private:
  template <class Number>
  static void Store(unsigned char* bytes, Number value) {
    std::memcpy(bytes, &value, sizeof value);
  }
  unsigned char* Room(size_t bytes) {  // small ones only
    if (bytes > kPiece - m_filled) Finish();
    unsigned char* room = m_bytes.get() + m_filled;
    m_filled += bytes;
    return room;
  }
  void PutLongString(const wchar_t* text, uint32_t length);

  static constexpr size_t kPiece = kArchiveBuffer;  // so that the archive passes it on as it is

  CArchive& m_ar;
  std::unique_ptr<unsigned char[]> m_bytes;
  size_t m_filled = 0;
  std::unordered_map<const TMenuSwitchItem*, int32_t> m_switches;
};

// Reads elements in their usual forms from memory. An object of this class is local, so that its
// position stays in a register: each element begins where the one before it ends.
class ShortForms {
 public:
  // The bytes that GetString may read: those of the longest string with a length of one byte.
  static constexpr size_t kStringBytes = 4 + 2 * 256;

  explicit ShortForms(const unsigned char* at) : m_at(at) {}
  const unsigned char* At() const { return m_at; }

  uint32_t GetU32() {
    const auto value = Number<uint32_t>(m_at);
    m_at += sizeof value;
    return value;
  }
  // False, with nothing read, for a string of another form.
  bool GetString(TWCString& out) {
    const auto head = Number<uint32_t>(m_at);
    const uint32_t length = head >> 24;
    if ((head & 0xFFFFFF) != kWideHead || length == 0xFF) return false;
    const unsigned char* text = m_at + sizeof head;
    m_at = text + 2 * size_t{length};
    if (length)
      Assign(out, text, length);
    else
      out.Empty();
    return true;
  }
  template <size_t kSize>
  bool Skip(const unsigned char (&bytes)[kSize]) {
    if (std::memcmp(m_at, bytes, kSize) != 0) return false;
    m_at += kSize;
    return true;
  }

  template <class T>
  static T Number(const unsigned char* bytes) {
    T value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
  }

 private:
  static constexpr uint32_t kWideHead = 0xFFFEFF;  // the marker; the length is the byte above it
  static void Assign(TWCString& out, const unsigned char* text, size_t length);

  const unsigned char* m_at;
};

class CompiledReader {
 public:
  // How far the reader may go ahead of what it is asked for. A system is read in large pieces; a
  // lone object must leave the archive where the object ends.
  enum class Ahead { kNothing, kMuch };
  CompiledReader(CArchive& ar, TMenuSystem* system, Ahead ahead);
  // Gives back to the file what was read ahead.
  void Finish();

  uint8_t GetU8() { return *Need(1); }
  uint16_t GetU16() { return ShortForms::Number<uint16_t>(Need(2)); }
  uint32_t GetU32() { return ShortForms::Number<uint32_t>(Need(4)); }
  int32_t GetI32() { return static_cast<int32_t>(GetU32()); }
  double GetReal();
  void GetString(TWCString& out) {
    if (const unsigned char* at = Buffered(ShortForms::kStringBytes)) {
      ShortForms forms(at);
      if (forms.GetString(out)) return Advance(forms.At());
    }
    GetAnyString(out);
  }
  TMenuSwitchItem* GetSwitch();
  // The next bytes when so many are in memory, else null; Advance takes them.
  const unsigned char* Buffered(size_t bytes) const {
    return static_cast<size_t>(m_end - m_at) >= bytes ? m_at : nullptr;
  }
  void Advance(const unsigned char* to) { m_at = to; }

  // For how many of `claimed` elements of at least `smallest` bytes room may be made at once. All
  // the room that is made for the elements of one file is no more than the file can hold.
  int Grant(uint32_t claimed, int smallest);

 private:
  // The next so many bytes; valid until the next call.
  const unsigned char* Need(size_t count) {
    if (count > static_cast<size_t>(m_end - m_at)) Fetch(count);
    m_at += count;
    return m_at - count;
  }
  void Fetch(size_t count);
  void ReadOn(unsigned char* bytes, UINT count);
  void MakeRoom(size_t room);
  void GetAnyString(TWCString& out);
  uint32_t GetLength(bool& wide);

  CArchive& m_ar;
  TMenuSystem* m_system;
  size_t m_window;    // bytes that are read at once; 0 for no more than is asked for
  uint64_t m_left;    // of the file behind m_end; never less than what it still has
  uint64_t m_grants;  // bytes of the file that no room was made for
  std::unique_ptr<unsigned char[]> m_bytes;
  size_t m_room = 0;
  const unsigned char* m_at = nullptr;
  const unsigned char* m_end = nullptr;
};
