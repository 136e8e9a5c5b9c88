// A drawing with blocks and a view, and code that runs inside a command, where picks are possible.
#pragma once

#include <functional>
#include <string>

#include "accmd.h"
#include "kernel_objects_fixture.h"

namespace kerneltest {

class PickTest : public ObjectsTest {
 protected:
  void SetUp() override {
    ObjectsTest::SetUp();
    AcEdCommandStack::cast(acrxSysRegistry()->at(ACRX_CMDS))
        ->addCommand(L"TEST", L"RUNBODY", L"RUNBODY", ACRX_CMD_MODAL, [] { Running()(); });
    ShowPlan();
  }
  void TearDown() override {
    AcEdCommandStack::cast(acrxSysRegistry()->at(ACRX_CMDS))->removeGroup(L"TEST");
    ObjectsTest::TearDown();
  }

  // A unit is a tenth of a pixel; a pick reaches 60 units.
  void ShowPlan(double height = 10000) {
    host.documents.Current()->view.Resize(1000, 1000);
    host.documents.Current()->view.ShowAt(5000, 5000, height);
  }

  // Inside a command; the input follows the command.
  void Run(const std::wstring& input, std::function<void()> body) {
    bool ran = false;
    Running() = [&] {
      ran = true;
      body();
    };
    Send(L"RUNBODY\n" + input);
    EXPECT_TRUE(ran);
  }

  // A text of 100 at 100,0 of its block.
  static AcDbText* TextIn(AcDbBlockTableRecord* block, const wchar_t* text = L"图") {
    auto* made = new AcDbText({100, 0, 0}, text, 100);
    block->appendAcDbEntity(made);
    return made;
  }
  // In the current space when `into` is null.
  AcDbBlockReference* Insert(AcDbBlockTableRecord* into, AcDbBlockTableRecord* block,
                             const AcGePoint3d& at, double turn = 0, double scale = 1) {
    auto* reference = new AcDbBlockReference(at, block->objectId());
    if (into)
      into->appendAcDbEntity(reference);
    else
      Append(reference);
    AcGeMatrix3d placed = AcGeMatrix3d::insertion(at, turn, scale, scale, at);
    reference->transformBy(placed);
    return reference;
  }

 private:
  static std::function<void()>& Running() {
    static std::function<void()> body;
    return body;
  }
};

}  // namespace kerneltest
