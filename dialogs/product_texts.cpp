#include "dialogs/product_texts.h"

namespace qvx {

const wchar_t* const kContactAddress = L"support@quivera.example";
const wchar_t* const kChatGroup = L"100000000";

namespace {

CString TextOf(const ProductSection& product, const wchar_t* key, const wchar_t* missing = L"") {
  const wchar_t* value = product.Value(key);
  return value ? value : missing;
}

}  // namespace

AboutTexts LoadAboutTexts(FindFileFunction find) {
  const ProductSection product(find);
  AboutTexts texts;
  TWCString path;
  if (const wchar_t* icon = product.Value(L"IconFile"); icon && find(icon, path))
    texts.iconFile = path;
  texts.group = TextOf(product, L"QQ群", kChatGroup);
  texts.mail = TextOf(product, L"Email", kContactAddress);
  texts.name = TextOf(product, L"About");
  texts.version = TextOf(product, L"NewVersion");
  texts.subVersion = TextOf(product, L"SubVer");
  texts.chineseName = TextOf(product, L"CName");
  texts.englishName = TextOf(product, L"EName");
  return texts;
}

HelpTarget FindHelpFile(FindFileFunction find) {
  const ProductSection product(find);
  if (!product.IsThere()) return {};
  const wchar_t* name = product.Value(L"HelpFile");
  TWCString path;
  if (!name || !find(name, path)) return {false, {}};
  return {true, path};
}

CString LoadContactAddress(FindFileFunction find) {
  return TextOf(ProductSection(find), L"Email", kContactAddress);
}

}  // namespace qvx
