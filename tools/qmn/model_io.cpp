#include "tools/qmn/model_io.h"

#include <algorithm>
#include <new>
#include <string_view>
#include <utility>

#include "afx.h"
#include "menu/menu_compiler.h"

CompileResult CompileSource(std::string source, SourceMessages& messages, TMenuSystem& system,
                            unsigned page) {
  PageDecoder decoder(page);
  MenuCompiler compiler(std::move(source), messages, nullptr, OpenComment::kStop,
                        page == EnginePage() ? nullptr : &decoder);
  const char* begin = compiler.Scanner().Position();
  CompileResult result;
  result.accepted = compiler.Compile(system) == 0;
  if (const char* open = compiler.Scanner().OpenCommentAt()) {
    result.accepted = false;
    result.openCommentLine = 1 + static_cast<int>(std::count(begin, open, '\n'));
  }
  return result;
}

namespace {

const wchar_t* Load(const std::string& bytes, TMenuSystem& system) {
  CMemFile file(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
  CArchive ar(&file, CArchive::load | CArchive::bNoFlushOnDelete);
  try {
    system.Serialize(ar);
    return nullptr;
  } catch (CArchiveException* exception) {
    exception->Delete();
    return L"CArchiveException";
  } catch (CFileException* exception) {
    exception->Delete();
    return L"CFileException";
  } catch (CException* exception) {
    exception->Delete();
  } catch (const std::bad_alloc&) {
  }
  return L"CMemoryException";
}

}  // namespace

const wchar_t* LoadBytes(const std::string& bytes, TMenuSystem& system, unsigned page) {
  return page == EnginePage() ? Load(bytes, system) : Load(WithWideTexts(bytes, page), system);
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

Message Explain(const wchar_t* exception) {
  const std::wstring_view name(exception);
  if (name == L"CFileException") return "not a compiled menu file"_say;
  if (name == L"CArchiveException")
    return "damaged: the file ends too early, or a length or switch index in it can't be true"_say;
  return "too large for the memory"_say;
}
