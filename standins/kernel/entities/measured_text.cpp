#include "kernel/entities/measured_text.h"

std::wstring OwnTextOf(const std::wstring& typed, const std::wstring& measured) {
  const bool restores = !typed.empty() && typed.back() == L'<';
  return restores || typed == measured ? std::wstring() : typed;
}
