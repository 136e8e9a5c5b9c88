// CArray, CList and CMap. The elements are values; an invalid index or position throws
// CInvalidArgException. Not offered: archives of whole collections.
#pragma once

#include <type_traits>
#include <unordered_map>
#include <utility>

#include "afx.h"

struct __POSITION;
using POSITION = __POSITION*;
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))

template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject {
  static_assert(!std::is_same_v<TYPE, bool>, "elements are addressable: use BOOL");

 public:
  CArray() = default;

  INT_PTR GetSize() const { return static_cast<INT_PTR>(m_items.size()); }
  INT_PTR GetCount() const { return GetSize(); }
  BOOL IsEmpty() const { return m_items.empty(); }
  INT_PTR GetUpperBound() const { return GetSize() - 1; }
  void SetSize(INT_PTR size, INT_PTR growBy = -1) {
    (void)growBy;
    if (size < 0) AfxThrowInvalidArgException();
    m_items.resize(static_cast<std::size_t>(size));
  }
  void FreeExtra() { m_items.shrink_to_fit(); }
  void RemoveAll() { m_items.clear(); }

  const TYPE& GetAt(INT_PTR index) const { return m_items[Checked(index)]; }
  TYPE& GetAt(INT_PTR index) { return m_items[Checked(index)]; }
  void SetAt(INT_PTR index, ARG_TYPE item) { m_items[Checked(index)] = item; }
  TYPE& ElementAt(INT_PTR index) { return m_items[Checked(index)]; }
  const TYPE& ElementAt(INT_PTR index) const { return m_items[Checked(index)]; }
  const TYPE& operator[](INT_PTR index) const { return m_items[Checked(index)]; }
  TYPE& operator[](INT_PTR index) { return m_items[Checked(index)]; }
  const TYPE* GetData() const { return m_items.data(); }
  TYPE* GetData() { return m_items.data(); }

  void SetAtGrow(INT_PTR index, ARG_TYPE item) {
    if (index < 0) AfxThrowInvalidArgException();
    TYPE copy = TYPE(item);  // `item` may be in this array, which is reallocated
    if (index >= GetSize()) SetSize(index + 1);
    m_items[static_cast<std::size_t>(index)] = std::move(copy);
  }
  INT_PTR Add(ARG_TYPE item) {
    m_items.push_back(TYPE(item));
    return GetSize() - 1;
  }
  INT_PTR Append(const CArray& other) {
    const INT_PTR first = GetSize();
    const std::vector<TYPE> copy = other.m_items;
    m_items.insert(m_items.end(), copy.begin(), copy.end());
    return first;
  }
  void Copy(const CArray& other) { m_items = other.m_items; }
  void InsertAt(INT_PTR index, ARG_TYPE item, INT_PTR count = 1) {
    if (index < 0 || count < 0) AfxThrowInvalidArgException();
    const TYPE copy = TYPE(item);
    if (index > GetSize()) SetSize(index);
    m_items.insert(m_items.begin() + index, static_cast<std::size_t>(count), copy);
  }
  void RemoveAt(INT_PTR index, INT_PTR count = 1) {
    if (index < 0 || count < 0 || index > GetSize() || count > GetSize() - index)
      AfxThrowInvalidArgException();
    m_items.erase(m_items.begin() + index, m_items.begin() + index + count);
  }

 private:
  std::size_t Checked(INT_PTR index) const {
    if (index < 0 || index >= GetSize()) AfxThrowInvalidArgException();
    return static_cast<std::size_t>(index);
  }
  std::vector<TYPE> m_items;
};

