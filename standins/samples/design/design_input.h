// Input of the commands: points, numbers with a default, texts, objects. False means that the user
// left the command, by Escape or by Enter where nothing has a default.
#pragma once

#include <string>

#include "add_entity.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tpickentset.h"

bool AskPoint(const wchar_t* prompt, ads_point at, const double* base = nullptr);
bool AskCorner(const wchar_t* prompt, ads_point at, const double* base);
bool TwoPoints(ads_point a, ads_point b);
bool TwoCorners(ads_point a, ads_point b);

// Positive numbers. The prompt is shown with the default; Enter alone keeps it.
bool AskSize(const wchar_t* prompt, double& value);
bool AskCount(const wchar_t* prompt, int& value, int most);
bool AskText(const wchar_t* prompt, std::wstring& text);

// What is selected, else what the user chooses.
bool Chosen(TPickEntSet& set);
// The object at a point; null without one.
AcDbObjectId PickObject(const wchar_t* prompt, AcGePoint3d* at = nullptr);

// Calls `change` with each chosen object of the class, open for writing, and counts those for which
// it gives true.
template <class Entity, class Change>
int ChangeEach(const TPickEntSet& set, Change change) {
  int count = 0;
  for (int i = 0; i < set.Length(); ++i) {
    const TAcDbObjectPtr<Entity> entity(set[i].ObjectId(), AcDb::kForWrite);
    if (entity && change(*entity.Get())) ++count;
  }
  return count;
}
