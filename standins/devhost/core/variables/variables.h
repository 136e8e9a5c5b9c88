// System variables: name, type, scope (drawing or host), access, range. Values of the drawing are
// stored with it; some are computed.
#pragma once

#include <map>
#include <optional>
#include <string>

namespace devhost {

enum class VarType { Short, Real, Text, Point };

struct VariableInfo {
  const wchar_t* name;
  VarType type;
  bool ofDrawing;
  bool readOnly;
  double low, high;  // for numbers; low > high: any
  const wchar_t* initial;
};

enum class VarResult { Ok, Unknown, ReadOnly, OutOfRange, NoDrawing };

class VariableTable {
 public:
  const VariableInfo* Find(const std::wstring& name) const;  // case ignored
  // Values as text: numbers in decimal, points as "x,y,z".
  VarResult Get(const std::wstring& name, std::wstring* value) const;
  VarResult Set(const std::wstring& name, const std::wstring& value, bool byHost = false);

 private:
  std::map<std::wstring, std::wstring> m_global;
};

class Document;
// For undo: restores the old value; none: the initial one.
void RestoreVariable(Document& document, const std::wstring& name,
                     const std::optional<std::wstring>& value);

}  // namespace devhost
