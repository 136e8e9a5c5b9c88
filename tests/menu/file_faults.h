// Makes one file operation fail. The C library's functions for files are defined here and hide the
// library's own, so that calls of the class library, the standard library and stdio come here.
// Native build only.
#pragma once

#include <cerrno>
#include <string>

namespace file_faults {

enum class Fails { kOnce, kFromThenOn };

// `at` is the number of the operation that fails, from 1; 0: none. `error` is its errno.
void Begin(long at = 0, Fails fails = Fails::kOnce, int error = EIO);
// The first operation that failed, "write" or "open NAME" with the file's name where the call has
// one; empty when none did.
std::string End();
long Operations();
// The number of descriptors that the process has open.
int OpenDescriptors();

}  // namespace file_faults
