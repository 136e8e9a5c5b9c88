// What the product file says to the about dialog, the help command and the mail command, with what
// stands in for each missing key. Reading only: nothing is opened or shown here.
#pragma once

#include "afx.h"
#include "ground/product_section.h"
#include "kernel/twcstring.h"

namespace qvx {

// The maker's own, where the product file names no other.
extern const wchar_t* const kContactAddress;
extern const wchar_t* const kChatGroup;

struct AboutTexts {
  CString name, group, version, subVersion, mail;
  CString iconFile;                  // full path; empty: no icon
  CString chineseName, englishName;  // read with the others, shown nowhere
};
AboutTexts LoadAboutTexts(FindFileFunction find);

struct HelpTarget {
  bool found = true;  // false: the product file names no help file that is there
  // Empty and `found` where there is no product file, or no product in it: the try to open it then
  // fails, and that is what the user is told.
  TWCString path;
};
HelpTarget FindHelpFile(FindFileFunction find);

CString LoadContactAddress(FindFileFunction find);

}  // namespace qvx
