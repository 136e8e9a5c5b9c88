// What the two commands that edit text require, over the host and the kernel. No window.
#pragma once

#include "editor/block_text.h"
#include "editor/object_watch.h"
#include "editor/text_command.h"

namespace qvx {

// The in-place editor of the module as the commands open it.
class TextEditOpener {
 public:
  virtual ~TextEditOpener() = default;
  virtual void BeginEdit(std::unique_ptr<EditFragment> text, const AcGeMatrix3d& toWorld) = 0;
  virtual const Lifetime& LifeOfDrawings() const = 0;  // ends when a drawing closes
};

bool IsTextCarrier(TextCarrier carrier, AcDbObjectId object);
std::unique_ptr<EditFragment> FindSubText(TextCarrier carrier, AcDbObjectId object, long index);
std::unique_ptr<EditFragment> FindSubTextAt(TextCarrier carrier, AcDbObjectId object,
                                            const AcGePoint3d& at);
TextObjects::EditFunction FindEditFunction(TextCarrier carrier, AcDbObjectId object);
void ClearPickFirstSet();

// TextObjects over the host, for both commands.
template <class Host>
class LiveTextObjects : public Host {
 public:
  explicit LiveTextObjects(TextEditOpener& opener)
      : m_opener(opener), m_watch(opener.LifeOfDrawings()) {}

  bool IsGone() const override { return m_watch.IsGone(); }
  bool IsCarrier(TextCarrier carrier, AcDbObjectId object) const override {
    return IsTextCarrier(carrier, object);
  }
  std::unique_ptr<EditFragment> GetSubText(TextCarrier carrier, AcDbObjectId object,
                                           long index) override {
    return FindSubText(carrier, object, index);
  }
  std::unique_ptr<EditFragment> GetSubTextAt(TextCarrier carrier, AcDbObjectId object,
                                             const AcGePoint3d& at) override {
    return FindSubTextAt(carrier, object, at);
  }
  TextObjects::EditFunction GetEditFunction(TextCarrier carrier, AcDbObjectId object) override {
    return FindEditFunction(carrier, object);
  }
  void ClearSelection() override { ClearPickFirstSet(); }
  void BeginEdit(std::unique_ptr<EditFragment> text, const AcGeMatrix3d& toWorld) override {
    m_opener.BeginEdit(std::move(text), toWorld);
  }

 private:
  TextEditOpener& m_opener;
  ObjectWatch m_watch;
};

class LiveTextCommandHost final : public LiveTextObjects<TextCommandHost> {
 public:
  using LiveTextObjects::LiveTextObjects;
  int PickOne(const wchar_t* prompt, const wchar_t* types, AcDbObjectId& object) override;
};

class LiveBlockTextHost final : public LiveTextObjects<BlockTextHost> {
 public:
  using LiveTextObjects::LiveTextObjects;
  int PickNested(const wchar_t* prompt, const wchar_t* types, NestedPick& pick) override;
  double Aperture() const override;
  AcGePoint3d UserToWorld(const AcGePoint3d& user) const override;
  AcGePoint3d WorldToUser(const AcGePoint3d& world) const override;
  std::unique_ptr<ReferenceSet> SelectCrossing(const AcGePoint3d& from, const AcGePoint3d& to,
                                               const wchar_t* types) override;
  std::unique_ptr<ReferenceSet> SelectReferences(const wchar_t* types,
                                                 const std::wstring& namePattern) override;
  std::wstring EscapeWildCards(const std::wstring& name) const override;
  bool IsReference(AcDbObjectId object) const override;
  AcDbObjectId RecordOf(AcDbObjectId reference) const override;
  AcDbObjectId DynamicRecordOf(AcDbObjectId reference) const override;
  std::optional<std::wstring> NameOf(AcDbObjectId record) const override;
  std::vector<AcDbObjectId> EntitiesOf(AcDbObjectId record) const override;
  bool IsEntity(AcDbObjectId object) const override;
  std::wstring TypeName(AcDbObjectId object) const override;
  bool Is(AcDbObjectId object, const wchar_t* type) const override;
  void Highlight(AcDbObjectId object, bool on) override;
  std::unique_ptr<EditFragment> NewFragment(AcDbObjectId object, PlainTextClass type) override;
  void RunAttributeEditor(const ReferenceSet& references) override;
};

class LiveReferenceHost final : public ReferenceHost {
 public:
  AcApDocument* CurrentDocument() const override;
  void ActivateCurrentDocument() override;
  std::unique_ptr<DocumentLock> LockCurrentDocument() override;
  void MarkChanged(AcDbObjectId reference) override;
  std::optional<std::vector<AcDbObjectId>> ReferencesOf(AcDbObjectId record) const override;
  void MarkGraphicsModified(AcDbObjectId reference) override;
  void UpdateAnonymousBlocks(AcDbObjectId record) override;
  void PrintWithPrompt(const std::wstring& text) override;
};

}  // namespace qvx
