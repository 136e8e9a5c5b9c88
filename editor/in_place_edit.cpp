#include "editor/in_place_edit.h"

#include <memory>

#include "kernel/tsubtext.h"

namespace {

// The editor is not built: it never shows, and releases what it is given.
class UnbuiltEdit : public InPlaceEdit {
 public:
  bool IsVisible() override { return false; }
  void BeginEdit(TSubText* fragment, const AcGeMatrix3d&) override {
    const std::unique_ptr<TSubText> owned(fragment);
  }
  void EndEdit(bool) override {}
  bool ShowInPlaceMenu(POINT) override { return false; }
  void HideCaret() override {}
  void PostMove() override {}
};

}  // namespace

InPlaceEdit& TheInPlaceEdit() {
  static UnbuiltEdit edit;
  return edit;
}
