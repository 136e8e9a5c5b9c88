// See screen_menu_host.h.
#include "screenmenu/screen_menu_host.h"

namespace qvx {
namespace {

ScreenMenuHost* s_host = nullptr;

}  // namespace

void SetScreenMenuHost(ScreenMenuHost* host) { s_host = host; }

ScreenMenuHost* TheScreenMenuHost() { return s_host; }

}  // namespace qvx
