// The elements of a compiled menu file over a CArchive: little-endian integers, strings, counts.
// The reader takes every size for a claim until the bytes have come: room is made for no more than
// what the file can still hold. Both end by the archive's exceptions.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "afx.h"
#include "kernel/twcstring.h"

class TMenuSystem;
class TMenuSwitchItem;

class CompiledWriter {
 public:
  // Switches are written as indexes into the system's table; without a system they are lost.
  CompiledWriter(CArchive& ar, TMenuSystem* system);

  void PutU16(uint16_t value);
  void PutU32(uint32_t value);
  void PutI32(int32_t value) { PutU32(static_cast<uint32_t>(value)); }
  void PutReal(double value);
  void PutString(const TWCString& text) { PutString(text.c_str(), text.Length()); }
  void PutString(const wchar_t* text, int length);
  void PutSwitch(const TMenuSwitchItem* item);

 private:
  template <class Number>
  void PutNumber(Number value);
  void PutUnits(const wchar_t* text, size_t length);

  CArchive& m_ar;
  std::unordered_map<const TMenuSwitchItem*, int32_t> m_switches;
};

class CompiledReader {
 public:
  CompiledReader(CArchive& ar, TMenuSystem* system);

  uint8_t GetU8();
  uint16_t GetU16();
  uint32_t GetU32();
  int32_t GetI32() { return static_cast<int32_t>(GetU32()); }
  double GetReal();
  void GetString(TWCString& out);
  TMenuSwitchItem* GetSwitch();

  // How many of `claimed` elements of at least `smallest` bytes the rest of the file can hold.
  int Plausible(uint32_t claimed, int smallest) const;

  TMenuSystem* System() const { return m_system; }

 private:
  template <class Number>
  Number GetNumber();
  void Get(void* bytes, uint32_t count);
  uint32_t GetLength(bool& wide);
  void GetWide(TWCString& out, uint32_t length);
  void GetNarrow(TWCString& out, uint32_t length);
  void Require(uint64_t bytes) const;

  CArchive& m_ar;
  TMenuSystem* m_system;
  uint64_t m_left;  // never less than what the file still has
  std::vector<unsigned char> m_bytes;
  std::vector<wchar_t> m_units;
};
