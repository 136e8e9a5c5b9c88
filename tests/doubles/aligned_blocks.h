// Counts the blocks that come from operator new with an alignment: the chunks of the allocators of
// records and texts. Replaces these operators in the program that it is linked into.
#pragma once

// Allocated and not freed.
long LiveAlignedBlocks();