template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject {
  struct CNode {
    CNode* previous;
    CNode* next;
    TYPE data;
  };

 public:
  explicit CList(INT_PTR blockSize = 10) { (void)blockSize; }
  ~CList() override { RemoveAll(); }

  INT_PTR GetCount() const { return m_count; }
  INT_PTR GetSize() const { return m_count; }
  BOOL IsEmpty() const { return m_count == 0; }

  TYPE& GetHead() { return Checked(m_head)->data; }
  const TYPE& GetHead() const { return Checked(m_head)->data; }
  TYPE& GetTail() { return Checked(m_tail)->data; }
  const TYPE& GetTail() const { return Checked(m_tail)->data; }
  POSITION GetHeadPosition() const { return Position(m_head); }
  POSITION GetTailPosition() const { return Position(m_tail); }
  // Returns the element at the position and advances the position; null after the last.
  TYPE& GetNext(POSITION& at) { return Step(at, &CNode::next)->data; }
  const TYPE& GetNext(POSITION& at) const { return Step(at, &CNode::next)->data; }
  TYPE& GetPrev(POSITION& at) { return Step(at, &CNode::previous)->data; }
  const TYPE& GetPrev(POSITION& at) const { return Step(at, &CNode::previous)->data; }
  TYPE& GetAt(POSITION at) { return Checked(Node(at))->data; }
  const TYPE& GetAt(POSITION at) const { return Checked(Node(at))->data; }
  void SetAt(POSITION at, ARG_TYPE item) { Checked(Node(at))->data = item; }

  POSITION AddHead(ARG_TYPE item) { return Link(nullptr, m_head, item); }
  POSITION AddTail(ARG_TYPE item) { return Link(m_tail, nullptr, item); }
  POSITION InsertBefore(POSITION at, ARG_TYPE item) {
    return at ? Link(Node(at)->previous, Node(at), item) : AddHead(item);
  }
  POSITION InsertAfter(POSITION at, ARG_TYPE item) {
    return at ? Link(Node(at), Node(at)->next, item) : AddTail(item);
  }
  TYPE RemoveHead() { return Take(Checked(m_head)); }
  TYPE RemoveTail() { return Take(Checked(m_tail)); }
  void RemoveAt(POSITION at) { Take(Checked(Node(at))); }
  void RemoveAll() {
    while (m_head) Take(m_head);
  }

  POSITION Find(ARG_TYPE item, POSITION startAfter = nullptr) const {
    for (CNode* node = startAfter ? Node(startAfter)->next : m_head; node; node = node->next)
      if (node->data == item) return Position(node);
    return nullptr;
  }
  POSITION FindIndex(INT_PTR index) const {
    if (index < 0 || index >= m_count) return nullptr;
    CNode* node = m_head;
    while (index-- > 0) node = node->next;
    return Position(node);
  }

 private:
  static CNode* Node(POSITION at) { return reinterpret_cast<CNode*>(at); }
  static POSITION Position(CNode* node) { return reinterpret_cast<POSITION>(node); }
  static CNode* Checked(CNode* node) {
    if (!node) AfxThrowInvalidArgException();
    return node;
  }
  static CNode* Step(POSITION& at, CNode* CNode::*way) {
    CNode* node = Checked(Node(at));
    at = Position(node->*way);
    return node;
  }
  POSITION Link(CNode* previous, CNode* next, ARG_TYPE item) {
    CNode* node = new CNode{previous, next, TYPE(item)};
    (previous ? previous->next : m_head) = node;
    (next ? next->previous : m_tail) = node;
    ++m_count;
    return Position(node);
  }
  TYPE Take(CNode* node) {
    (node->previous ? node->previous->next : m_head) = node->next;
    (node->next ? node->next->previous : m_tail) = node->previous;
    --m_count;
    TYPE data = std::move(node->data);
    delete node;
    return data;
  }

  CNode* m_head = nullptr;
  CNode* m_tail = nullptr;
  INT_PTR m_count = 0;
};

