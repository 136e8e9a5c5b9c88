// The one list of everything the product keeps or asks outside its own memory: registry values,
// keys of the product file, exported globals, host variables and LISP symbols, each with type,
// default, the rooms that use it and what it does. Plain data: it reads and writes nothing. The
// rooms read each value where they need it; a test holds their sources and this list equal in both
// directions, and the globals equal to the kernel's own table. The settings report walks it.
#pragma once

enum class IndexStore {
  kMachine,       // registry, machine's root, below the product's location
  kUser,          // registry, user's root, below the product's location
  kProductFile,   // qvx.ini, section Product
  kGlobal,        // exported by the kernel, which also keeps it
  kHostVariable,  // of the drawing program
  kLispSymbol,    // set in each drawing
};

enum class IndexType { kInt, kReal, kText, kColor, kHandle, kNil };

struct IndexRow {
  IndexStore store;
  const wchar_t* folder;  // registry only: the key below the location
  const wchar_t* name;
  IndexType type;
  const wchar_t* defaultText;  // what holds while it is missing; null: never read or none
  const wchar_t* rooms;        // parted by blanks
  const wchar_t* effect;
};

// The folder of `Menu`: the host's profile names it, "Settings" stands in for an empty name.
extern const wchar_t kProfileFolder[];

const IndexRow* SettingsIndex(int* count);
