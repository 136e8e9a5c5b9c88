// The collections of strings, pointers, objects and numbers: instances of the
// templates in afxtempl.h.
#pragma once

#include "afxtempl.h"

class CStringArray : public CArray<CString, LPCTSTR> {};
class CPtrArray : public CArray<void*, void*> {};
class CObArray : public CArray<CObject*, CObject*> {};
class CByteArray : public CArray<BYTE, BYTE> {};
class CWordArray : public CArray<WORD, WORD> {};
class CDWordArray : public CArray<DWORD, DWORD> {};
class CUIntArray : public CArray<UINT, UINT> {};

class CStringList : public CList<CString, LPCTSTR> {};
class CPtrList : public CList<void*, void*> {};
class CObList : public CList<CObject*, CObject*> {};

class CMapPtrToPtr : public CMap<void*, void*, void*, void*> {
 public:
  explicit CMapPtrToPtr(INT_PTR nBlockSize = 10) : CMap(nBlockSize) {}
};
class CMapWordToPtr : public CMap<WORD, WORD, void*, void*> {};
class CMapStringToPtr : public CMap<CString, LPCTSTR, void*, void*> {};
class CMapStringToOb : public CMap<CString, LPCTSTR, CObject*, CObject*> {};
class CMapStringToString : public CMap<CString, LPCTSTR, CString, LPCTSTR> {};