// Hash and comparison of keys; a module may specialise both for its own key type.
template <class ARG_KEY>
UINT HashKey(ARG_KEY key) {
  return static_cast<UINT>(std::hash<std::remove_cvref_t<ARG_KEY>>{}(key));
}
template <>
inline UINT HashKey<const CString&>(const CString& key) {
  return static_cast<UINT>(
      std::hash<std::wstring_view>{}({key.GetString(), static_cast<std::size_t>(key.GetLength())}));
}
template <>
inline UINT HashKey<LPCTSTR>(LPCTSTR key) {
  return static_cast<UINT>(std::hash<std::wstring_view>{}(key));
}
template <class TYPE, class ARG_TYPE>
BOOL CompareElements(const TYPE* a, const ARG_TYPE* b) {
  return *a == *b;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject {
 public:
  struct CPair {
    const KEY key;
    VALUE value;
  };

  explicit CMap(INT_PTR blockSize = 10) { (void)blockSize; }
  ~CMap() override { RemoveAll(); }

  INT_PTR GetCount() const { return m_count; }
  INT_PTR GetSize() const { return m_count; }
  BOOL IsEmpty() const { return m_count == 0; }
  void InitHashTable(UINT size, BOOL allocateNow = TRUE) {
    (void)allocateNow;
    m_index.reserve(size);
  }

  BOOL Lookup(ARG_KEY key, VALUE& value) const {
    const CAssoc* found = Find(key);
    if (found) value = found->pair.value;
    return found != nullptr;
  }
  CPair* PLookup(ARG_KEY key) {
    CAssoc* found = Find(key);
    return found ? &found->pair : nullptr;
  }
  VALUE& operator[](ARG_KEY key) {
    if (CAssoc* found = Find(key)) return found->pair.value;
    return Add(key)->pair.value;
  }
  void SetAt(ARG_KEY key, ARG_VALUE value) { (*this)[key] = value; }
  BOOL RemoveKey(ARG_KEY key) {
    CAssoc* found = Find(key);
    if (found) Unlink(HashKey<ARG_KEY>(key), found);
    return found != nullptr;
  }
  void RemoveAll() {
    while (m_head) {
      CAssoc* next = m_head->next;
      delete m_head;
      m_head = next;
    }
    m_tail = nullptr;
    m_count = 0;
    m_index.clear();
  }

  // In insertion order.
  POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(m_head); }
  void GetNextAssoc(POSITION& at, KEY& key, VALUE& value) const {
    CAssoc* assoc = reinterpret_cast<CAssoc*>(at);
    if (!assoc) AfxThrowInvalidArgException();
    key = assoc->pair.key;
    value = assoc->pair.value;
    at = reinterpret_cast<POSITION>(assoc->next);
  }

 private:
  struct CAssoc {
    CAssoc* previous;
    CAssoc* next;
    CPair pair;
  };

  CAssoc* Find(ARG_KEY key) const {
    const auto range = m_index.equal_range(HashKey<ARG_KEY>(key));
    for (auto at = range.first; at != range.second; ++at)
      if (at->second->pair.key == key) return at->second;
    return nullptr;
  }
  CAssoc* Add(ARG_KEY key) {
    CAssoc* assoc = new CAssoc{m_tail, nullptr, {KEY(key), VALUE()}};
    (m_tail ? m_tail->next : m_head) = assoc;
    m_tail = assoc;
    ++m_count;
    m_index.emplace(HashKey<ARG_KEY>(key), assoc);
    return assoc;
  }
  void Unlink(UINT hash, CAssoc* assoc) {
    const auto range = m_index.equal_range(hash);
    for (auto at = range.first; at != range.second; ++at)
      if (at->second == assoc) {
        m_index.erase(at);
        break;
      }
    (assoc->previous ? assoc->previous->next : m_head) = assoc->next;
    (assoc->next ? assoc->next->previous : m_tail) = assoc->previous;
    --m_count;
    delete assoc;
  }

  std::unordered_multimap<UINT, CAssoc*> m_index;
  CAssoc* m_head = nullptr;
  CAssoc* m_tail = nullptr;
  INT_PTR m_count = 0;
};
