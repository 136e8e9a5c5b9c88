// The names that the start reads from the product file.
#pragma once

#include "kernel/twcstring.h"

struct ProductNames {
  TWCString title, helpFile;
};
ProductNames ReadProductNames();  // both empty without a product file
