#include "tools/qmn/check/gap_rules.h"

#include <algorithm>

namespace {

struct Run {
  size_t begin, end;
};

size_t BehindComment(const std::string& bytes, size_t at, size_t end) {
  const bool isBlock = bytes[at + 1] == '*';
  const size_t close = bytes.find(isBlock ? "*/" : "\n", at + 2);
  return close >= end ? end : close + (isBlock ? 2 : 1);
}

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }

// The first run of stray bytes at or after `at`; empty when the gap has none.
Run NextRun(const std::string& bytes, size_t at, size_t end) {
  Run run{end, end};
  while (at < end) {
    const bool isComment =
        bytes[at] == '/' && at + 1 < end && (bytes[at + 1] == '/' || bytes[at + 1] == '*');
    if (!isComment && !IsBlank(bytes[at])) {
      if (run.begin == end) run.begin = at;
      run.end = ++at;
      continue;
    }
    if (run.begin != end) return run;
    at = isComment ? BehindComment(bytes, at, end) : at + 1;
  }
  return run;
}

// The ASCII sign for a full-width one: both look the same in many fonts.
const char* AsciiOfWide(unsigned code) {
  switch (code) {
    case 0xFF0C:
      return ",";
    case 0xFF1D:
      return "=";
    case 0x201C:
    case 0x201D:
    case 0xFF02:
      return "\"";
    case 0xFF0A:
      return "*";
    case 0xFF3B:
    case 0x3010:
      return "[";
    default:
      return nullptr;
  }
}

void ReportStray(const GapContext& context, Run run) {
  const std::string shown = context.source.Shown(run.begin, run.end);
  const unsigned code = context.source.Decoder().Next(context.bytes, run.begin).code;
  const char* ascii = AsciiOfWide(code);
  context.findings.Add(Rule::kStrayBytes, run.begin, run.end,
                       ascii ? "'{0}' means nothing here and is skipped; did you mean '{1}'?"_say(
                                   shown, std::string(ascii))
                             : "'{0}' means nothing here and is skipped"_say(shown));
}

bool IsMinusBefore(const GapContext& context, Run run, const LintToken& next) {
  if (run.end - run.begin != 1 || context.bytes[run.begin] != '-') return false;
  if (next.kind != QMN_ICON && next.kind != QMN_FCON) return false;
  return std::all_of(context.bytes.begin() + static_cast<std::ptrdiff_t>(run.end),
                     context.bytes.begin() + static_cast<std::ptrdiff_t>(next.begin), IsBlank);
}

}  // namespace

void CheckGap(const GapContext& context, size_t begin, const LintToken& next) {
  if (begin == 0 && context.bytes.starts_with("\xEF\xBB\xBF")) begin = 3;  // CheckEncoding
  for (;;) {
    const Run run = NextRun(context.bytes, begin, next.begin);
    if (run.begin == run.end) return;
    if (IsMinusBefore(context, run, next))
      context.findings.Add(Rule::kMinus, run.begin, next.end,
                           "the minus is skipped; the number is read as {0}"_say(
                               context.source.Shown(next.begin, next.end)));
    else
      ReportStray(context, run);
    begin = run.end;
  }
}

void CheckBehindZero(const GapContext& context, size_t zero) {
  const std::string& bytes = context.bytes;
  size_t rest = zero + 1;
  while (rest < bytes.size() && (IsBlank(bytes[rest]) || bytes[rest] == 0)) ++rest;
  if (rest == bytes.size()) return;
  context.findings.Add(Rule::kZeroByte, zero, zero + 1,
                       "the file ends at this byte 0; the {0} bytes behind it are not read"_say(
                           bytes.size() - zero - 1));
}
