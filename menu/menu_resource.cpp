#include "menu/menu_resource.h"

IMPLEMENT_DYNAMIC(TMenuResItem, CObject)

TMenuResItem::TMenuResItem(const wchar_t* name, const wchar_t* image, const wchar_t* image2)
    : m_strName(name), m_strImage(image), m_strImage2(image2) {}
