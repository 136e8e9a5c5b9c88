#include "menu/compiled_io.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "menu/menu_system.h"

namespace {

// A string is [FF FE FF for wide text] length, text. A length field of all ones is followed by a
// wider length field.
constexpr uint8_t kMedium = 0xFF;
constexpr uint16_t kWideMark = 0xFFFE;
constexpr uint16_t kLarge = 0xFFFF;
constexpr uint32_t kShortHead =
    0xFFFEFF;  // the marker as a number; the length is the next higher byte

constexpr size_t kWindow = 65536;  // fits the first caches

// Pieces have a fixed length, so that they become vector code. The last piece may overlap the
// previous one, so that only the shortest texts need a loop.
template <size_t kUnits>
void NarrowPiece(const wchar_t* text, unsigned char* bytes) {
  uint16_t units[kUnits];
  for (size_t i = 0; i < kUnits; ++i) units[i] = static_cast<uint16_t>(text[i]);
  std::memcpy(bytes, units, sizeof units);
}

template <size_t kUnits>
void WidenPiece(const unsigned char* bytes, wchar_t* out) {
  uint16_t units[kUnits];
  std::memcpy(units, bytes, sizeof units);
  for (size_t i = 0; i < kUnits; ++i) out[i] = static_cast<wchar_t>(units[i]);
}

template <size_t kUnits, class Piece>
void InPieces(size_t length, Piece piece) {
  for (size_t at = 0; at + kUnits < length; at += kUnits) piece(at);
  piece(length - kUnits);
}

void Narrow(const wchar_t* text, size_t length, unsigned char* bytes) {
  if (length >= 8) {
    InPieces<8>(length, [=](size_t at) { NarrowPiece<8>(text + at, bytes + 2 * at); });
  } else if (length >= 4) {
    InPieces<4>(length, [=](size_t at) { NarrowPiece<4>(text + at, bytes + 2 * at); });
  } else {
    for (size_t at = 0; at < length; ++at) NarrowPiece<1>(text + at, bytes + 2 * at);
  }
}

void Widen(const unsigned char* bytes, size_t length, wchar_t* out) {
  if (length >= 8) {
    InPieces<8>(length, [=](size_t at) { WidenPiece<8>(bytes + 2 * at, out + at); });
  } else {
    for (size_t at = 0; at < length; ++at) WidenPiece<1>(bytes + 2 * at, out + at);
  }
}

// Works in whole pieces and reads and writes up to 15 units beyond the text: for the usual lengths
// no branch depends on the length.
void WidenShort(const unsigned char* bytes, size_t length, wchar_t* out) {
  for (size_t at = 0; at < length; at += 16) {
    WidenPiece<8>(bytes + 2 * at, out + at);
    WidenPiece<8>(bytes + 2 * at + 16, out + at + 8);
  }
}

}  // namespace

void ShortForms::Assign(TWCString& out, const unsigned char* text, size_t length) {
  wchar_t units[256];
  WidenShort(text, length, units);
  out.Assign(units, static_cast<int>(length));
}

CompiledWriter::CompiledWriter(CArchive& ar, TMenuSystem* system)
    : m_ar(ar), m_bytes(std::make_unique_for_overwrite<unsigned char[]>(kPiece)) {
  if (!system) return;
  for (int i = 0; i < system->m_switches.Length(); ++i)
    m_switches.emplace(system->m_switches.At(i), i);
}

void CompiledWriter::Finish() {
  if (m_filled) m_ar.Write(m_bytes.get(), static_cast<UINT>(m_filled));
  m_filled = 0;
}

void CompiledWriter::PutReal(double value) {
  Store(Room(sizeof value), std::bit_cast<uint64_t>(value));
}

void CompiledWriter::PutString(const wchar_t* text, int length) {
  const auto units = static_cast<uint32_t>(length);
  if (units >= kMedium) return PutLongString(text, units);
  unsigned char* room = Room(4 + 2 * size_t{units});
  Store(room, kShortHead | units << 24);
  Narrow(text, units, room + 4);
}

void CompiledWriter::PutLongString(const wchar_t* text, uint32_t length) {
  PutU32(kShortHead | uint32_t{kMedium} << 24);
  if (length < kWideMark) {
    PutU16(static_cast<uint16_t>(length));
  } else {
    PutU16(kLarge);
    PutU32(length);
  }
  for (size_t part; length; length -= static_cast<uint32_t>(part), text += part) {
    part = std::min<size_t>(length, kPiece / 4);
    Narrow(text, part, Room(2 * part));
  }
}

