// Saves and loads compiled menu files. A save writes a new file beside the target and renames it
// when it is complete, so that an interrupted save leaves the old file or the new one. Failures are
// reported by a message box only, not to the caller.
#include <exception>
#include <filesystem>
#include <memory>
#include <new>
#include <string>
#include <system_error>

#include "afx.h"

#include "ground/memory_errors.h"
#include "menu/compiled_io.h"
#include "menu/menu_system.h"
#include "menu/menu_users.h"

namespace {

// Made before the save begins, so that later steps allocate nothing. Empty for an invalid file
// name.
std::filesystem::path NativePath(const wchar_t* path) {
  std::u16string units;
  for (; *path; ++path) units += static_cast<char16_t>(*path);
  try {
    return std::filesystem::path(units);
  } catch (const std::system_error&) {
    return {};
  }
}

void ShowWithPath(MenuBoxes& boxes, const wchar_t* text, const wchar_t* path) {
  TWCString message(text);
  message += path;
  boxes.ShowMessage(message);
}

// Runs the step; false when it ended in an exception, whose class is reported.
template <class Step>
bool Try(MenuBoxes& boxes, Step step) {
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

struct OpenArchive {
  OpenArchive(const wchar_t* path, UINT flags, UINT mode)
      : file(path, flags), ar(&file, mode | CArchive::bNoFlushOnDelete, kArchiveBuffer) {}
  CFile file;
  CArchive ar;
};

// Null when the file can't be opened.
std::unique_ptr<OpenArchive> OpenToLoad(const wchar_t* path) {
  try {
    return std::make_unique<OpenArchive>(path, CFile::modeRead, CArchive::load);
  } catch (CException* exception) {
    exception->Delete();
  } catch (const std::bad_alloc&) {
  }
  return nullptr;
}

class Saving {
 public:
  Saving(const wchar_t* path, MenuBoxes& boxes) : m_path(path), m_beside(path), m_boxes(boxes) {
    m_beside += L".new";
    m_targetFile = NativePath(m_path);
    m_besideFile = NativePath(m_beside);
  }

  void Run(TMenuSystem& system) {
    if (!IsWritable() || !Open()) return Refuse();
    const bool written = Try(m_boxes, [&] {
      system.Serialize(m_archive->ar);
      m_archive->ar.Close();
      m_archive->file.Close();
    });
    m_archive.reset();
    if (!m_isBeside) return;
    if (written && TakePlace()) return;
    RemoveBeside();
    if (written) Refuse();
  }

 private:
  bool Exists() const {
    std::error_code failure;
    return std::filesystem::exists(m_targetFile, failure);
  }
  // Whether a file of this name may be written; does not change it.
  bool IsWritable() const {
    if (!Exists()) return true;
    CFile probe;
    return probe.Open(m_path, CFile::modeWrite);
  }
  bool TakePlace() const {
    std::error_code failure;
    std::filesystem::rename(m_besideFile, m_targetFile, failure);
    return !failure;
  }
  void RemoveBeside() const {
    std::error_code failure;
    std::filesystem::remove(m_besideFile, failure);
  }
  // Opens a file beside the target, or the target itself when the folder permits no new file; only
  // then can an interrupted save leave an incomplete file.
  bool Open() {
    if (OpenAs(m_beside)) return true;
    if (!m_isDenied || !Exists()) return false;
    m_isBeside = false;
    return OpenAs(m_path);
  }
  bool OpenAs(const wchar_t* name) {
    try {
      m_archive = std::make_unique<OpenArchive>(name, CFile::modeCreate | CFile::modeWrite,
                                                CArchive::store);
      return true;
    } catch (CFileException* exception) {
      m_isDenied = exception->m_cause == CFileException::accessDenied;
      exception->Delete();
    } catch (CMemoryException* exception) {
      exception->Delete();
      if (m_isBeside) RemoveBeside();
    } catch (CException* exception) {
      exception->Delete();
    } catch (const std::bad_alloc&) {
      if (m_isBeside) RemoveBeside();
    }
    return false;
  }
  void Refuse() { ShowWithPath(m_boxes, L"无法创建文件", m_path); }

  TWCString m_path;
  TWCString m_beside;
  std::filesystem::path m_targetFile;
  std::filesystem::path m_besideFile;
  MenuBoxes& m_boxes;
  bool m_isBeside = true;   // the open file is not the target itself
  bool m_isDenied = false;  // the folder permits no new file
  std::unique_ptr<OpenArchive> m_archive;
};

// Outside of the steps above only the texts of messages allocate.
template <class Job>
void WithoutMemoryErrors(MenuBoxes& boxes, Job job) {
  if (!qvx::HasMemoryFor(job)) boxes.ShowMessage(L"CMemoryException");
}

}  // namespace

void TMenuSystem::SaveCompiled(const wchar_t* path, MenuBoxes& boxes) {
  WithoutMemoryErrors(boxes, [&] { Saving(path, boxes).Run(*this); });
}

void TMenuSystem::LoadCompiled(const wchar_t* path, MenuBoxes& boxes) {
  WithoutMemoryErrors(boxes, [&] {
    const std::unique_ptr<OpenArchive> archive = OpenToLoad(path);
    if (!archive) return ShowWithPath(boxes, L"无法读取文件", path);
    Try(boxes, [&] { Serialize(archive->ar); });
  });
}
