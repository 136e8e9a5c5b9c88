#include "menu/compiled_io.h"

#include <algorithm>
#include <bit>

#include "menu/menu_system.h"

namespace {

// [FF FE FF for wide text] length, text. A length that does not fit its width is all ones, and the
// next wider form follows.
constexpr uint8_t kMedium = 0xFF;
constexpr uint16_t kWideMark = 0xFFFE;
constexpr uint16_t kLarge = 0xFFFF;
constexpr uint32_t kInlineUnits = 256;  // most texts are shorter

template <class Number>
void LayDown(unsigned char* bytes, Number value) {
  for (size_t i = 0; i < sizeof value; ++i) bytes[i] = static_cast<unsigned char>(value >> 8 * i);
}

uint16_t UnitAt(const unsigned char* bytes, uint32_t i) {
  return static_cast<uint16_t>(bytes[2 * i] | bytes[2 * i + 1] << 8);
}

void Widen(const unsigned char* bytes, uint32_t length, wchar_t* out) {
  for (uint32_t i = 0; i < length; ++i) out[i] = static_cast<wchar_t>(UnitAt(bytes, i));
}

}  // namespace

CompiledWriter::CompiledWriter(CArchive& ar, TMenuSystem* system) : m_ar(ar) {
  if (!system) return;
  for (int i = 0; i < system->m_switches.Length(); ++i)
    m_switches.emplace(system->m_switches.At(i), i);
}

template <class Number>
void CompiledWriter::PutNumber(Number value) {
  unsigned char bytes[sizeof value];
  LayDown(bytes, value);
  m_ar.Write(bytes, sizeof bytes);
}

template void CompiledWriter::PutNumber(uint16_t);
template void CompiledWriter::PutNumber(uint32_t);

void CompiledWriter::PutU16(uint16_t value) { PutNumber(value); }
void CompiledWriter::PutU32(uint32_t value) { PutNumber(value); }
void CompiledWriter::PutReal(double value) { PutNumber(std::bit_cast<uint64_t>(value)); }

void CompiledWriter::PutString(const wchar_t* text, int length) {
  unsigned char head[10] = {kMedium, kWideMark & 0xFF, kWideMark >> 8};
  const auto units = static_cast<uint32_t>(length);
  UINT size = 4;
  if (units < kMedium) {
    head[3] = static_cast<unsigned char>(units);
  } else if (units < kWideMark) {
    head[3] = kMedium;
    LayDown(head + 4, static_cast<uint16_t>(units));
    size = 6;
  } else {
    head[3] = kMedium;
    LayDown(head + 4, kLarge);
    LayDown(head + 6, units);
    size = 10;
  }
  m_ar.Write(head, size);
  PutUnits(text, units);
}

void CompiledWriter::PutUnits(const wchar_t* text, size_t length) {
  unsigned char bytes[2 * kInlineUnits];
  while (length) {
    const size_t part = std::min<size_t>(length, kInlineUnits);
    for (size_t i = 0; i < part; ++i) LayDown(bytes + 2 * i, static_cast<uint16_t>(text[i]));
    m_ar.Write(bytes, static_cast<UINT>(2 * part));
    text += part;
    length -= part;
  }
}

void CompiledWriter::PutSwitch(const TMenuSwitchItem* item) {
  const auto found = item ? m_switches.find(item) : m_switches.end();
  PutI32(found == m_switches.end() ? -1 : found->second);
}

CompiledReader::CompiledReader(CArchive& ar, TMenuSystem* system)
    : m_ar(ar), m_system(system), m_left(ar.GetFile()->GetLength()) {}

void CompiledReader::Get(void* bytes, uint32_t count) {
  m_ar.EnsureRead(bytes, count);
  m_left -= std::min<uint64_t>(m_left, count);
}

template <class Number>
Number CompiledReader::GetNumber() {
  unsigned char bytes[sizeof(Number)];
  Get(bytes, sizeof bytes);
  Number value = 0;
  for (size_t i = 0; i < sizeof bytes; ++i)
    value = static_cast<Number>(value | static_cast<Number>(bytes[i]) << 8 * i);
  return value;
}

uint8_t CompiledReader::GetU8() { return GetNumber<uint8_t>(); }
uint16_t CompiledReader::GetU16() { return GetNumber<uint16_t>(); }
uint32_t CompiledReader::GetU32() { return GetNumber<uint32_t>(); }
double CompiledReader::GetReal() { return std::bit_cast<double>(GetNumber<uint64_t>()); }

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

void CompiledReader::GetString(TWCString& out) {
  bool wide;
  const uint32_t length = GetLength(wide);
  wide ? GetWide(out, length) : GetNarrow(out, length);
}

void CompiledReader::Require(uint64_t bytes) const {
  if (bytes > m_left) AfxThrowArchiveException(CArchiveException::endOfFile, m_ar.m_strFileName);
}

void CompiledReader::GetWide(TWCString& out, uint32_t length) {
  if (length <= kInlineUnits) {
    unsigned char bytes[2 * kInlineUnits];
    wchar_t units[kInlineUnits];
    Get(bytes, 2 * length);
    Widen(bytes, length, units);
    out.Assign(units, static_cast<int>(length));
    return;
  }
  Require(2 * uint64_t{length});
  m_bytes.resize(2 * size_t{length});
  Get(m_bytes.data(), static_cast<uint32_t>(m_bytes.size()));
  m_units.resize(length);
  Widen(m_bytes.data(), length, m_units.data());
  out.Assign(m_units.data(), static_cast<int>(length));
}

// One byte a character of the ANSI code page; files of older writers have such strings.
void CompiledReader::GetNarrow(TWCString& out, uint32_t length) {
  Require(length);
  m_bytes.resize(length);
  Get(m_bytes.data(), length);
  out = TUString(reinterpret_cast<const char*>(m_bytes.data()), static_cast<int>(length));
}

TMenuSwitchItem* CompiledReader::GetSwitch() {
  const int32_t index = GetI32();
  if (index < 0) return nullptr;
  if (!m_system || index >= m_system->m_switches.Length())
    AfxThrowArchiveException(CArchiveException::badIndex, m_ar.m_strFileName);
  return m_system->m_switches.At(index);
}

int CompiledReader::Plausible(uint32_t claimed, int smallest) const {
  return static_cast<int>(std::min<uint64_t>(
      {claimed, m_left / static_cast<uint64_t>(smallest), static_cast<uint64_t>(INT32_MAX)}));
}
