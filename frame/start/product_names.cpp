#include "frame/start/product_names.h"

#include "ground/product_section.h"

ProductNames ReadProductNames() {
  ProductNames names;
  const qvx::ProductSection product;
  if (!product.IsThere()) return names;
  names.title = product.Value(L"Title");
  names.helpFile = product.Value(L"HelpFile");
  return names;
}
