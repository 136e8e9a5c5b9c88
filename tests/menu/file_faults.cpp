#ifndef _WIN32
#include "tests/menu/file_faults.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

bool g_on = false;
long g_count = 0;
long g_at = 0;
int g_error = EIO;
file_faults::Fails g_fails = file_faults::Fails::kOnce;
char g_first[512];

// False when this operation is to fail; errno is set then.
bool MayPass(const char* operation, const char* path = nullptr) {
  if (!g_on) return true;
  ++g_count;
  const bool refuse =
      g_at && (g_fails == file_faults::Fails::kOnce ? g_count == g_at : g_count >= g_at);
  if (!refuse) return true;
  if (!g_first[0]) {
    const char* slash = path ? std::strrchr(path, '/') : nullptr;
    std::snprintf(g_first, sizeof g_first, "%s%s%s", operation, path ? " " : "",
                  slash  ? slash + 1
                  : path ? path
                         : "");
  }
  errno = g_error;
  return false;
}

template <class Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// stdio streams over a descriptor: the reads and writes of the library's own streams can't be
// replaced.
ssize_t StreamRead(void* cookie, char* bytes, std::size_t count) {
  return ::read(static_cast<int>(reinterpret_cast<std::intptr_t>(cookie)), bytes, count);
}
ssize_t StreamWrite(void* cookie, const char* bytes, std::size_t count) {
  const ssize_t put =
      ::write(static_cast<int>(reinterpret_cast<std::intptr_t>(cookie)), bytes, count);
  return put < 0 ? 0 : put;
}
int StreamSeek(void* cookie, off64_t* offset, int from) {
  *offset = ::lseek(static_cast<int>(reinterpret_cast<std::intptr_t>(cookie)), *offset, from);
  return *offset < 0 ? -1 : 0;
}
int StreamClose(void* cookie) {
  return ::close(static_cast<int>(reinterpret_cast<std::intptr_t>(cookie)));
}

int FlagsOf(const char* mode) {
  const bool plus = std::strchr(mode, '+');
  if (mode[0] == 'r') return plus ? O_RDWR : O_RDONLY;
  return (plus ? O_RDWR : O_WRONLY) | O_CREAT | (mode[0] == 'a' ? O_APPEND : O_TRUNC);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const int mode = flags & O_CREAT ? va_arg(arguments, int) : 0;
  va_end(arguments);
  if (!MayPass("open", path)) return -1;
  return Next<int(const char*, int, ...)>("open")(path, flags, mode);
}

ssize_t read(int file, void* bytes, std::size_t count) {
  return MayPass("read") ? Next<ssize_t(int, void*, std::size_t)>("read")(file, bytes, count) : -1;
}

ssize_t write(int file, const void* bytes, std::size_t count) {
  if (MayPass("write"))
    return Next<ssize_t(int, const void*, std::size_t)>("write")(file, bytes, count);
  return -1;
}

// Closes the descriptor also when it fails, as the system's close does.
int close(int file) {
  const bool pass = MayPass("close");
  const int result = Next<int(int)>("close")(file);
  if (pass) return result;
  errno = g_error;
  return -1;
}

off_t lseek(int file, off_t offset, int from) noexcept {
  return MayPass("lseek") ? Next<off_t(int, off_t, int)>("lseek")(file, offset, from) : -1;
}

int fstat(int file, struct stat* status) noexcept {
  return MayPass("fstat") ? Next<int(int, struct stat*)>("fstat")(file, status) : -1;
}

int stat(const char* path, struct stat* status) noexcept {
  return MayPass("stat", path) ? Next<int(const char*, struct stat*)>("stat")(path, status) : -1;
}

int fsync(int file) { return MayPass("fsync") ? Next<int(int)>("fsync")(file) : -1; }

int ftruncate(int file, off_t length) noexcept {
  return MayPass("ftruncate") ? Next<int(int, off_t)>("ftruncate")(file, length) : -1;
}

int rename(const char* from, const char* to) noexcept {
  return MayPass("rename", from) ? Next<int(const char*, const char*)>("rename")(from, to) : -1;
}

int unlink(const char* path) noexcept {
  return MayPass("remove", path) ? Next<int(const char*)>("unlink")(path) : -1;
}

int remove(const char* path) noexcept {
  return MayPass("remove", path) ? Next<int(const char*)>("remove")(path) : -1;
}

std::FILE* fopen(const char* path, const char* mode) {
  if (!g_on) return Next<std::FILE*(const char*, const char*)>("fopen")(path, mode);
  const int file = ::open(path, FlagsOf(mode), 0666);
  if (file < 0) return nullptr;
  return fopencookie(reinterpret_cast<void*>(static_cast<std::intptr_t>(file)), mode,
                     {StreamRead, StreamWrite, StreamSeek, StreamClose});
}
}

namespace file_faults {

void Begin(long at, Fails fails, int error) {
  g_error = error;
  g_at = at;
  g_fails = fails;
  g_count = 0;
  g_first[0] = 0;
  g_on = true;
}

std::string End() {
  g_on = false;
  return g_first;
}

long Operations() { return g_count; }

int OpenDescriptors() {
  int count = 0;
  DIR* folder = opendir("/proc/self/fd");
  while (folder && readdir(folder)) ++count;
  if (folder) closedir(folder);
  return count;
}

}  // namespace file_faults
#endif
