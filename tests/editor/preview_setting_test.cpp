// Whether the preview is allowed, over the real core of the host: the setting of the drawing, the
// host's own preview, and the user's setting.
#include <gtest/gtest.h>

#include "editor/editor_door.h"
#include "editor/preview_allowed.h"
#include "kernel/current_drawing.h"
#include "kernel/globals.h"
#include "kernel/tdbconfig.h"
#include "tests/hostcore/host_fixture.h"

namespace {

class PreviewSetting : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    BeginCurrentDrawing();
    NewDrawing();
    g_dHostVersion = 16.1;
    g_bEnableSelectPreview = 1;
  }
  void TearDown() override {
    EXPECT_EQ(TDbConfig::OpenCount(), 0) << "closed as often as opened";
    g_dHostVersion = 24.0;
    g_bEnableSelectPreview = 1;
    EndCurrentDrawing();
    HostTest::TearDown();
  }

  static void TurnOff() {
    AcApDocument* document = acDocManager->curDocument();
    ASSERT_EQ(acDocManager->lockDocument(document, AcAp::kWrite), Acad::eOk);
    qvx::TurnPreviewOffInDrawing();
    acDocManager->unlockDocument(document);
  }
  static int Flags() {
    TDbConfig* config = GetDwgGlobal(AcDb::kForRead, QvxGeLib::g_pCurrentDb);
    const int flags = config ? config->Flags() : -1;
    if (config) config->close();
    return flags;
  }
};

TEST_F(PreviewSetting, TurningItOffIsOfThisDrawingAlone) {
  EXPECT_FALSE(qvx::IsPreviewOffInDrawing());
  EXPECT_TRUE(IsPreviewAllowed());
  AcApDocument* first = acDocManager->curDocument();
  TurnOff();
  EXPECT_TRUE(qvx::IsPreviewOffInDrawing());
  EXPECT_FALSE(IsPreviewAllowed());
  NewDrawing();
  EXPECT_FALSE(qvx::IsPreviewOffInDrawing());
  EXPECT_TRUE(IsPreviewAllowed());
  acDocManager->activateDocument(first);
  EXPECT_FALSE(IsPreviewAllowed());
}

TEST_F(PreviewSetting, TurningItOffKeepsTheOtherFlags) {
  AcApDocument* document = acDocManager->curDocument();
  acDocManager->lockDocument(document, AcAp::kWrite);
  TDbConfig* config = GetDwgGlobal(AcDb::kForWrite, QvxGeLib::g_pCurrentDb);
  ASSERT_NE(config, nullptr);
  config->SetFlags(TDbConfig::kModelNumbers);
  config->close();
  acDocManager->unlockDocument(document);
  EXPECT_FALSE(qvx::IsPreviewOffInDrawing());
  TurnOff();
  EXPECT_EQ(Flags(), TDbConfig::kModelNumbers | TDbConfig::kPreviewOff);
  TurnOff();
  EXPECT_EQ(Flags(), TDbConfig::kModelNumbers | TDbConfig::kPreviewOff) << "a second time";
}

TEST_F(PreviewSetting, WithoutADrawingNothingIsOff) {
  acDocManager->closeDocument(acDocManager->curDocument());
  EXPECT_FALSE(qvx::IsPreviewOffInDrawing());
  qvx::TurnPreviewOffInDrawing();
  EXPECT_TRUE(IsPreviewAllowed());
}

TEST_F(PreviewSetting, OfLaterHostsTheVariableDecides) {
  TurnOff();
  for (const double release : {16.11, 24.0}) {
    g_dHostVersion = release;
    for (const auto& [value, isAllowed] :
         {std::pair(L"0", false), {L"1", true}, {L"2", false}, {L"3", true}}) {
      host.variables.Set(L"SELECTIONPREVIEW", value);
      EXPECT_EQ(IsPreviewAllowed(), isAllowed) << release;
    }
  }
}

TEST_F(PreviewSetting, TheUsersSettingTurnsItOffInEveryHost) {
  host.variables.Set(L"SELECTIONPREVIEW", L"3");
  g_bEnableSelectPreview = 0;
  EXPECT_FALSE(IsPreviewAllowed());
  g_dHostVersion = 24.0;
  EXPECT_FALSE(IsPreviewAllowed());
}

}  // namespace
