#include "tests/menu/menu_testing.h"

#include <cstdio>
#include <filesystem>
#include <new>

#include "adsdef.h"
#include "kernel/native_file.h"
#include "kernel/qvxexport.h"
#include "menu/menu_compiler.h"
#include "menu/menu_passes.h"

namespace {

std::string Escaped(std::string_view text) {
  std::string out;
  for (char c : text) {
    if (c == '\n') {
      out += "\\n";
    } else if (c == '\x1b') {
      out += "\\e";
    } else if (c == '\\') {
      out += "\\\\";
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char code[8];
      std::snprintf(code, sizeof code, "\\x%02x", c);
      out += code;
    } else {
      out += c;
    }
  }
  return out;
}

std::string Quoted(const wchar_t* text) { return '"' + Escaped(Utf8(text)) + '"'; }

const char* KindName(int kind) {
  static const char* const names[] = {"ERR_STRING", "STRING",      "ICON",          "FCON",
                                      "MENU_ITEM",  "IDENTIFIER",  "ERR_MENU_ITEM", "COMA",
                                      "PLUS",       "EQUAL",       "PREFIX",        "SUB_PREFIX",
                                      "TITLE",      "POP",         "CTRL",          "RCLICK",
                                      "MENU_RES",   "MENU_SWITCH", "GET_STATE",     "SET_STATE"};
  return kind == QMN_END ? "END" : names[kind - QMN_ERR_STRING];
}

std::string Number(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.17g", value);
  return text;
}

std::string ValueOf(const TGroups& group) {
  switch (QvxExport::TypeOfCode(static_cast<uint16_t>(group.restype))) {
    case RTSHORT:
      return std::to_string(group.resval.rint);
    case RTREAL:
      return Number(group.resval.rreal);
    case RTLONG:
      return std::to_string(group.resval.rlong) + "L";
    case RTSTR:
      return Quoted(group.resval.rstring ? group.resval.rstring : L"");
    default:
      return "-";
  }
}

std::string DumpItem(TMenuItem& item, TMenuSystem* system) {
  std::string text = Quoted(item.m_strLabel);
  if (!item.m_strCommand.IsEmpty()) text += " " + Quoted(item.m_strCommand);
  if (!item.m_strIconName.IsEmpty()) text += " icon " + Utf8(item.m_strIconName);
  if (item.m_nIconIndex != -1) text += " at " + std::to_string(item.m_nIconIndex);
  if (item.m_nFlags) text += " flags " + std::to_string(item.m_nFlags);
  if (!item.m_strCheckFn.IsEmpty()) text += " check " + Utf8(item.m_strCheckFn);
  if (!item.m_strGrayFn.IsEmpty()) text += " gray " + Utf8(item.m_strGrayFn);
  for (int i = 0; system && item.m_pSwitch && i < system->m_switches.Length(); ++i)
    if (system->m_switches.At(i) == item.m_pSwitch) text += " switch " + std::to_string(i);
  return text;
}

std::string DumpLines(TMenuBar& root, TMenuSystem* system, int indent) {
  struct Place {
    TMenuBar* bar;
    int next;
  };
  std::string text;
  std::vector<Place> path{{&root, 0}};
  while (!path.empty()) {
    Place& place = path.back();
    if (place.next == place.bar->Length()) {
      path.pop_back();
      continue;
    }
    TMenuItem* item = place.bar->At(place.next++);
    text += std::string(static_cast<size_t>(indent) + path.size() * 2, ' ');
    text += DumpItem(*item, system) + (item->m_pSubMenu ? " >\n" : "\n");
    if (item->m_pSubMenu) path.push_back({item->m_pSubMenu, 0});
  }
  return text;
}

}  // namespace

void CollectedMessages::ReportSyntaxError(const wchar_t* text, int line) {
  all.push_back(std::to_string(line) + ": " + Escaped(Utf8(text)));
}

std::string CollectedMessages::Text() const {
  std::string text;
  for (const std::string& message : all) text += message + "\n";
  return text;
}

void Compile(const std::string& source, Compiled& into) {
  MenuCompiler compiler(source, into.messages, nullptr, OpenComment::kStop);
  into.result = compiler.Compile(into.system);
}

std::string Compiled::Tree() { return DumpTree(system); }

