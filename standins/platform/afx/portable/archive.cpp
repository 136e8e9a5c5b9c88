// CArchive. Numbers are stored byte by byte, little-endian, so files do not depend on a build's
// byte order or widths. Blocks larger than the buffer bypass it. While loading, a string's length
// is checked against the bytes left in the file before memory is allocated.
#include "afx.h"

#include <algorithm>
#include <bit>
#include <type_traits>

namespace {

// The forms of a string: [FF FE FF if wide] length text. The length has one of three widths; all
// ones mean that the next wider one follows.
constexpr BYTE kLongMark = 0xFF;
constexpr WORD kWideMark = 0xFFFE;
constexpr WORD kLongerMark = 0xFFFF;
constexpr std::size_t kSmallestBuffer = 128;

template <std::size_t Size>
struct BitsOf;
template <>
struct BitsOf<1> {
  using Type = std::uint8_t;
};
template <>
struct BitsOf<2> {
  using Type = std::uint16_t;
};
template <>
struct BitsOf<4> {
  using Type = std::uint32_t;
};
template <>
struct BitsOf<8> {
  using Type = std::uint64_t;
};

}  // namespace

CArchive::CArchive(CFile* file, UINT mode, int bufferSize, void*)
    : m_strFileName(file->GetFilePath()),
      m_pFile(file),
      m_nMode(mode),
      m_size(std::max(kSmallestBuffer, static_cast<std::size_t>(std::max(bufferSize, 0)))),
      m_buffer(std::make_unique_for_overwrite<BYTE[]>(m_size)) {}

CArchive::~CArchive() {
  if (!m_pFile || (m_nMode & bNoFlushOnDelete)) return;
  try {
    Close();
  } catch (CException* exception) {
    exception->Delete();
  }
}

void CArchive::RequireStoring() const {
  if (!m_pFile || IsLoading()) AfxThrowArchiveException(CArchiveException::readOnly, m_strFileName);
}

void CArchive::RequireLoading() const {
  if (!m_pFile || IsStoring())
    AfxThrowArchiveException(CArchiveException::writeOnly, m_strFileName);
}

bool CArchive::Fill() {
  m_at = 0;
  m_end = 0;
  m_end = m_pFile->Read(m_buffer.get(), static_cast<UINT>(m_size));
  return m_end > 0;
}

UINT CArchive::Read(void* buffer, UINT count) {
  RequireLoading();
  UINT done = 0;
  while (done < count) {
    if (m_at == m_end && count - done >= m_size) {
      const UINT direct = m_pFile->Read(static_cast<BYTE*>(buffer) + done, count - done);
      done += direct;
      if (direct == 0) break;
      continue;
    }
    if (m_at == m_end && !Fill()) break;
    const std::size_t part = std::min<std::size_t>(count - done, m_end - m_at);
    std::copy_n(m_buffer.get() + m_at, part, static_cast<BYTE*>(buffer) + done);
    m_at += part;
    done += static_cast<UINT>(part);
  }
  return done;
}

void CArchive::EnsureRead(void* buffer, UINT count) {
  if (Read(buffer, count) != count)
    AfxThrowArchiveException(CArchiveException::endOfFile, m_strFileName);
}

ULONGLONG CArchive::BytesLeft() const {
  RequireLoading();
  const ULONGLONG length = m_pFile->GetLength();
  const ULONGLONG position = m_pFile->GetPosition();
  return (length > position ? length - position : 0) + (m_end - m_at);
}

// Data that fills the buffer more than once is written without a copy.
void CArchive::Write(const void* buffer, UINT count) {
  RequireStoring();
  const BYTE* from = static_cast<const BYTE*>(buffer);
  while (count) {
    if (m_at == m_size) Flush();
    const bool isDirect = m_at == 0 && count >= m_size;
    const std::size_t part =
        isDirect ? count - count % m_size : std::min<std::size_t>(count, m_size - m_at);
    if (isDirect) {
      m_pFile->Write(from, static_cast<UINT>(part));
    } else {
      std::copy_n(from, part, m_buffer.get() + m_at);
      m_at += part;
    }
    from += part;
    count -= static_cast<UINT>(part);
  }
}

// While loading: moves the file position back over what was read ahead.
void CArchive::Flush() {
  if (!m_pFile) return;
  if (IsLoading()) {
    if (m_at < m_end) m_pFile->Seek(-static_cast<LONGLONG>(m_end - m_at), CFile::current);
    m_at = m_end = 0;
    return;
  }
  const std::size_t filled = std::exchange(m_at, 0);
  if (filled) m_pFile->Write(m_buffer.get(), static_cast<UINT>(filled));
}

void CArchive::Close() {
  Flush();
  m_pFile = nullptr;
}

void CArchive::Abort() {
  m_at = m_end = 0;
  m_pFile = nullptr;
}

template <class Number>
CArchive& CArchive::Put(Number value) {
  const auto bits = std::bit_cast<typename BitsOf<sizeof(Number)>::Type>(value);
  BYTE bytes[sizeof(Number)];
  for (std::size_t i = 0; i < sizeof bytes; ++i) bytes[i] = static_cast<BYTE>(bits >> 8 * i);
  Write(bytes, sizeof bytes);
  return *this;
}

template <class Number>
CArchive& CArchive::Get(Number& value) {
  using Bits = typename BitsOf<sizeof(Number)>::Type;
  BYTE bytes[sizeof(Number)];
  EnsureRead(bytes, sizeof bytes);
  Bits bits = 0;
  for (std::size_t i = 0; i < sizeof bytes; ++i)
    bits = static_cast<Bits>(bits | static_cast<Bits>(bytes[i]) << 8 * i);
  value = std::bit_cast<Number>(bits);
  return *this;
}

