// Group codes of drawing files and the kind of value that follows each, as the
// format publishes them.
#pragma once

namespace devhost {

enum class GroupKind { None, String, Point, Real, Short, Long };

constexpr GroupKind KindOfGroup(int code) {
  if (code < 0) return GroupKind::None;
  if (code <= 9) return GroupKind::String;
  if (code <= 18) return GroupKind::Point;
  if (code <= 59) return GroupKind::Real;
  if (code <= 79) return GroupKind::Short;
  if (code <= 99) return GroupKind::Long;
  if (code <= 109) return GroupKind::String;
  if (code <= 149) return code <= 119 ? GroupKind::Point : GroupKind::Real;
  if (code >= 160 && code <= 169) return GroupKind::Long;
  if (code >= 170 && code <= 179) return GroupKind::Short;
  if (code >= 210 && code <= 219) return GroupKind::Point;
  if (code >= 220 && code <= 239) return GroupKind::Real;
  if (code >= 270 && code <= 299) return GroupKind::Short;
  if (code >= 300 && code <= 369) return GroupKind::String;
  if (code >= 370 && code <= 389) return GroupKind::Short;
  if (code >= 390 && code <= 399) return GroupKind::String;
  if (code >= 400 && code <= 409) return GroupKind::Short;
  if (code >= 410 && code <= 419) return GroupKind::String;
  if (code >= 420 && code <= 429) return GroupKind::Long;
  if (code >= 430 && code <= 439) return GroupKind::String;
  if (code >= 440 && code <= 459) return GroupKind::Long;
  if (code >= 460 && code <= 469) return GroupKind::Real;
  if (code >= 470 && code <= 481) return GroupKind::String;
  if (code >= 999 && code <= 1009) return GroupKind::String;
  if (code >= 1010 && code <= 1013) return GroupKind::Point;
  if (code >= 1014 && code <= 1059) return GroupKind::Real;
  if (code >= 1060 && code <= 1070) return GroupKind::Short;
  if (code == 1071) return GroupKind::Long;
  return GroupKind::None;
}

}  // namespace devhost
