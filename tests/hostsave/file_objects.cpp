// Objects of drawing files; see the header. Only the conversion of texts is the host's.
#include "file_objects.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "devhost/core/base/utf8.h"
#include "devhost/core/dxf/dxf_text.h"

namespace savetest {
namespace {

std::string Trim(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  return first == text.npos ? "" : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

bool IsReal(int code) {
  return (code >= 10 && code <= 59) || (code >= 110 && code <= 149) ||
         (code >= 210 && code <= 239) || (code >= 460 && code <= 469) ||
         (code >= 1010 && code <= 1059);
}
bool IsInteger(int code) {
  return (code >= 60 && code <= 99) || (code >= 160 && code <= 179) ||
         (code >= 270 && code <= 299) || (code >= 370 && code <= 389) ||
         (code >= 400 && code <= 409) || (code >= 420 && code <= 429) ||
         (code >= 440 && code <= 459) || (code >= 1060 && code <= 1071);
}

// Files of R12 write the spaces with a dollar sign.
std::string Upper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  if (text == "$MODEL_SPACE" || text == "$PAPER_SPACE") text[0] = '*';
  return text;
}

class ObjectReader {
 public:
  std::vector<FileObject> Read(const std::string& bytes) {
    std::istringstream lines(bytes);
    std::string code, value;
    while (std::getline(lines, code) && std::getline(lines, value)) {
      if (!value.empty() && value.back() == '\r') value.pop_back();
      const int number = std::atoi(code.c_str());
      if (number == 0 && Trim(value) == "EOF") break;
      if (number != 999) Add(number, value);
    }
    for (FileObject& object : m_objects) Name(object);
    return std::move(m_objects);
  }

 private:
  void Add(int code, const std::string& value) {
    const bool header = m_section == "HEADER";
    if (code == 0 || (header && code == 9)) {
      m_type = Trim(value);
      m_objects.push_back({m_type, {}, m_section, {}, {}});
      m_inList = false;
      if (m_type == "ENDSEC") m_section.clear();
      return;
    }
    if (m_type == "SECTION" && code == 2) m_section = Trim(value);
    if (m_objects.empty()) return;
    if (header && m_type == "$ACADVER" && Trim(value) >= "AC1021") m_decoder.SetPage(65001);
    if (header && m_type == "$DWGCODEPAGE" && m_decoder.Page() != 65001)
      if (const auto page = devhost::DxfPageOf(value)) m_decoder.SetPage(*page);
    FileObject& object = m_objects.back();
    if (code == 102) m_inList = value.starts_with("{");
    if (code == 330 && !m_inList && object.owner.empty()) {
      object.owner = Trim(value);
      return;
    }
    object.groups[code].push_back(ValueText(code, devhost::Utf8(m_decoder.Text(value))));
  }
  // In a dimension style, group 5 is the name of a block.
  void Name(FileObject& object) {
    const auto handle = object.groups.find(object.name == "DIMSTYLE" ? 105 : 5);
    const auto name = object.groups.find(2);
    object.place = object.name + " #" + std::to_string(++m_counts[object.name]);
    for (const char* named : {"SECTION", "TABLE", "LAYER", "BLOCK", "STYLE", "LTYPE"})
      if (object.name == named && name != object.groups.end())
        object.place = object.name + " " + Upper(name->second.front());
    if (handle != object.groups.end() && !object.name.starts_with("$"))
      object.name += " " + handle->second.front();
    else
      object.name = object.place;
  }

  std::vector<FileObject> m_objects;
  std::map<std::string, int> m_counts;
  std::string m_section, m_type;
  bool m_inList = false;
  devhost::DxfDecoder m_decoder;
};

}  // namespace

std::string ValueText(int code, const std::string& value) {
  char text[40];
  if (IsReal(code)) {
    std::snprintf(text, sizeof text, "%a", std::strtod(value.c_str(), nullptr) + 0.0);
    return text;
  }
  if (IsInteger(code)) return std::to_string(std::strtoll(value.c_str(), nullptr, 10));
  return code >= 0 && code <= 9 && code != 5 ? value : Trim(value);
}

std::vector<FileObject> ObjectsOf(const std::string& bytes) { return ObjectReader().Read(bytes); }

}  // namespace savetest
