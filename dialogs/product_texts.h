// Texts of the product file for the about dialog, the help command and the mail command, with the
// default of each missing key. Reads only.
#pragma once

#include "afx.h"
#include "ground/product_section.h"
#include "kernel/twcstring.h"

namespace qvx {

// Address of the maker, used when the product file names no other.
extern const wchar_t* const kContactAddress;
extern const wchar_t* const kChatGroup;

struct AboutTexts {
  CString name, group, version, subVersion, mail;
  CString iconFile;                  // full path; empty: no icon
  CString chineseName, englishName;  // read but shown nowhere
};
AboutTexts LoadAboutTexts(FindFileFunction find);

struct HelpTarget {
  bool found = true;  // false: the help file that the product file names does not exist
  // Empty, with `found` true, without a product file or a product in it: opening it then fails and
  // the user sees that error.
  TWCString path;
};
HelpTarget FindHelpFile(FindFileFunction find);

CString LoadContactAddress(FindFileFunction find);

}  // namespace qvx
