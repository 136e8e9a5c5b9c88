// What leaves the kernel module: QVX_KERNEL marks a class, function or datum for export while the
// kernel itself is built and for import everywhere else. The native build links statically.
#pragma once

#if !defined(_WIN32)
#define QVX_KERNEL
#elif defined(QVX_KERNEL_BUILD)
#define QVX_KERNEL __declspec(dllexport)
#else
#define QVX_KERNEL __declspec(dllimport)
#endif
