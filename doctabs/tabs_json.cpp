#include "doctabs/tabs_json.h"

#include "ground/json_text.h"

namespace {

std::string JsonOrder(const TabStrip& strip) {
  std::string out = "[";
  for (const int tab : strip.m_order.Values())
    out += (out.size() > 1 ? "," : "") + std::to_string(tab);
  return out + "]";
}

std::string JsonTabs(const TabStrip& strip, int left) {
  std::string out = "[";
  for (int i = 0; i < strip.Count(); ++i) {
    if (i) out += ',';
    out += "{\"text\":" + qvx::JsonString(strip.m_names.At(i).GetString()) +
           ",\"left\":" + std::to_string(left + strip.m_offsets.At(i)) +
           ",\"right\":" + std::to_string(left + strip.m_offsets.At(i + 1)) + "}";
  }
  return out + "]";
}

}  // namespace

std::string TabsToJson(const TabStrip& strip, bool visible, const RECT& screenClient) {
  const int first = strip.Count() ? strip.m_nFirstTab : -1;
  return "{\"mode\":" + std::to_string(strip.m_nShowMode) +
         ",\"visible\":" + qvx::JsonWord(visible) + ",\"rect\":" + qvx::JsonRect(screenClient) +
         ",\"first\":" + std::to_string(first) + ",\"arrows\":" + qvx::JsonWord(strip.m_bScroll) +
         ",\"active\":" + std::to_string(strip.ActiveTab()) + ",\"order\":" + JsonOrder(strip) +
         ",\"tabs\":" + JsonTabs(strip, screenClient.left - strip.Origin()) + "}";
}
