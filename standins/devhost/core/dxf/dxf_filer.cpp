// Groups of one object; see the header.
#include "devhost/core/dxf/dxf_filer.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

#include "adslib.h"
#include "dbmain.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/drawing/dxf_groups.h"

namespace devhost {
namespace {

constexpr std::wstring_view kMeantAfterCaret = L" JIM";

bool IsHigh(wchar_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool IsLow(wchar_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

void AppendUnitCode(std::wstring& text, wchar_t unit) {
  constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
  text += L"\\U+";
  for (int shift = 12; shift >= 0; shift -= 4) text += kDigits[(unit >> shift) & 15];
}

// Whether a reader would take the backslash at `at` for the start of a code.
bool BeginsCode(const std::wstring& value, std::size_t at) {
  return value.size() - at > 2 && (value[at + 1] == L'U' || value[at + 1] == L'M') &&
         value[at + 2] == L'+';
}

// Control characters are written with a caret: a line end would end the value. Half a surrogate
// pair, which UTF-8 does not have, and a backslash that is no code are written as \U+XXXX.
std::string OneLine(const std::wstring& value) {
  std::wstring text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    const wchar_t c = value[i], next = i + 1 < value.size() ? value[i + 1] : L'\0';
    if (c == L'\n')
      text += L"^J";
    else if (c == L'\r')
      text += L"^M";
    else if (c == L'\t')
      text += L"^I";
    else if (c == L'^' && next && kMeantAfterCaret.find(next) != std::wstring_view::npos)
      text += L"^ ";
    else if (c == L'\\' && BeginsCode(value, i))
      AppendUnitCode(text, c);
    else if (IsHigh(c) && IsLow(next))
      text.append(value, i++, 2);
    else if (IsHigh(c) || IsLow(c))
      AppendUnitCode(text, c);
    else if (c != 0)
      text += c;
  }
  return Utf8(text);
}

void AppendLines(std::string& out, short code, std::string_view value) {
  char digits[8];
  char* end = std::to_chars(digits, digits + sizeof digits, static_cast<int>(code)).ptr;
  out.append(digits, static_cast<std::size_t>(end - digits));
  out += '\n';
  out += value;
  out += '\n';
}

// Text that decoding and encoding does not change.
bool IsPlain(std::string_view value) {
  return std::all_of(value.begin(), value.end(),
                     [](char c) { return c >= ' ' && c <= '~' && c != '\\' && c != '^'; });
}

}  // namespace

double DxfInFiler::RealOf(const DxfGroup& group) {
  const std::optional<double> value = DxfReal(group.value);
  if (!value && m_badLine == 0) m_badLine = group.line + 1;
  return value.value_or(0);
}

long long DxfInFiler::IntegerOf(const DxfGroup& group) {
  const std::optional<long long> value = DxfInteger(group.value);
  if (!value && m_badLine == 0) m_badLine = group.line + 1;
  return value.value_or(0);
}

void DxfInFiler::ReadPoint(const DxfGroup& first, resbuf* item) {
  item->resval.rpoint[0] = RealOf(first);
  item->resval.rpoint[1] = item->resval.rpoint[2] = 0;
  for (int axis = 1; axis < 3; ++axis) {
    if (m_at >= m_groups.size() || m_groups[m_at].code != first.code + axis * 10) return;
    item->resval.rpoint[axis] = RealOf(m_groups[m_at++]);
  }
}

Acad::ErrorStatus DxfInFiler::readItem(resbuf* item) {
  if (!item) return Acad::eInvalidInput;
  m_before = m_at;
  while (m_at < m_groups.size()) {
    const DxfGroup& group = m_groups[m_at++];
    *item = resbuf{};
    item->restype = group.code;
    switch (KindOfGroup(group.code)) {
      case GroupKind::None:
        continue;
      case GroupKind::String:
        m_text = m_decoder.Text(group.value);
        item->resval.rstring = m_text.data();
        break;
      case GroupKind::Point:
        ReadPoint(group, item);
        break;
      case GroupKind::Real:
        item->resval.rreal = RealOf(group);
        break;
      case GroupKind::Short:
        item->resval.rint = static_cast<short>(IntegerOf(group));
        break;
      case GroupKind::Long:
        item->resval.rlong = static_cast<Adesk::Int32>(IntegerOf(group));
        break;
    }
    return Acad::eOk;
  }
  return Acad::eEndOfFile;
}

void DxfOutFiler::Group(short code, std::string_view value) { AppendLines(m_out, code, value); }

void AppendGroup(std::string& out, const DxfGroup& group, const DxfDecoder& decoder) {
  if (IsPlain(group.value))
    AppendLines(out, group.code, group.value);
  else
    AppendLines(out, group.code, OneLine(decoder.Text(group.value)));
}

Acad::ErrorStatus DxfOutFiler::writeString(short code, const ACHAR* value) {
  if (!value) return Acad::eInvalidInput;
  Group(code, OneLine(value));
  return Acad::eOk;
}

Acad::ErrorStatus DxfOutFiler::writeDouble(short code, double value) {
  char digits[40];
  const double finite = std::isfinite(value) ? value : 0;
  char* end = std::to_chars(digits, digits + sizeof digits, finite).ptr;
  std::string text(digits, static_cast<std::size_t>(end - digits));
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  Group(code, text);
  return Acad::eOk;
}

Acad::ErrorStatus DxfOutFiler::writeInt(short code, int value) {
  Group(code, std::to_string(value));
  return Acad::eOk;
}

Acad::ErrorStatus DxfOutFiler::writePoint(short code, const AcGePoint3d& value) {
  writeDouble(code, value.x);
  writeDouble(static_cast<short>(code + 10), value.y);
  return writeDouble(static_cast<short>(code + 20), value.z);
}

void DxfOutFiler::WriteHandle(short code, unsigned long long handle) {
  ACHAR text[17];
  AcDbHandle(handle).getIntoAsciiBuffer(text);
  Group(code, Utf8(text));
}

std::vector<resbuf*> XDataChains(std::span<const DxfGroup> groups, const DxfDecoder& decoder) {
  std::vector<resbuf*> chains;
  resbuf** tail = nullptr;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const DxfGroup& group = groups[i];
    if (group.code == 1001) {
      chains.push_back(nullptr);
      tail = &chains.back();
    }
    const GroupKind kind = KindOfGroup(group.code);
    // Groups below 1000 are not extended data.
    if (!tail || kind == GroupKind::None || group.code < 1000) continue;
    resbuf* node = acutNewRb(group.code);
    if (!node) continue;
    switch (kind) {
      case GroupKind::String:
        acutNewString(decoder.Text(group.value).c_str(), node->resval.rstring);
        break;
      case GroupKind::Point:
        node->resval.rpoint[0] = DxfReal(group.value).value_or(0);
        for (int axis = 1; axis < 3 && i + 1 < groups.size(); ++axis)
          if (groups[i + 1].code == group.code + axis * 10)
            node->resval.rpoint[axis] = DxfReal(groups[++i].value).value_or(0);
        break;
      case GroupKind::Real:
        node->resval.rreal = DxfReal(group.value).value_or(0);
        break;
      case GroupKind::Short:
        node->resval.rint = static_cast<short>(DxfInteger(group.value).value_or(0));
        break;
      default:
        node->resval.rlong = static_cast<Adesk::Int32>(DxfInteger(group.value).value_or(0));
        break;
    }
    *tail = node;
    tail = &node->rbnext;
  }
  return chains;
}

void WriteXData(DxfOutFiler& filer, const resbuf* chain) {
  for (; chain; chain = chain->rbnext) {
    const short code = chain->restype;
    const double* p = chain->resval.rpoint;
    switch (KindOfGroup(code)) {
      case GroupKind::String:
        filer.writeString(code, chain->resval.rstring);
        break;
      case GroupKind::Point:
        filer.writePoint(code, {p[0], p[1], p[2]});
        break;
      case GroupKind::Real:
        filer.writeDouble(code, chain->resval.rreal);
        break;
      case GroupKind::Short:
        filer.writeInt(code, chain->resval.rint);
        break;
      case GroupKind::Long:
        filer.writeInt(code, chain->resval.rlong);
        break;
      case GroupKind::None:
        break;
    }
  }
}

}  // namespace devhost