std::string DumpTokens(const std::string& source) {
  std::string folded = source, text;
  FoldLineEnds(folded);
  CollectedMessages messages;
  MenuScanner scanner(folded, messages, nullptr, OpenComment::kStop);
  MenuToken token;
  do {
    scanner.Next(token);
    text += std::to_string(scanner.Line()) + " " + KindName(token.kind);
    if (token.kind == QMN_ICON) text += " " + std::to_string(token.number);
    if (token.kind == QMN_FCON) text += " " + Number(token.real);
    if (token.kind <= QMN_ERR_MENU_ITEM && token.kind != QMN_ICON && token.kind != QMN_FCON &&
        token.kind != QMN_END)
      text += " " + Escaped(token.text);
    text += "\n";
  } while (token.kind != QMN_END);
  return text;
}

std::string DumpBar(TMenuBar& bar, int indent) { return DumpLines(bar, nullptr, indent - 2); }

std::string DumpTree(TMenuSystem& system) {
  std::string text = "title " + Quoted(system.m_strTitle) + "\n";
  for (TMenuResItem* item : system.m_resources)
    text += "resource " + Utf8(item->m_strName) + " " + Quoted(item->m_strImage) + " " +
            Quoted(item->m_strImage2) + "\n";
  for (TMenuSwitchItem* item : system.m_switches) {
    text += "switch " + Utf8(item->m_strName) + " get " + Utf8(item->m_strGetFn) + " set " +
            Utf8(item->m_strSetFn) + "\n";
    for (TSwitchStateItem* state : item->m_states)
      text += "  " + std::to_string(state->m_nValue) + " " + Quoted(state->m_strLabel) + " icon " +
              Utf8(state->m_strIconName) + " at " + std::to_string(state->m_nIconIndex) + "\n";
  }
  for (TMenuBar* bar : system) {
    text += "bar " + Utf8(bar->m_strName);
    if (!bar->m_strKind.IsEmpty()) text += " kind " + Utf8(bar->m_strKind);
    for (TGroups* group = bar->m_objectMask.Head(); group; group = group->Next())
      text += " " + std::to_string(group->restype) + "=" + ValueOf(*group);
    text += "\n" + DumpLines(*bar, &system, 0);
  }
  return text;
}

std::string Repeated(const char* text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

int NestSubMenus(TMenuBar& bar) {
  TDPtrList<TMenuItem> lines;
  lines.TakeAll(bar);
  SubMenuNester nester;
  for (int i = 0; i < lines.Length(); ++i) nester.Note(*lines.At(i), i);
  return nester.HandOut(lines, bar);
}

std::string SaveBytes(TMenuSystem& system) {
  CMemFile file;
  {
    CArchive ar(&file, CArchive::store);
    system.Serialize(ar);
    ar.Close();
  }
  return {reinterpret_cast<const char*>(file.GetBufferPtr()),
          static_cast<size_t>(file.GetLength())};
}

std::string LoadBytes(TMenuSystem& system, const std::string& bytes) {
  CMemFile file(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
  CArchive ar(&file, CArchive::load);
  try {
    system.Serialize(ar);
    return "";
  } catch (CArchiveException* e) {
    e->Delete();
    return "CArchiveException";
  } catch (CFileException* e) {
    const bool plain = e->m_cause == 0 && e->m_lOsError == -1;
    e->Delete();
    return plain ? "CFileException 0 -1" : "CFileException";
  } catch (CException* e) {
    e->Delete();
    return "CException";
  } catch (const std::bad_alloc&) {
    return "bad_alloc";
  }
}

std::wstring TempPath(const wchar_t* name) {
  static const std::wstring folder = [] {
    const auto path = std::filesystem::temp_directory_path() / "qvx_menu_tests";
    std::filesystem::create_directories(path);
    return path.wstring();
  }();
#ifdef _WIN32
  return folder + L"\\" + name;
#else
  return folder + L"/" + name;
#endif
}

void WriteFile(const std::wstring& path, const std::string& bytes) {
  FileOwner file = OpenWideFile(path.c_str(), L"wb");
  if (file) std::fwrite(bytes.data(), 1, bytes.size(), file.get());
}

std::string ReadFile(const std::wstring& path) {
  std::string bytes;
  return ReadWholeFile(path.c_str(), bytes) ? bytes : "<missing>";
}

void DeleteFileAt(const std::wstring& path) {
  std::error_code ignored;
  std::filesystem::remove_all(path, ignored);
}
