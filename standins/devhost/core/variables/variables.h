// System variables: name, type, whether they belong to the drawing, whether they can be written,
// and the range. Values of the drawing are kept with it; some are computed.
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
// For undo: the value that the variable had; none: its initial one.
void PutBackVariable(Document& document, const std::wstring& name,
                     const std::optional<std::wstring>& value);

}  // namespace devhost
