#include "dialogs/product_texts.h"

#include "kernel/qvxexport.h"

namespace qvx {

const wchar_t* const kContactAddress = L"support@quivera.example";
const wchar_t* const kChatGroup = L"100000000";

namespace {

// The section of the product file for as long as this lives.
class ProductSection {
 public:
  explicit ProductSection(FindFileFunction find) {
    wchar_t path[QvxExport::kPathUnits];
    if (find(L"qvx.ini", path)) QvxExport::GetIniFileToIniBufer(path, L"Product", &m_buffer);
  }
  ~ProductSection() { QvxExport::FreeIniBuffer(m_buffer); }
  ProductSection(const ProductSection&) = delete;
  ProductSection& operator=(const ProductSection&) = delete;

  bool IsThere() const { return m_buffer != nullptr; }
  const wchar_t* Value(const wchar_t* key) const {
    return QvxExport::GetIniBuferValueByKey(m_buffer, key);
  }
  CString Text(const wchar_t* key, const wchar_t* missing = L"") const {
    const wchar_t* value = Value(key);
    return value ? value : missing;
  }

 private:
  void* m_buffer = nullptr;
};

}  // namespace

AboutTexts LoadAboutTexts(FindFileFunction find) {
  const ProductSection product(find);
  AboutTexts texts;
  wchar_t path[QvxExport::kPathUnits];
  if (const wchar_t* icon = product.Value(L"IconFile"); icon && find(icon, path))
    texts.iconFile = path;
  texts.group = product.Text(L"QQ群", kChatGroup);
  texts.mail = product.Text(L"Email", kContactAddress);
  texts.name = product.Text(L"About");
  texts.version = product.Text(L"NewVersion");
  texts.subVersion = product.Text(L"SubVer");
  texts.chineseName = product.Text(L"CName");
  texts.englishName = product.Text(L"EName");
  return texts;
}

HelpTarget FindHelpFile(FindFileFunction find) {
  const ProductSection product(find);
  if (!product.IsThere()) return {};
  const wchar_t* name = product.Value(L"HelpFile");
  wchar_t path[QvxExport::kPathUnits];
  if (!name || !find(name, path)) return {false, {}};
  return {true, path};
}

CString LoadContactAddress(FindFileFunction find) {
  return ProductSection(find).Text(L"Email", kContactAddress);
}

}  // namespace qvx
