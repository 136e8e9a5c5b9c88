// Saving a drawing as a file; see drawing_file.h.
#include <system_error>

#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/dxf/file_replace.h"

namespace devhost {

namespace {

FileProblem Replace(const std::wstring& path, const std::string& text) {
  try {
    return ReplaceFileContents(path, text);
  } catch (const std::system_error&) {  // the name cannot be converted for the system
    return FileProblem::BadName;
  }
}

}  // namespace

bool WriteDrawing(const std::wstring& path, const AcDbDatabase& database, std::wstring* why) {
  const FileProblem problem = Replace(path, DrawingText(database));
  if (problem == FileProblem::None) {
    database.body().modified = 0;
    return true;
  }
  if (why) *why = path + L": " + ProblemText(problem);
  return false;
}

}  // namespace devhost
