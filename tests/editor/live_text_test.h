// What the two commands that edit text require, over the real core of the host: the objects of the
// kernel and the samples, and an in-place editor that keeps what it was to open.
#pragma once

#include "devhost/core/selection/highlight.h"
#include "editor/kernel_fragment.h"
#include "editor/live_text_objects.h"
#include "tests/kernel/pick_fixture.h"

namespace edittest {

class KeptOpening final : public qvx::TextEditOpener {
 public:
  void BeginEdit(std::unique_ptr<qvx::EditFragment> text, const AcGeMatrix3d& toWorld) override {
    fragment = std::move(text);
    matrix = toWorld;
  }
  const qvx::Lifetime& LifeOfDrawings() const override { return *drawings; }

  std::unique_ptr<qvx::EditFragment> fragment;  // null: nothing was opened
  AcGeMatrix3d matrix;
  std::unique_ptr<qvx::Lifetime> drawings = std::make_unique<qvx::Lifetime>();
};

class LiveTextTest : public kerneltest::PickTest {
 protected:
  void TearDown() override {
    opener.fragment.reset();
    PickTest::TearDown();
  }

  // 100 high at the point; its two characters reach 160 to the right.
  QvxDbText* AddText(const AcGePoint3d& at, const wchar_t* text = L"客厅") {
    auto* made = new QvxDbText;
    made->label = text;
    made->width = 100;
    Prepare(made, at, {});
    return made;
  }
  bool IsLit(const AcDbEntity* entity) {
    return devhost::IsHighlighted(*host.documents.Current(), entity->objectId());
  }
  bool IsLocked() { return host.documents.Current()->lockMode() != AcAp::kNotLocked; }

  KeptOpening opener;
};

}  // namespace edittest
