// TList: the cursor list as a singly linked ring with a sentinel. A step forward is O(1), a step
// back O(n); TDualPtrList steps back in O(1). Meant for short lists.
#pragma once

#include <new>
#include <utility>

#include "frame/containers/ttable.h"

template <class T>
class TList : public TTable<T> {
 protected:
  using TTable<T>::m_current;
  using TTable<T>::m_length;

 public:
  using Node = TListNode<T>;
  using Compare = typename TTable<T>::Compare;
  using TTable<T>::GetLastIndex;
  using TTable<T>::IsValidIndex;

  TList() : TList(new Node) {}
  ~TList() override {
    if (!m_sentinel) return;
    FreeNodes();
    delete m_sentinel;
  }

  void SetLength(int n) override {
    if (n < 0) n = 0;
    this->Realloc(n);
    while (m_length > n) {
      this->GoLast();
      this->DelCur();
    }
  }
  T* CurValue() override { return &m_node->value; }
  void SetCurValue(const T& v) override { m_node->value = v; }
  void GoTo(int i) override {
    if (!IsValidIndex(i)) return Park();
    if (i == GetLastIndex()) return Stand(m_last, i);
    Stand(WalkTo(i), i);
  }
  void GoFirst() override { m_length ? Stand(m_sentinel->next, 0) : Park(); }
  void GoLast() override { m_length ? Stand(m_last, GetLastIndex()) : Park(); }
  void GoNext() override {
    Node* next = m_node->next;
    next == m_sentinel ? Park() : Stand(next, m_current + 1);
  }
  void GoPrev() override { m_current < 0 ? this->GoLast() : this->GoTo(m_current - 1); }
  T& operator[](int i) override {
    if (i >= m_length) this->Realloc(i + 1);
    this->GoTo(i);
    return *this->CurValue();
  }
  Node* NodeAt(int i) override {
    if (!IsValidIndex(i)) return nullptr;
    return i == GetLastIndex() ? m_last : WalkTo(i);
  }
  Node* FirstNode() override { return m_length ? m_sentinel->next : nullptr; }
  Node* LastNode() override { return m_length ? m_last : nullptr; }
  Node* NextNode(Node* n) override { return !n || n->next == m_sentinel ? nullptr : n->next; }
  Node* PrevNode(Node* n) override {
    if (!n) return nullptr;
    Node* before = Before(n);
    return before == m_sentinel ? nullptr : before;
  }
  void InsertBeforeCur(const T& v) override {
    this->GoPrev();
    this->InsertAfterCur(v);
  }
  void Insert(int i, const T& v) override {
    this->GoTo(i - 1);
    this->InsertAfterCur(v);
  }
  void InsertFirst(const T& v) override {
    this->GoTo(-1);
    this->InsertAfterCur(v);
  }
  int Append(const T& v) override {
    this->GoLast();
    this->InsertAfterCur(v);
    return GetLastIndex();
  }
  void DelCur() override {
    if (m_current < 0) return;
    Node* before = Before(m_node);
    Node* doomed = m_node;
    before->next = doomed->next;
    if (m_last == doomed) m_last = before;
    --m_length;
    Stand(before, m_current - 1);
    delete doomed;
  }
  void Clear() override {
    FreeNodes();
    Reset();
  }
  // `to` is a position before the element is removed: to == from + 1 changes nothing.
  bool Move(int from, int to) override {
    if (!MayMove(from, to)) return false;
    T moved = NodeAt(from)->value;
    this->Insert(to, moved);
    FinishMove(from, to);
    return true;
  }
  void Sort(Compare compare) override {
    SortLinks([compare](const T& a, const T& b) { return compare(&a, &b) >= 1; });
  }
  void Sort(bool ascending) override {
    if constexpr (requires(const T& a, const T& b) { a < b; })
      SortLinks([ascending](const T& a, const T& b) { return ascending ? b < a : a < b; });
  }

 protected:
  void Realloc(int n) override {
    Node* node = m_node;
    int index = m_current;
    while (m_length < n) {
      Stand(m_last, GetLastIndex());
      this->InsertAfterCur(T{});
    }
    Stand(node, index);
  }

 public:
  virtual void InsertAfterCur(const T& v) { LinkAfterCur(new Node{v, nullptr}); }

