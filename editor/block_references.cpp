#include "editor/block_references.h"

#include <utility>

namespace qvx {
namespace {

constexpr int kFewestToReport = 2;

void MarkAll(ReferenceHost& host, const ReferenceSet& references, const ObjectWatch& watch) {
  for (int i = 0, count = references.Length(); i < count && !watch.IsGone(); ++i)
    host.MarkChanged(references.At(i));
}

}  // namespace

void BlockReferences::NoteDynamicBlock(AcDbObjectId definition) {
  m_document = m_host.CurrentDocument();
  m_idDynBlock = definition;
}

void BlockReferences::NoteSameName(std::unique_ptr<ReferenceSet> references) {
  m_document = m_host.CurrentDocument();
  m_pSameName = std::move(references);
}

void BlockReferences::ReportSameNameBlocks() {
  const ObjectWatch watch(*m_life);
  const std::unique_ptr<DocumentLock> lock = m_host.LockCurrentDocument();
  if (watch.IsGone()) return;
  // Taken out, because foreign code that runs below may report again. Freed before the lock.
  const std::unique_ptr<ReferenceSet> references = std::move(m_pSameName);
  if (!lock || !references) return;
  MarkAll(m_host, *references, watch);
  if (watch.IsGone()) return;
  const int count = references->Length();
  if (count >= kFewestToReport)
    m_host.PrintWithPrompt(L"\n有" + std::to_wstring(count - 1) + L"个同名的图块同时参与了修改");
}

void BlockReferences::UpdateDynBlock() {
  const AcDbObjectId definition = std::exchange(m_idDynBlock, AcDbObjectId());
  if (definition.isNull()) return;
  const ObjectWatch watch(*m_life);
  m_host.ActivateCurrentDocument();
  if (watch.IsGone()) return;
  const std::unique_ptr<DocumentLock> lock = m_host.LockCurrentDocument();
  if (watch.IsGone() || !lock) return;
  if (const auto references = m_host.ReferencesOf(definition)) {
    for (const AcDbObjectId& reference : *references) {
      m_host.MarkGraphicsModified(reference);
      if (watch.IsGone()) return;
    }
  }
  m_host.UpdateAnonymousBlocks(definition);
}

void BlockReferences::OnDrawingDestroyed(const AcApDocument* document) {
  if (!document || document != m_document) return;
  m_document = nullptr;
  m_idDynBlock.setNull();
  m_pSameName.reset();
  m_life = std::make_unique<Lifetime>();
}

}  // namespace qvx
