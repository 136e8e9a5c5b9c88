// Reading and writing drawings in the text form of the exchange format, releases R12 to 2018. What
// a class does not understand is kept as an opaque entity with its groups. Damage is told with file
// and line; what was readable until there stays.
#pragma once

#include <string>
#include <string_view>

class AcDbDatabase;

namespace devhost {

struct DrawingReport {
  bool readAnything = false;
  std::wstring message;  // empty when nothing was wrong
};

DrawingReport ReadDrawing(const std::wstring& path, AcDbDatabase& database);
DrawingReport ReadDrawingText(std::string_view bytes, const std::wstring& shownName,
                              AcDbDatabase& database);
std::string DrawingText(const AcDbDatabase& database);
bool WriteDrawing(const std::wstring& path, const AcDbDatabase& database, std::wstring* why);

}  // namespace devhost
