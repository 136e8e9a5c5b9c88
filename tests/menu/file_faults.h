// Makes one file operation of the operating system fail: the C library's calls for files, defined
// here in front of the library's own, so that the class library, the standard library and stdio
// alike come through. Native only; on Windows nothing is in between.
#pragma once

#include <cerrno>
#include <string>

namespace file_faults {

enum class Fails { kOnce, kFromThenOn };

// `at` is the number of the operation that fails, from 1; 0 for none. `error` is its errno.
void Begin(long at = 0, Fails fails = Fails::kOnce, int error = EIO);
// The first operation that failed, "write" or "open NAME" with the file's name where the call has
// one; empty when none did.
std::string End();
long Operations();
// Descriptors that the process holds.
int OpenDescriptors();

}  // namespace file_faults
