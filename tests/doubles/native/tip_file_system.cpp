// The tip file's questions to the system on a machine without windows: code page 936.
#include "dialogs/tip_file_system.h"

#include <sys/stat.h>

#include <ctime>

namespace qvx {

bool IsLeadByte(int byte) { return byte >= 0x81 && byte <= 0xFE; }

std::string LastChangeOf(std::FILE* file) {
  struct stat about;
  char buffer[32];
  if (::fstat(::fileno(file), &about) != 0) return {};
  const char* text = ::ctime_r(&about.st_mtime, buffer);
  return text ? text : "";
}

}  // namespace qvx
