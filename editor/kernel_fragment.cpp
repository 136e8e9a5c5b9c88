#include "editor/kernel_fragment.h"

#include "acdocman.h"
#include "kernel/tsubtext.h"

namespace qvx {
namespace {

class KernelFragment final : public EditFragment {
 public:
  explicit KernelFragment(TSubText* text) : m_text(text) {}

  std::wstring GetText() const override { return m_text->GetText().GetString(); }
  void SetText(const std::wstring& text) override { m_text->SetText(text.c_str()); }
  void Update(const std::wstring& text) override { m_text->Update(text.c_str()); }
  void GetExtent2d(AcGePoint3d& lower, AcGePoint3d& upper) const override {
    m_text->GetExtent2d(lower, upper);
  }
  std::unique_ptr<EditFragment> GetNext(bool vertical, bool backward) const override {
    return MakeFragment(m_text->GetNext(vertical, backward));
  }
  long GetIndex() const override { return m_text->GetIndex(); }
  void SetIndex(long index) override { m_text->SetIndex(index); }
  AcDbObjectId GetObjectId() const override { return m_text->GetObjectId(); }
  void Highlight(bool on) const override { m_text->Highlight(on); }
  bool IsMultiLine() const override { return m_text->IsMultiLine(); }
  int GetMenuType() const override { return m_text->GetMenuType(); }

 private:
  std::unique_ptr<TSubText> m_text;
};

bool IsOpen(AcApDocument* document) {
  const std::unique_ptr<AcApDocumentIterator> at(acDocManager->newAcApDocumentIterator());
  for (; at && !at->done(); at->step())
    if (at->document() == document) return true;
  return false;
}

class HostLock final : public DocumentLock {
 public:
  explicit HostLock(AcApDocument* document) : m_document(document) {}
  ~HostLock() override {
    if (acDocManager && IsOpen(m_document)) acDocManager->unlockDocument(m_document);
  }

 private:
  AcApDocument* m_document;
};

}  // namespace

std::unique_ptr<EditFragment> MakeFragment(TSubText* text) {
  if (!text) return nullptr;
  return std::make_unique<KernelFragment>(text);
}

std::unique_ptr<DocumentLock> LockCurrentForWrite() {
  AcApDocument* document = acDocManager ? acDocManager->curDocument() : nullptr;
  if (!document || acDocManager->lockDocument(document, AcAp::kWrite) != Acad::eOk) return nullptr;
  return std::make_unique<HostLock>(document);
}

}  // namespace qvx