void CompiledWriter::PutSwitch(const TMenuSwitchItem* item) {
  const auto found = item ? m_switches.find(item) : m_switches.end();
  PutI32(found == m_switches.end() ? -1 : found->second);
}

CompiledReader::CompiledReader(CArchive& ar, TMenuSystem* system, Ahead ahead)
    : m_ar(ar),
      m_system(system),
      m_window(ahead == Ahead::kMuch ? kWindow : 0),
      m_left(ar.GetFile()->GetLength()),
      m_grants(m_left) {
  if (!m_window) return;
  m_ar.Flush();
  m_left -= std::min<uint64_t>(m_left, ar.GetFile()->GetPosition());
}

void CompiledReader::Finish() {
  if (m_end == m_at) return;
  m_ar.Flush();
  m_ar.GetFile()->Seek(m_at - m_end, CFile::current);
  m_end = m_at;
}

// Reads more of the file, so that at least `count` bytes are at m_at.
void CompiledReader::Fetch(size_t count) {
  const auto kept = static_cast<size_t>(m_end - m_at);
  if (count - kept > m_left)
    AfxThrowArchiveException(CArchiveException::endOfFile, m_ar.m_strFileName);
  const auto more = static_cast<UINT>(std::min<uint64_t>(std::max(count, m_window) - kept, m_left));
  if (kept + more > m_room) MakeRoom(kept + more);
  std::copy(m_at, m_end, m_bytes.get());
  m_at = m_end = m_bytes.get();
  ReadOn(m_bytes.get() + kept, more);
  m_end = m_at + kept + more;
  m_left -= more;
}

// Directly from the file when a system is read: nothing else then uses the archive.
void CompiledReader::ReadOn(unsigned char* bytes, UINT count) {
  if (!m_window) return static_cast<void>(m_ar.EnsureRead(bytes, count));
  if (m_ar.GetFile()->Read(bytes, count) != count)
    AfxThrowArchiveException(CArchiveException::endOfFile, m_ar.m_strFileName);
}

void CompiledReader::MakeRoom(size_t room) {
  auto bytes = std::make_unique_for_overwrite<unsigned char[]>(room);
  m_end = std::copy(m_at, m_end, bytes.get());
  m_bytes = std::move(bytes);
  m_at = m_bytes.get();
  m_room = room;
}

double CompiledReader::GetReal() { return ShortForms::Number<double>(Need(8)); }

uint32_t CompiledReader::GetLength(bool& wide) {
  wide = false;
  uint8_t small = GetU8();
  if (small != kMedium) return small;
  uint16_t medium = GetU16();
  if (medium == kWideMark) {
    wide = true;
    small = GetU8();
    if (small != kMedium) return small;
    medium = GetU16();
  }
  return medium == kLarge ? GetU32() : medium;
}

// Without the marker the text is in the ANSI code page. Older writers made such strings.
void CompiledReader::GetAnyString(TWCString& out) {
  bool wide;
  const uint32_t length = GetLength(wide);
  if (length == 0) return out.Empty();
  const unsigned char* text = Need(wide ? 2 * size_t{length} : length);
  if (!wide) {
    const CStringW decoded(reinterpret_cast<const char*>(text), static_cast<int>(length));
    return out.Assign(decoded, decoded.GetLength());
  }
  const auto units = std::make_unique_for_overwrite<wchar_t[]>(length);
  Widen(text, length, units.get());
  out.Assign(units.get(), static_cast<int>(length));
}

TMenuSwitchItem* CompiledReader::GetSwitch() {
  const int32_t index = GetI32();
  if (index < 0) return nullptr;
  if (!m_system || index >= m_system->m_switches.Length())
    AfxThrowArchiveException(CArchiveException::badIndex, m_ar.m_strFileName);
  return m_system->m_switches.At(index);
}

int CompiledReader::Grant(uint32_t claimed, int smallest) {
  const auto bytes = static_cast<uint64_t>(smallest);
  const auto granted = std::min<uint64_t>({claimed, m_grants / bytes, uint64_t{INT32_MAX}});
  m_grants -= granted * bytes;
  return static_cast<int>(granted);
}
