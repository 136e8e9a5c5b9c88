#include "kernel/logical_layers.h"

#include <memory>

#include "kernel/qvxexport.h"

namespace {

struct StandardLayer {
  const wchar_t *key, *name;
};

constexpr StandardLayer kStandard[] = {
    {L"DOTE", L"DOTE"},           {L"AXIS", L"AXIS"},
    {L"WALL", L"WALL"},           {L"WINDOW", L"WINDOW"},
    {L"DOOR", L"WINDOW"},         {L"COLUMN", L"COLUMN"},
    {L"SPACE", L"SPACE"},         {L"DIM", L"DIM"},
    {L"DIM_SYMB", L"DIM"},        {L"TEXT", L"TEXT"},
    {L"ELEV", L"ELEV"},           {L"SYMB", L"SYMB"},
    {L"STAIR", L"STAIR"},         {L"BALCONY", L"BALCONY"},
    {L"FURNITURE", L"FURNITURE"}, {L"PUB_TITLE", L"PUB_TITLE"},
    {L"PUB_WINDW", L"PUB_WINDW"},
};

class LayerFile {
 public:
  LayerFile() {
    wchar_t path[QvxExport::kPathUnits];
    if (QvxExport::FindFile(L"qvx.ini", path))
      QvxExport::GetIniFileToIniBufer(path, L"Layers", &m_buffer);
  }
  ~LayerFile() { QvxExport::FreeIniBuffer(m_buffer); }
  LayerFile(const LayerFile&) = delete;
  LayerFile& operator=(const LayerFile&) = delete;
  const wchar_t* Value(const wchar_t* key) const {
    return m_buffer ? QvxExport::GetIniBuferValueByKey(m_buffer, key) : nullptr;
  }

 private:
  void* m_buffer = nullptr;
};

std::unique_ptr<LayerFile> g_file;  // read by the first GetLayer

}  // namespace

bool GetLayer(const wchar_t* key, TWCString& out) {
  if (!key || !*key) return false;
  if (!g_file) g_file = std::make_unique<LayerFile>();
  if (const wchar_t* name = g_file->Value(key); name && *name) {
    out = name;
    return true;
  }
  const TWCString wanted(key);
  for (const StandardLayer& layer : kStandard) {
    if (!wanted.EqualsNoCase(layer.key)) continue;
    out = layer.name;
    return true;
  }
  return false;
}

void ForgetLogicalLayers() { g_file.reset(); }
