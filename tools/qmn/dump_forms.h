// The three forms of a dump.
#pragma once

#include <iosfwd>
#include <string>

class TMenuSystem;
struct TGroups;

// The canonical form; docs/qmn.md has its keys.
void DumpJson(TMenuSystem& system, std::ostream& out);
// An outline for reading; its layout may change.
void DumpOutline(TMenuSystem& system, std::ostream& out);
// Every field of a compiled file with its offset; `page` is the code page of texts without
// marker. Returns false when the file is truncated or not a menu file; the fields read
// until then are written.
bool DumpFields(const std::string& bytes, unsigned page, std::ostream& out);

// The value of a mask group: its code as in the file, and the value type of that code: RTSHORT,
// RTREAL, RTSTR, RTLONG, or another value for none.
int CodeOf(const TGroups& group);
int KindOf(const TGroups& group);
