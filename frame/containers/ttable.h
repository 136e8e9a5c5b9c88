// TTable: the abstract base of the lists with a built-in cursor. It fixes the operations and their
// order; TList and TDualPtrList implement them. An invalid index is no error: the cursor is then
// before the first element, the current index is -1 and CurValue() returns the sentinel's value.
#pragma once

#include <cstddef>
#include <new>

// `delete` on a plain node pointer frees a node of every derived list, the larger ones of
// TDualPtrList too: the owner of a detached node does not depend on its list.
template <class T>
struct TListNode {
  T value{};  // first member: a node pointer is also a pointer to its value
  TListNode* next = nullptr;

  static void* operator new(std::size_t size) { return ::operator new(size); }
  // Called when construction throws.
  static void operator delete(void* node) { ::operator delete(node); }
  static void operator delete(TListNode* node, std::destroying_delete_t) {
    node->~TListNode();
    ::operator delete(node);
  }
};

template <class T>
class TTable {
 public:
  using Node = TListNode<T>;
  // 1 or more: the two elements are out of order.
  using Compare = int (*)(const T*, const T*);

  TTable() = default;
  TTable(const TTable&) = delete;
  TTable& operator=(const TTable&) = delete;

  virtual ~TTable() = default;
  virtual void SetLength(int n) = 0;
  virtual T* CurValue() = 0;
  virtual void SetCurValue(const T& v) = 0;
  virtual void GoTo(int i) = 0;
  virtual void GoFirst() = 0;
  virtual void GoLast() = 0;
  virtual void GoNext() = 0;
  virtual void GoPrev() = 0;
  virtual T& operator[](int i) = 0;
  virtual Node* NodeAt(int i) = 0;
  virtual Node* FirstNode() = 0;
  virtual Node* LastNode() = 0;
  virtual Node* NextNode(Node* n) = 0;
  virtual Node* PrevNode(Node* n) = 0;
  virtual void InsertBeforeCur(const T& v) = 0;
  virtual void Insert(int i, const T& v) = 0;
  virtual void InsertFirst(const T& v) = 0;
  virtual int Append(const T& v) = 0;
  virtual void DelCur() = 0;
  virtual void Clear() = 0;
  virtual bool Move(int from, int to) = 0;
  virtual void Sort(Compare compare) = 0;
  virtual void Sort(bool ascending) = 0;

  int GetLength() const { return m_length; }
  int GetLastIndex() const { return m_length - 1; }
  int GetCur() const { return m_current; }
  bool IsBegin() const { return m_current < 0; }
  bool IsEmpty() const { return m_length == 0; }
  bool IsValidIndex(int i) const { return i >= 0 && i < m_length; }

  void Del(int i) {
    GoTo(i);
    DelCur();
  }

  // Index of the first element equal to v between first and last inclusive, or -1. A last that is
  // negative or too large means the last element; for an invalid first the result is -1.
  int Find(const T& v, int first = 0, int last = -1) {
    if (!IsValidIndex(first)) return -1;
    if (last < 0 || last > GetLastIndex()) last = GetLastIndex();
    Node* n = NodeAt(first);
    for (int i = first; i <= last; ++i, n = NextNode(n))
      if (n->value == v) return i;
    return -1;
  }

 protected:
  virtual void Realloc(int n) = 0;

  int m_current = -1;
  int m_length = 0;
};
