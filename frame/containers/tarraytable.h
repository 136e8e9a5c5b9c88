// TArrayTable: the cursor list as an array, for lists of thousands that are read by index. Any
// index is reached at once; inserting and deleting move the later elements. Values that are plain
// bytes are side by side (Values()), others are held by pointer, so that only pointers move.
#pragma once

#include <algorithm>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "frame/containers/ttable.h"

template <class T>
class TArrayTable : public TTable<T> {
  using TTable<T>::m_current;
  using TTable<T>::m_length;
  static constexpr bool kBytes = std::is_trivially_copyable_v<T>;
  using Slot = std::conditional_t<kBytes, T, T*>;

 public:
  using Node = TListNode<T>;
  using Compare = typename TTable<T>::Compare;
  using TTable<T>::GetLastIndex;
  using TTable<T>::IsValidIndex;

  TArrayTable() = default;
  ~TArrayTable() override { FreeFrom(0); }

  void SetLength(int n) override {
    if (n < 0) n = 0;
    this->Realloc(n);
    if (m_length == n) return;
    FreeFrom(n);
    this->GoLast();
  }
  T* CurValue() override {
    m_nodes.clear();
    return m_current < 0 ? &m_before : &Of(m_slots[Place(m_current)]);
  }
  void SetCurValue(const T& v) override { *this->CurValue() = v; }
  void GoTo(int i) override { m_current = IsValidIndex(i) ? i : -1; }
  void GoFirst() override { this->GoTo(0); }
  void GoLast() override { this->GoTo(GetLastIndex()); }
  void GoNext() override { this->GoTo(m_current + 1); }
  void GoPrev() override { this->GoTo(m_current < 0 ? GetLastIndex() : m_current - 1); }
  T& operator[](int i) override {
    if (i >= m_length) this->Realloc(i + 1);
    this->GoTo(i);
    return *this->CurValue();
  }

  // Nodes are copies of the elements, made at the first call and valid until the table is used by
  // another operation than these five: for reading only.
  Node* NodeAt(int i) override { return IsValidIndex(i) ? &Nodes()[Place(i)] : nullptr; }
  Node* FirstNode() override { return NodeAt(0); }
  Node* LastNode() override { return NodeAt(GetLastIndex()); }
  Node* NextNode(Node* n) override { return n ? n->next : nullptr; }
  Node* PrevNode(Node* n) override { return n && n != m_nodes.data() ? n - 1 : nullptr; }

  void InsertBeforeCur(const T& v) override {
    this->GoPrev();
    InsertAfterCur(v);
  }
  void Insert(int i, const T& v) override {
    this->GoTo(i - 1);
    InsertAfterCur(v);
  }
  void InsertFirst(const T& v) override {
    this->GoTo(-1);
    InsertAfterCur(v);
  }
  int Append(const T& v) override {
    this->GoLast();
    InsertAfterCur(v);
    return GetLastIndex();
  }
  void DelCur() override {
    if (m_current < 0) return;
    m_nodes.clear();
    const auto at = m_slots.begin() + m_current--;
    Free(*at);
    m_slots.erase(at);
    --m_length;
  }
  void Clear() override {
    FreeFrom(0);
    m_current = -1;
  }
  // `to` is a position before the element is removed: to == from + 1 changes nothing.
  bool Move(int from, int to) override {
    if (!IsValidIndex(from) || to < 0 || to > m_length || from == to || from == to - 1)
      return false;
    m_nodes.clear();
    const auto first = m_slots.begin();
    if (from < to)
      std::rotate(first + from, first + from + 1, first + to);
    else
      std::rotate(first + to, first + from, first + from + 1);
    this->GoTo(from < to ? to - 1 : to);
    return true;
  }
  void Sort(Compare compare) override {
    SortSlots([compare](const T& a, const T& b) { return compare(&b, &a) >= 1; });
  }
  void Sort(bool ascending) override {
    if constexpr (requires(const T& a, const T& b) { a < b; })
      SortSlots([ascending](const T& a, const T& b) { return ascending ? a < b : b < a; });
  }
  void InsertAfterCur(const T& v) {
    m_nodes.clear();
    m_slots.insert(m_slots.begin() + (m_current + 1), Made(v));
    ++m_length;
    ++m_current;
  }

  // As TTable::Find, without nodes.
  int Find(const T& v, int first = 0, int last = -1) const {
    if (!IsValidIndex(first)) return -1;
    if (last < 0 || last > GetLastIndex()) last = GetLastIndex();
    for (int i = first; i <= last; ++i)
      if (Of(m_slots[Place(i)]) == v) return i;
    return -1;
  }

  // Element i, which must be valid; the cursor stays.
  const T& At(int i) const { return Of(m_slots[Place(i)]); }

  // All elements side by side, until the next change.
  std::span<const T> Values() const requires kBytes { return m_slots; }
  std::span<T> Values() requires kBytes {
    m_nodes.clear();
    return m_slots;
  }

 protected:
  void Realloc(int n) override {
    m_nodes.clear();
    while (m_length < n) {
      m_slots.push_back(Made(T{}));
      ++m_length;
    }
  }

 private:
  static std::size_t Place(int i) { return static_cast<std::size_t>(i); }
  static Slot Made(const T& v) {
    if constexpr (kBytes)
      return v;
    else
      return new T(v);
  }
  static void Free(Slot& slot) {
    if constexpr (!kBytes) delete slot;
  }
  template <class S>
  static auto& Of(S& slot) {
    if constexpr (kBytes)
      return slot;
    else
      return *slot;
  }

  void FreeFrom(int n) {
    m_nodes.clear();
    for (auto slot = m_slots.begin() + n; slot != m_slots.end(); ++slot) Free(*slot);
    m_slots.resize(Place(n));
    m_length = n;
  }
  template <class Before>
  void SortSlots(Before before) {
    m_nodes.clear();
    std::stable_sort(m_slots.begin(), m_slots.end(),
                     [before](const Slot& a, const Slot& b) { return before(Of(a), Of(b)); });
    m_current = -1;
  }
  std::vector<Node>& Nodes() {
    if (m_nodes.size() == m_slots.size()) return m_nodes;
    m_nodes.resize(m_slots.size());
    for (std::size_t i = 0; i < m_slots.size(); ++i) {
      m_nodes[i].value = Of(m_slots[i]);
      m_nodes[i].next = i + 1 < m_slots.size() ? &m_nodes[i + 1] : nullptr;
    }
    return m_nodes;
  }

  std::vector<Slot> m_slots;
  std::vector<Node> m_nodes;  // copies for the node operations; empty when stale
  T m_before{};               // what CurValue returns before the first element
};
