// Counts the allocations of the program: those of the C and the C++ library.
#pragma once

long AllocationCount();
