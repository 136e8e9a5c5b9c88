// Selection sets, filters with wild cards, and the pick-first set.
#pragma once

#include <string>
#include <vector>

#include "dbmain.h"

namespace devhost {

class Document;

// The host's wild cards, case ignored: * any text, ? any character, # a digit, @ a letter, .
// neither,
// [..] one of, [~..] none of, ~ in front negates the pattern, ` takes the next as it stands, and
// commas separate patterns of which one must match.
bool WildMatch(const std::wstring& text, const std::wstring& patterns);

// A chain of groups: 0 type, 8 layer, 2 block, 1 text, 6 linetype, 62 colour, 67 paper space;
// numbers compare equal. -4 groups with "<OR" "<AND" "<NOT" nest. An empty chain passes everything.
bool PassesFilter(const AcDbEntity& entity, const resbuf* filter);

const ACHAR* DxfNameOf(const AcDbEntity& entity);

void SetPickFirst(Document& document, std::vector<AcDbObjectId> ids);

// Selection sets by name; the vector lives until acedSSFree.
std::vector<AcDbObjectId>* SetOf(const ads_name name);
void NewSet(std::vector<AcDbObjectId> ids, ads_name name);
bool ForgetSet(const ads_name name);

}  // namespace devhost
