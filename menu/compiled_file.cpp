// Saving and loading of compiled menu files. A save goes to a file beside the target, which takes
// the target's place when it is whole, so that a save that dies leaves the old file or the new one.
// Every failure ends in a message box; the caller hears nothing.
#include <exception>
#include <filesystem>
#include <memory>
#include <new>
#include <string>
#include <system_error>

#include "afx.h"
#include "menu/menu_system.h"
#include "menu/menu_users.h"

namespace {

constexpr int kArchiveBuffer = 409600;

std::filesystem::path NativePath(const wchar_t* path) {
  std::u16string units;
  for (; *path; ++path) units += static_cast<char16_t>(*path);
  return std::filesystem::path(units);
}

// False when it failed in any way, a name that no file can have among them.
template <class Step>
bool OnFiles(Step step) {
  try {
    std::error_code failure;
    return step(failure) && !failure;
  } catch (const std::exception&) {
    return false;
  }
}

bool Exists(const wchar_t* path) {
  return OnFiles([=](auto& failure) { return std::filesystem::exists(NativePath(path), failure); });
}

bool Replace(const wchar_t* from, const wchar_t* to) {
  return OnFiles([=](auto& failure) {
    std::filesystem::rename(NativePath(from), NativePath(to), failure);
    return true;
  });
}

void RemoveFile(const wchar_t* path) {
  OnFiles([=](auto& failure) { return std::filesystem::remove(NativePath(path), failure); });
}

void ShowWithPath(MenuBoxes& boxes, const wchar_t* text, const wchar_t* path) {
  TWCString message(text);
  message += path;
  boxes.ShowMessage(message);
}

// Runs the step; false when it ended in an exception of any kind.
template <class Step>
bool Try(Step step) {
  try {
    step();
    return true;
  } catch (CException* exception) {
    exception->Delete();
  } catch (const std::bad_alloc&) {
  }
  return false;
}

// The same, and says by which of the three it ended.
template <class Step>
bool TryAloud(MenuBoxes& boxes, Step step) {
  const wchar_t* name = L"CMemoryException";
  try {
    step();
    return true;
  } catch (CArchiveException* exception) {
    exception->Delete();
    name = L"CArchiveException";
  } catch (CFileException* exception) {
    exception->Delete();
    name = L"CFileException";
  } catch (CException* exception) {
    exception->Delete();
  } catch (const std::bad_alloc&) {
  }
  boxes.ShowMessage(name);
  return false;
}

// A file and the archive on it.
struct OpenArchive {
  OpenArchive(const wchar_t* path, UINT flags, UINT mode)
      : file(path, flags), ar(&file, mode | CArchive::bNoFlushOnDelete, kArchiveBuffer) {}
  CFile file;
  CArchive ar;
};

// Whether a file of this name may be written, without harm to what is in it.
bool IsWritable(const wchar_t* path) {
  if (!Exists(path)) return true;
  CFile probe;
  return probe.Open(path, CFile::modeWrite);
}

class Saving {
 public:
  Saving(const wchar_t* path, MenuBoxes& boxes) : m_path(path), m_beside(path), m_boxes(boxes) {
    m_beside += L".new";
  }

  void Run(TMenuSystem& system) {
    if (!IsWritable(m_path) || !Open()) return Refuse();
    const bool written = TryAloud(m_boxes, [&] {
      system.Serialize(m_archive->ar);
      m_archive->ar.Close();
      m_archive->file.Close();
    });
    m_archive.reset();
    if (m_target != &m_beside) return;
    if (written && Replace(m_beside, m_path)) return;
    RemoveFile(m_beside);
    if (written) Refuse();
  }

 private:
  // Beside the target; in a folder that takes no new file the target itself has to do.
  bool Open() { return OpenAs(m_beside) || OpenAs(m_path); }
  bool OpenAs(const TWCString& name) {
    m_target = &name;
    return Try([&] {
      m_archive = std::make_unique<OpenArchive>(name, CFile::modeCreate | CFile::modeWrite,
                                                CArchive::store);
    });
  }
  void Refuse() { ShowWithPath(m_boxes, L"无法创建文件", m_path); }

  TWCString m_path;
  TWCString m_beside;
  MenuBoxes& m_boxes;
  const TWCString* m_target = nullptr;
  std::unique_ptr<OpenArchive> m_archive;
};

}  // namespace

void TMenuSystem::SaveCompiled(const wchar_t* path, MenuBoxes& boxes) {
  Saving(path, boxes).Run(*this);
}

void TMenuSystem::LoadCompiled(const wchar_t* path, MenuBoxes& boxes) {
  std::unique_ptr<OpenArchive> archive;
  if (!Try([&] { archive = std::make_unique<OpenArchive>(path, CFile::modeRead, CArchive::load); }))
    return ShowWithPath(boxes, L"无法读取文件", path);
  TryAloud(boxes, [&] { Serialize(archive->ar); });
}
