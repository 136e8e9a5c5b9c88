// See tip_file_system.h.
#include "dialogs/tip_file_system.h"

#include <ctime>

#include "afxwin.h"
// after the class library
#include <io.h>
#include <sys/stat.h>

namespace qvx {

bool IsLeadByte(int byte) { return ::IsDBCSLeadByte(static_cast<BYTE>(byte)) != 0; }

std::string LastChangeOf(std::FILE* file) {
  struct _stat64i32 about;
  if (::_fstat64i32(::_fileno(file), &about) != 0) return {};
  const char* text = ::_ctime64(&about.st_mtime);
  return text ? text : "";
}

}  // namespace qvx
