// The list of everything the product keeps or reads outside its own memory: registry values, keys
// of the product file, exported globals, host variables and LISP symbols, each with type, default,
// the rooms that use it and its effect. Data only. The rooms read each value where they need it; a
// test compares their sources with this list in both directions, and the globals with the kernel's
// own table. Used by the settings report.
#pragma once

enum class IndexStore {
  kMachine,       // registry, machine's root, below the product's location
  kUser,          // registry, user's root, below the product's location
  kProductFile,   // qvx.ini, section Product
  kGlobal,        // exported and kept by the kernel
  kHostVariable,  // of the host
  kLispSymbol,    // set in each drawing
};

enum class IndexType { kInt, kReal, kPoint, kText, kColor, kHandle, kNil };

struct IndexRow {
  IndexStore store;
  const wchar_t* folder;  // registry only: the key below the location
  const wchar_t* name;
  IndexType type;
  const wchar_t* defaultText;  // value if missing; null: never read, or none
  const wchar_t* rooms;        // separated by blanks
  const wchar_t* effect;
};

// Stands for the folder of `Menu`: the name of the host's profile, or "Settings" if that is empty.
extern const wchar_t kProfileFolder[];

const IndexRow* SettingsIndex(int* count);
