// TDPtrList: a growable array of pointers that may own its elements. TDPtrStack: the same list
// under a name for navigation histories. Holds menu blocks, lines, resources, switches and
// pop-up rows. Reports no errors and checks an index only where the operation says so: call
// Length() first. Not thread-safe.
#pragma once

#include <cstdlib>
#include <cstring>
#include <new>

template <class T>
class TDPtrList {
 public:
  explicit TDPtrList(bool owns = true) : m_owns(owns) {}
  TDPtrList(const TDPtrList&) = delete;
  TDPtrList& operator=(const TDPtrList&) = delete;
  virtual ~TDPtrList() {
    DeleteElements();
    std::free(m_items);
  }

  int Length() const { return m_length; }
  bool IsEmpty() const { return m_length == 0; }
  bool IsValidIndex(int i) const { return i >= 0 && i < m_length; }
  bool OwnsElements() const { return m_owns; }
  void SetOwnsElements(bool owns) { m_owns = owns; }

  // Cached first and last element; null when the list is empty.
  T* First() const { return m_first; }
  T* Last() const { return m_last; }

  int Cursor() const { return m_cursor; }
  void SetCursor(int i) { m_cursor = i; }

  // No bounds check. Moves the cursor to the index, for InsertAtCursor.
  T* operator[](int i) {
    m_cursor = i;
    return m_items[i];
  }
  // The same without moving the cursor.
  T* At(int i) const { return m_items[i]; }
  T* const* begin() const { return m_items; }
  T* const* end() const { return m_items + m_length; }

  // Sets the cursor one past the last element.
  void Append(T* p) {
    if (m_length == m_capacity) Grow(m_length + 1);
    m_items[m_length++] = p;
    m_cursor = m_length;
    RefreshEnds();
  }

  // Inserts p before the element at the cursor and moves the cursor past it; appends
  // if the cursor is invalid.
  void InsertAtCursor(T* p) {
    if (!IsValidIndex(m_cursor)) return Append(p);
    if (m_length == m_capacity) Grow(m_length + 1);
    std::memmove(m_items + m_cursor + 1, m_items + m_cursor,
                 sizeof(T*) * static_cast<size_t>(m_length - m_cursor));
    m_items[m_cursor++] = p;
    ++m_length;
    RefreshEnds();
  }

  // Returns 1 if the element was removed (and deleted, if the list owns
  // it), 0 for an invalid index.
  int Remove(int i) {
    if (!IsValidIndex(i)) return 0;
    T* doomed = Detach(i);
    if (m_owns) delete doomed;
    return 1;
  }

  // Removes the element without deleting it; null for an invalid index.
  T* Detach(int i) {
    if (!IsValidIndex(i)) return nullptr;
    T* taken = m_items[i];
    std::memmove(m_items + i, m_items + i + 1, sizeof(T*) * static_cast<size_t>(m_length - i - 1));
    --m_length;
    m_cursor = i;
    RefreshEnds();
    return taken;
  }

  // Replaces the pointer of a slot; the caller owns the old element.
  T* Exchange(int i, T* p) {
    T* old = m_items[i];
    m_items[i] = p;
    RefreshEnds();
    return old;
  }

  // Removes all elements from index n on, and deletes them if the list owns them.
  void Truncate(int n) {
    while (m_length > n) {
      T* doomed = m_items[--m_length];
      RefreshEnds();
      if (m_owns) delete doomed;
    }
  }

  // Removes the elements from index n on without deleting them.
  void Forget(int n = 0) {
    if (n < 0 || n >= m_length) return;
    m_length = n;
    RefreshEnds();
  }

  void Clear() {
    Truncate(0);
    m_cursor = 0;
  }

  // Reserves memory for n elements, so that appending up to n can't fail.
  void Reserve(int n) {
    if (n > m_capacity) SetCapacity(n);
  }

  // Moves the elements of another list to the end of this one; the other list is empty then.
  void TakeAll(TDPtrList& other) {
    Clear();
    std::free(m_items);
    m_items = other.m_items;
    m_length = other.m_length;
    m_capacity = other.m_capacity;
    m_cursor = m_length;
    other.m_items = nullptr;
    other.m_length = other.m_capacity = other.m_cursor = 0;
    RefreshEnds();
    other.RefreshEnds();
  }

 private:
  void RefreshEnds() {
    m_first = m_length ? m_items[0] : nullptr;
    m_last = m_length ? m_items[m_length - 1] : nullptr;
  }
  void Grow(int atLeast) {
    int wanted = m_capacity < 4 ? 4 : m_capacity + m_capacity / 2;
    SetCapacity(wanted < atLeast ? atLeast : wanted);
  }
  void SetCapacity(int capacity) {
    void* moved = std::realloc(m_items, sizeof(T*) * static_cast<size_t>(capacity));
    if (!moved) throw std::bad_alloc();
    m_items = static_cast<T**>(moved);
    m_capacity = capacity;
  }
  void DeleteElements() {
    if (!m_owns) return;
    for (int i = 0; i < m_length; ++i) delete m_items[i];
  }

  bool m_owns;
  T* m_first = nullptr;
  T* m_last = nullptr;
  T** m_items = nullptr;
  int m_length = 0;
  int m_capacity = 0;
  int m_cursor = 0;
};

template <class T>
class TDPtrStack : public TDPtrList<T> {
 public:
  using TDPtrList<T>::TDPtrList;
};
