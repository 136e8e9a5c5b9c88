// QVX_KERNEL exports a class, function or datum when the kernel is built and imports it elsewhere.
// Empty in the native build, which links statically.
#pragma once

#if !defined(_WIN32)
#define QVX_KERNEL
#elif defined(QVX_KERNEL_BUILD)
#define QVX_KERNEL __declspec(dllexport)
#else
#define QVX_KERNEL __declspec(dllimport)
#endif
