// The block references that a change of text inside a block definition reaches. The command that
// finds the text notes them; they are reported and updated when the change has been made: at once,
// or when the in-place editor commits. A cancelled edit leaves them for the next commit. There is
// one object in the module.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dbmain.h"
#include "editor/document_lock.h"
#include "editor/object_watch.h"

class AcApDocument;

namespace qvx {

// A selection of the host, which is released with the object.
class ReferenceSet {
 public:
  virtual ~ReferenceSet() = default;
  virtual int Length() const = 0;
  virtual AcDbObjectId At(int index) const = 0;
};

// The host's operations. Those that are not const may run foreign code.
class ReferenceHost {
 public:
  virtual ~ReferenceHost() = default;
  virtual AcApDocument* CurrentDocument() const = 0;
  virtual void ActivateCurrentDocument() = 0;
  virtual std::unique_ptr<DocumentLock> LockCurrentDocument() = 0;  // null when it fails
  // assertWriteEnabled(true, true) on an entity; nothing for one that can't be opened.
  virtual void MarkChanged(AcDbObjectId reference) = 0;
  // Nothing when the object is no block table record.
  virtual std::optional<std::vector<AcDbObjectId>> ReferencesOf(AcDbObjectId record) const = 0;
  virtual void MarkGraphicsModified(AcDbObjectId reference) = 0;
  virtual void UpdateAnonymousBlocks(AcDbObjectId record) = 0;
  virtual void PrintWithPrompt(const std::wstring& text) = 0;
};

class BlockReferences {
 public:
  explicit BlockReferences(ReferenceHost& host) : m_host(host) {}  // outlives the object

  // Of the current drawing.
  void NoteDynamicBlock(AcDbObjectId definition);
  void NoteSameName(std::unique_ptr<ReferenceSet> references);
  void ForgetDynamicBlock() { m_idDynBlock.setNull(); }
  AcDbObjectId DynamicBlock() const { return m_idDynBlock; }
  bool HasSameName() const { return m_pSameName != nullptr; }

  // Marks the references as changed, prints how many others there are, empties the set.
  void ReportSameNameBlocks();
  // Updates the references of the dynamic block, if there is one, and forgets it.
  void UpdateDynBlock();
  // Both are dropped with their drawing.
  void OnDrawingDestroyed(const AcApDocument* document);

 private:
  // Null when the block is not dynamic.
  AcDbObjectId m_idDynBlock;
  std::unique_ptr<ReferenceSet> m_pSameName;
  const AcApDocument* m_document = nullptr;  // of both; compared only
  ReferenceHost& m_host;
  std::unique_ptr<Lifetime> m_life = std::make_unique<Lifetime>();  // also ends with the drawing
};

}  // namespace qvx
