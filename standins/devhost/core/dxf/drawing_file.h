// Reading and writing drawings in the text form of the exchange format, releases R12 to 2018.
// Unknown classes become opaque entities with all their groups. Damage is reported with file and
// line; everything readable is kept.
#pragma once

#include <string>
#include <string_view>

class AcDbDatabase;

namespace devhost {

struct DrawingReport {
  bool readAnything = false;
  std::wstring message;  // empty if the file is intact
};

DrawingReport ReadDrawing(const std::wstring& path, AcDbDatabase& database);
DrawingReport ReadDrawingText(std::string_view bytes, const std::wstring& shownName,
                              AcDbDatabase& database);
std::string DrawingText(const AcDbDatabase& database);
bool WriteDrawing(const std::wstring& path, const AcDbDatabase& database, std::wstring* why);

}  // namespace devhost
