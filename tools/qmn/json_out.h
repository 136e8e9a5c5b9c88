// JSON in one canonical layout: two spaces of indentation, each element on its own line, empty
// arrays and objects as [] and {}. Nesting uses heap only. The caller is responsible for the order
// of keys and values.
#pragma once

#include <iosfwd>
#include <string_view>
#include <vector>

void PutIndent(std::ostream& out, size_t levels);

class JsonOut {
 public:
  explicit JsonOut(std::ostream& out) : m_out(out) {}

  void OpenObject() { Open('{', '}'); }
  void OpenArray() { Open('[', ']'); }
  void Close();
  void Key(std::string_view name);
  void Text(std::wstring_view units);
  void Integer(long long value);
  // The shortest form that reads back to the same value; null for values JSON cannot represent.
  void Real(double value);
  void Null();
  void End();  // the newline at the end of the document

 private:
  struct Level {
    char close;
    bool any = false;
  };
  void Open(char open, char close);
  void Element();
  void NewLine();

  std::ostream& m_out;
  std::vector<Level> m_levels;
  bool m_keyed = false;
};