CArchive& CArchive::operator<<(BYTE value) { return Put(value); }
CArchive& CArchive::operator<<(char value) { return Put(value); }
CArchive& CArchive::operator<<(bool value) { return Put(static_cast<BYTE>(value)); }
CArchive& CArchive::operator<<(short value) { return Put(value); }
CArchive& CArchive::operator<<(WORD value) { return Put(value); }
CArchive& CArchive::operator<<(wchar_t value) { return Put(static_cast<WORD>(value)); }
CArchive& CArchive::operator<<(int value) { return Put(value); }
CArchive& CArchive::operator<<(unsigned value) { return Put(value); }
CArchive& CArchive::operator<<(__int64 value) { return Put(value); }
CArchive& CArchive::operator<<(unsigned __int64 value) { return Put(value); }
CArchive& CArchive::operator<<(float value) { return Put(value); }
CArchive& CArchive::operator<<(double value) { return Put(value); }
CArchive& CArchive::operator>>(BYTE& value) { return Get(value); }
CArchive& CArchive::operator>>(char& value) { return Get(value); }
CArchive& CArchive::operator>>(short& value) { return Get(value); }
CArchive& CArchive::operator>>(WORD& value) { return Get(value); }
CArchive& CArchive::operator>>(int& value) { return Get(value); }
CArchive& CArchive::operator>>(unsigned& value) { return Get(value); }
CArchive& CArchive::operator>>(__int64& value) { return Get(value); }
CArchive& CArchive::operator>>(unsigned __int64& value) { return Get(value); }
CArchive& CArchive::operator>>(float& value) { return Get(value); }
CArchive& CArchive::operator>>(double& value) { return Get(value); }

CArchive& CArchive::operator>>(bool& value) {
  BYTE byte;
  Get(byte);
  value = byte != 0;
  return *this;
}

CArchive& CArchive::operator>>(wchar_t& value) {
  WORD unit;
  Get(unit);
  value = static_cast<wchar_t>(unit);
  return *this;
}

void CArchive::PutStringHead(bool wide, std::size_t length) {
  if (wide) *this << kLongMark << kWideMark;
  if (length < kLongMark) {
    *this << static_cast<BYTE>(length);
    return;
  }
  *this << kLongMark;
  if (length < kWideMark)
    *this << static_cast<WORD>(length);
  else
    *this << kLongerMark << static_cast<unsigned>(length);
}

// The length in characters.
ULONGLONG CArchive::GetStringHead(bool* wide) {
  *wide = false;
  BYTE small;
  WORD medium;
  unsigned large;
  *this >> small;
  if (small != kLongMark) return small;
  *this >> medium;
  if (medium == kWideMark) {
    *wide = true;
    *this >> small;
    if (small != kLongMark) return small;
    *this >> medium;
  }
  if (medium != kLongerMark) return medium;
  *this >> large;
  return large;
}

CArchive& CArchive::operator<<(const CStringW& text) {
  PutStringHead(true, static_cast<std::size_t>(text.GetLength()));
  for (int i = 0; i < text.GetLength(); ++i) *this << text.GetString()[i];
  return *this;
}

CArchive& CArchive::operator<<(const CStringA& text) {
  PutStringHead(false, static_cast<std::size_t>(text.GetLength()));
  Write(text.GetString(), static_cast<UINT>(text.GetLength()));
  return *this;
}

CArchive& CArchive::operator>>(CStringW& text) {
  bool wide;
  const ULONGLONG length = GetStringHead(&wide);
  const ULONGLONG bytes = length * (wide ? 2 : 1);
  if (bytes > BytesLeft() || bytes > INT32_MAX)
    AfxThrowArchiveException(CArchiveException::endOfFile, m_strFileName);
  std::string raw(static_cast<std::size_t>(bytes), '\0');
  EnsureRead(raw.data(), static_cast<UINT>(bytes));
  if (!wide) {
    text = CStringW(raw.data(), static_cast<int>(bytes));
    return *this;
  }
  const auto byte = [&raw](std::size_t i) { return static_cast<unsigned char>(raw[i]); };
  wchar_t* units = text.GetBufferSetLength(static_cast<int>(length));
  for (std::size_t i = 0; i < length; ++i)
    units[i] = static_cast<wchar_t>(byte(2 * i) | byte(2 * i + 1) << 8);
  return *this;
}

CArchive& CArchive::operator>>(CStringA& text) {
  bool wide;
  const ULONGLONG length = GetStringHead(&wide);
  const ULONGLONG bytes = length * (wide ? 2 : 1);
  if (bytes > BytesLeft() || bytes > INT32_MAX)
    AfxThrowArchiveException(CArchiveException::endOfFile, m_strFileName);
  std::string raw(static_cast<std::size_t>(bytes), '\0');
  EnsureRead(raw.data(), static_cast<UINT>(bytes));
  if (!wide) {
    text = CStringA(raw.data(), static_cast<int>(bytes));
    return *this;
  }
  std::wstring units;
  for (std::size_t i = 0; i + 1 < raw.size(); i += 2)
    units += static_cast<wchar_t>(static_cast<unsigned char>(raw[i]) |
                                  static_cast<unsigned char>(raw[i + 1]) << 8);
  text = CStringA(units.data(), static_cast<int>(units.size()));
  return *this;
}
