// A drawing with the objects of the kernel and the sample module.
#pragma once

#include <memory>

#include "devhost/core/undo/undo.h"
#include "acedads.h"
#include "kernel/current_drawing.h"
#include "kernel/tsubtext.h"
#include "standins/samples/design/annotation_entities.h"
#include "tests/hostcore/host_fixture.h"

namespace kerneltest {

class ObjectsTest : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    BeginQvxEntities();
    BeginAnnotationEntities();
    BeginCurrentDrawing();
    NewDrawing();
  }
  void TearDown() override {
    EndCurrentDrawing();
    HostTest::TearDown();
    EndAnnotationEntities();
    EndQvxEntities();
  }

  template <class Entity>
  Entity* Add(const AcGePoint3d& start, const AcGePoint3d& end) {
    auto* entity = new Entity;
    Prepare(entity, start, end);
    return entity;
  }
  void Prepare(QvxDbEntity* entity, const AcGePoint3d& start, const AcGePoint3d& end) {
    entity->start = start;
    entity->end = end;
    Append(entity);
  }
  AcDbObjectId Append(AcDbEntity* entity) {
    AcDbBlockTableRecord::cast(host.documents.Current()->database()->currentSpaceId().object())
        ->appendAcDbEntity(entity);
    return entity->objectId();
  }
  // Of a class by its name in drawing files.
  template <class Entity = QvxDbEntity>
  Entity* AddOfType(const wchar_t* type) {
    const AcRxClass* cls = acrxClassOfDxfName(type);
    auto* entity = cls ? Entity::cast(cls->create()) : nullptr;
    if (entity) Append(entity);
    return entity;
  }
  // Cells of 3000 by 800 with the texts "0", "1" and so on.
  QvxDbSheet* AddTable(int columns, int rows) {
    auto* table = new QvxDbSheet;
    table->width = 3000;
    table->size = 800;
    table->kind = columns;
    table->flags = rows;
    for (int i = 0; i < columns * rows; ++i) table->cells.push_back(std::to_wstring(i));
    Prepare(table, {0, 10000, 0}, {});
    return table;
  }
  AcDbBlockTableRecord* AddBlock(const wchar_t* name) {
    auto* record = new AcDbBlockTableRecord;
    record->setName(name);
    AcDbBlockTable::cast(host.documents.Current()->database()->blockTableId().object())
        ->add(record);
    return record;
  }

  static std::unique_ptr<TSubText> TextAt(TPickEntSet& set, double x, double y) {
    return std::unique_ptr<TSubText>(HitTestOnText(set, {x, y, 0}));
  }
  static std::unique_ptr<TSubText> Fragment(const AcDbEntity* entity, int index) {
    const TTextOwner* owner = TextOwnerOf(entity);
    return std::unique_ptr<TSubText>(owner ? owner->GetSubText(index) : nullptr);
  }
  static std::wstring TextOf(const AcDbEntity* entity, int index) {
    const auto fragment = Fragment(entity, index);
    return fragment ? fragment->GetText().GetString() : L"(none)";
  }
  // As the editor commits: one lock for one update.
  void Commit(TSubText& fragment, const wchar_t* text) {
    devhost::EndLockSteps();  // as at idle time: the lock is a step of its own
    AcApDocument* document = acDocManager->curDocument();
    acDocManager->lockDocument(document);
    fragment.Update(text);
    acDocManager->unlockDocument(document);
  }
  // A set of all objects, in drawing order.
  void PickAll(TPickEntSet& set) {
    host.documents.Current()->pickFirst.clear();
    for (AcDbEntity* entity : Entities())
      host.documents.Current()->pickFirst.push_back(entity->objectId());
    set.Get(L"I");
  }
};

}  // namespace kerneltest
