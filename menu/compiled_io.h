// Reads and writes the elements of a compiled menu file through a CArchive: little-endian integers,
// strings, counts. The reader trusts no size in the file: it reserves no more memory than the rest
// of the file can fill. Errors are the archive's exceptions.
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

// Numbers are copied in the byte order of the processor.
static_assert(std::endian::native == std::endian::little);

// Buffers the output and writes it to the archive in large pieces; Finish writes the rest.
class CompiledWriter {
 public:
  // Switches are written as indexes into the system's table; without a system as none.
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
  unsigned char* Room(size_t bytes) {  // at most kPiece
    if (bytes > kPiece - m_filled) Finish();
    unsigned char* room = m_bytes.get() + m_filled;
    m_filled += bytes;
    return room;
  }
  void PutLongString(const wchar_t* text, uint32_t length);

  static constexpr size_t kPiece =
      kArchiveBuffer;  // of the archive's buffer size, so that the archive does not copy it

  CArchive& m_ar;
  std::unique_ptr<unsigned char[]> m_bytes;
  size_t m_filled = 0;
  std::unordered_map<const TMenuSwitchItem*, int32_t> m_switches;
};

// Reads elements in their usual forms from memory. Objects of this class are local variables, so
// that the position stays in a register: each element begins where the previous one ends.
class ShortForms {
 public:
  // The number of bytes that GetString may read: those of the longest string with a one-byte
  // length.
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
  // How far the reader may read ahead. A system is read in large pieces; after a single object the
  // archive's position must be the end of the object.
  enum class Ahead { kNothing, kMuch };
  CompiledReader(CArchive& ar, TMenuSystem* system, Ahead ahead);
  // Sets the file's position back to the end of what was used.
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
  // The next bytes when at least that many are buffered, else null. Advance consumes them.
  const unsigned char* Buffered(size_t bytes) const {
    return static_cast<size_t>(m_end - m_at) >= bytes ? m_at : nullptr;
  }
  void Advance(const unsigned char* to) { m_at = to; }

  // The number of elements to reserve memory for, when the file claims `claimed` elements of at
  // least `smallest` bytes each. The sum over a file is no more than the file can contain.
  int Grant(uint32_t claimed, int smallest);

 private:
  // The next `count` bytes; valid until the next call.
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
  size_t m_window;    // bytes read at once; 0: no more than requested
  uint64_t m_left;    // of the file after m_end; never less than what it still has
  uint64_t m_grants;  // bytes of the file for which nothing was reserved
  std::unique_ptr<unsigned char[]> m_bytes;
  size_t m_room = 0;
  const unsigned char* m_at = nullptr;
  const unsigned char* m_end = nullptr;
};
