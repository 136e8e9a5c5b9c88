// The three forms of a dump.
#pragma once

#include <iosfwd>
#include <string>

class TMenuSystem;
struct TGroups;

// The canonical form; docs/qmn.md has its keys.
void DumpJson(TMenuSystem& system, std::ostream& out);
// An outline for reading; its layout is no promise.
void DumpOutline(TMenuSystem& system, std::ostream& out);
// Every field of a compiled file with its offset; `page` is that of texts without marker. False
// when the file ends too early or is none; the fields until then are written.
bool DumpFields(const std::string& bytes, unsigned page, std::ostream& out);

// What a mask group holds: its code as files have it, and the kind of value that the code stands
// for, one of RTSHORT, RTREAL, RTSTR, RTLONG or something else for none.
int CodeOf(const TGroups& group);
int KindOf(const TGroups& group);