  // Cuts the ring after the current element. The caller owns the nodes after it, returned as a
  // chain that ends with a null link; null if there were none.
  virtual Node* DetachAfter() {
    Node* chain = m_node->next;
    if (chain == m_sentinel) return nullptr;
    m_last->next = nullptr;
    m_node->next = m_sentinel;
    m_last = m_node;
    m_length = m_current + 1;
    return chain;
  }
  Node* DetachAfter(int i) {
    this->GoTo(i);
    return this->DetachAfter();
  }

  // Moves the elements of another list from index `from` on to the end of this one. This list's
  // cursor keeps its element.
  virtual void Append(TList& other, int from = 0) {
    if (&other == this || !other.IsValidIndex(from)) return;
    Node* chain = other.DetachAfter(from - 1);
    while (chain) {
      this->AppendCopy(std::move(chain->value));
      delete std::exchange(chain, chain->next);
    }
  }

  // The cursor keeps its element.
  virtual void Reverse() {
    if (m_length < 2) return;
    Node* first = m_sentinel->next;
    Node* before = m_sentinel;
    for (Node* n = first; n != m_sentinel;) {
      Node* next = n->next;
      n->next = before;
      before = std::exchange(n, next);
    }
    m_sentinel->next = m_last;
    m_last = first;
    if (m_current >= 0) m_current = GetLastIndex() - m_current;
  }

  // Moves the element at `from` to `to` and rotates all others with it.
  virtual void Rotate(int from, int to) {
    if (!m_length) return;
    int shift = RotationOf(from, to);
    if (shift) {
      Node* newLast = NodeAt(shift - 1);
      m_last->next = m_sentinel->next;
      m_sentinel->next = newLast->next;
      newLast->next = m_sentinel;
      m_last = newLast;
    }
    Stand(m_sentinel->next, 0);
  }

  Node* GetCurPos() const { return m_node; }

 protected:
  // For TDualPtrList, whose sentinel has one link more and which frees it itself.
  explicit TList(Node* sentinel) : m_sentinel(sentinel), m_last(sentinel), m_node(sentinel) {
    m_sentinel->next = m_sentinel;
  }

  void Stand(Node* node, int index) {
    m_node = node;
    m_current = index;
  }
  void Park() { Stand(m_sentinel, -1); }
  void Reset() {
    m_sentinel->next = m_last = m_sentinel;
    m_length = 0;
    Park();
  }
  void LinkAfterCur(Node* node) {
    node->next = m_node->next;
    m_node->next = node;
    if (m_last == m_node) m_last = node;
    ++m_length;
    Stand(node, m_current + 1);
  }
  void AppendCopy(T v) {
    Node* node = m_node;
    int index = m_current;
    this->GoLast();
    this->InsertAfterCur(v);
    Stand(node, index);
  }
  bool MayMove(int from, int to) const {
    return IsValidIndex(from) && to >= 0 && to <= m_length && from != to && from != to - 1;
  }
  void FinishMove(int from, int to) {
    this->Del(from < to ? from : from + 1);
    this->GoTo(from < to ? to - 1 : to);
  }
  int RotationOf(int from, int to) const {
    long long shift = (static_cast<long long>(from) - to) % m_length;
    return static_cast<int>(shift < 0 ? shift + m_length : shift);
  }

  // Insertion sort that searches from the front, because the links go one way.
  template <class OutOfOrder>
  void SortLinks(OutOfOrder out) {
    if (m_length < 2) return;
    Node* before = m_sentinel->next;
    while (before->next != m_sentinel) {
      Node* n = before->next;
      if (!out(before->value, n->value)) {
        before = n;
        continue;
      }
      before->next = n->next;
      Node* place = m_sentinel;
      while (!out(place->next->value, n->value)) place = place->next;
      n->next = place->next;
      place->next = n;
    }
    m_last = before;
    Park();
  }

  Node* m_sentinel;
  Node* m_last;
  Node* m_node;

 private:
  Node* WalkTo(int i) {
    Node* n = m_sentinel->next;
    int at = 0;
    if (m_current >= 0 && m_current <= i) {
      n = m_node;
      at = m_current;
    }
    for (; at < i; ++at) n = n->next;
    return n;
  }
  // The node before n: searched from the cursor on, round the ring if necessary.
  Node* Before(Node* n) {
    Node* p = m_node == n ? m_sentinel : m_node;
    while (p->next != n) p = p->next;
    return p;
  }
  void FreeNodes() {
    for (Node* n = m_sentinel->next; n != m_sentinel;) delete std::exchange(n, n->next);
  }
};
