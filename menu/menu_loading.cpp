#include "menu/menu_loading.h"

#include <cstdio>
#include <cwchar>
#include <memory>
#include <string>

#include "ground/memory_errors.h"
#include "kernel/native_file.h"
#include "kernel/tsplitpath.h"
#include "menu/menu_compiler.h"

namespace {

class PrintedMessages : public SourceMessages {
 public:
  explicit PrintedMessages(MenuPrinter& printer) : m_printer(printer) {}
  void ReportSyntaxError(const wchar_t* text, int line) override {
    m_printer.Print(FormatSyntaxError(text, line));
  }

 private:
  MenuPrinter& m_printer;
};

TWCString Joined(const wchar_t* a, const wchar_t* b) {
  TWCString text(a);
  text += b;
  return text;
}

void CopyPath(const wchar_t* text, wchar_t* out) {
  size_t i = 0;
  for (; i + 1 < MenuLoading::kPathUnits && text[i]; ++i) out[i] = text[i];
  out[i] = 0;
}

}  // namespace

const wchar_t* MenuLoading::DefaultMenuFile(int menuType) {
  if (menuType == 1) return L"simple.qmn";
  if (menuType == 2) return L"qvx2d.qmn";
  return L"qvx.qmn";
}

bool MenuLoading::FindBase(const wchar_t* name, wchar_t* out) {
  wchar_t found[kPathUnits];
  if (!m_files.FindFile(name, found)) return false;
  CopyPath(TSplitpathOperator(found).Base(), out);
  return true;
}

bool MenuLoading::FindEither(const wchar_t* base, wchar_t* out) {
  return FindBase(Joined(base, L".qmn"), out) || FindBase(Joined(base, L".qmc"), out);
}

bool MenuLoading::FindMenuBase(wchar_t* out) {
  wchar_t setting[kPathUnits];
  if (m_files.ReadMenuSetting(setting) && FindEither(TSplitpathOperator(setting).Base(), out))
    return true;
  return FindEither(L"qvx", out);
}

bool MenuLoading::DefaultMenuBase(wchar_t* out) {
  return FindBase(DefaultMenuFile(m_files.MenuType()), out);
}

void MenuLoading::CompileMenu(const wchar_t* path) {
  TMenuSystem* system = m_users.CurrentSystem();
  if (!system) return;
  if (qvx::HasMemoryFor([&] { Compile(path, *system); })) return;
  system->EmptyLists();  // the compiled file is unchanged
  m_boxes.ShowMessage(L"CMemoryException");
  HandOver(*system);  // drops references to deleted blocks
}

void MenuLoading::Compile(const wchar_t* path, TMenuSystem& system) {
  std::string source;
  if (!ReadWholeFile(path, source)) return m_printer.Print(Joined(L"\nCould not open file ", path));

  wchar_t echoPath[kPathUnits];
  m_files.TempFolder(echoPath);
  const TWCString echoName = Joined(echoPath, L"qmn.out");
  FileOwner echoFile = OpenWideFile(echoName, L"w");
  if (!echoFile) return m_printer.Print(Joined(L"\nCould not create temperary file ", echoName));

  m_printer.Print(Joined(L"\n加载奇维菜单文件: ", path));
  PrintedMessages messages(m_printer);
  {
    SourceEcho echo(echoFile.get());
    // Deliberate: a file with errors gives an empty system, which is saved and used all the same.
    MenuCompiler(std::move(source), messages, &echo).Compile(system);
  }
  echoFile.reset();
  system.SaveCompiled(Joined(TSplitpathOperator(path).Base(), L".qmc"), m_boxes);
  HandOver(system);
}

void MenuLoading::LoadCompiledMenu(const wchar_t* path) {
  TMenuSystem* system = m_users.CurrentSystem();
  if (!system) return;
  m_printer.Print(Joined(L"\n加载奇维菜单文件: ", path));
  system->LoadCompiled(path, m_boxes);
  HandOver(*system);
}

void MenuLoading::HandOver(TMenuSystem& system) {
  m_users.AttachScreenBar(system);
  m_users.AttachToolBar(system);
}

TMenuBar* PrepareToolBar(TMenuSystem& system) {
  const int at = system.FindBarIndexNoCase(L"ToolBar");
  if (at < 0) return nullptr;
  TMenuBar& bar = *system[at];
  // Each separator is exchanged with the next line. One at the end stays.
  for (int i = 0; i + 1 < bar.Length(); ++i) {
    if (!bar.At(i)->IsSeparator()) continue;
    bar.Exchange(i + 1, bar.Exchange(i, bar.At(i + 1)));
    ++i;
  }
  return &bar;
}
