/// \file
/// `CArray`, the growable array of the host's framework.
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

/// A growable array that owns its elements. As in the framework it is not copied by itself:
/// `Copy` and `Append` say so where it is meant. Indices outside the array are the caller's
/// error, except in `SetAtGrow`, which makes room. An element of the array itself may be handed
/// in wherever an element is taken.
///
/// When memory runs out a function throws `std::bad_alloc` and the array is as it was; `SetAt`
/// leaves of an element what its assignment does. Removing elements that move without a throw takes
/// no memory.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray {
  static_assert(!std::is_same_v<TYPE, bool>, "packed bits have no address: use int");

 public:
  CArray() = default;
  CArray(const CArray&) = delete;
  CArray& operator=(const CArray&) = delete;
  CArray(CArray&&) noexcept = default;
  CArray& operator=(CArray&&) noexcept = default;
  ~CArray() = default;

  [[nodiscard]] int GetSize() const noexcept { return static_cast<int>(m_elements.size()); }
  [[nodiscard]] int GetCount() const noexcept { return GetSize(); }
  [[nodiscard]] bool IsEmpty() const noexcept { return m_elements.empty(); }
  /// The last valid index; -1 for an empty array.
  [[nodiscard]] int GetUpperBound() const noexcept { return GetSize() - 1; }

  /// Makes the array `size` elements long; new elements have the value of `TYPE()`. The growth
  /// step is accepted for the framework's sake and has no effect.
  void SetSize(int size, int /*growBy*/ = -1) { m_elements.resize(Position(size)); }
  void RemoveAll() noexcept { m_elements.clear(); }
  void FreeExtra() { m_elements.shrink_to_fit(); }

  [[nodiscard]] const TYPE& GetAt(int index) const { return m_elements[Position(index)]; }
  [[nodiscard]] TYPE& ElementAt(int index) { return m_elements[Position(index)]; }
  void SetAt(int index, ARG_TYPE element) { m_elements[Position(index)] = element; }
  void SetAtGrow(int index, ARG_TYPE element) {
    if (index < GetSize()) {
      SetAt(index, element);
    } else if (index == GetSize()) {
      Add(element);
    } else {
      std::vector<TYPE> added(Position(index - GetSize() + 1));
      added.back() = element;
      AddAll(std::move(added));
    }
  }

  /// The elements in one block, or null for an empty array; valid until the array changes.
  [[nodiscard]] TYPE* GetData() noexcept { return IsEmpty() ? nullptr : m_elements.data(); }
  [[nodiscard]] const TYPE* GetData() const noexcept {
    return IsEmpty() ? nullptr : m_elements.data();
  }

  [[nodiscard]] const TYPE& operator[](int index) const { return GetAt(index); }
  [[nodiscard]] TYPE& operator[](int index) { return ElementAt(index); }

  /// Appends an element and returns its index.
  int Add(ARG_TYPE element) {
    m_elements.push_back(element);
    return GetUpperBound();
  }
  /// Appends every element of `other`, which may be this array; returns the index of the first.
  int Append(const CArray& other) {
    const int first = GetSize();
    AddAll(other.m_elements);
    return first;
  }
  /// Replaces the elements by copies of those of `other`.
  void Copy(const CArray& other) { m_elements = std::vector<TYPE>(other.m_elements); }
  void InsertAt(int index, ARG_TYPE element, int count = 1) {
    std::vector<TYPE> inserted(Position(count), element);
    std::vector<TYPE> result;
    result.reserve(m_elements.size() + inserted.size());
    Relocate(m_elements, 0, Position(index), result);
    Relocate(inserted, 0, inserted.size(), result);
    Relocate(m_elements, Position(index), m_elements.size(), result);
    m_elements = std::move(result);
  }
  void RemoveAt(int index, int count = 1) {
    const std::size_t gap = Position(count);
    if constexpr (std::is_nothrow_move_constructible_v<TYPE>) {
      for (std::size_t from = Position(index) + gap; gap > 0 && from < m_elements.size(); ++from) {
        TYPE* const place = &m_elements[from - gap];
        std::destroy_at(place);
        std::construct_at(place, std::move(m_elements[from]));
      }
      m_elements.erase(m_elements.end() - count, m_elements.end());
    } else {
      std::vector<TYPE> result;
      result.reserve(m_elements.size() - gap);
      Relocate(m_elements, 0, Position(index), result);
      Relocate(m_elements, Position(index) + gap, m_elements.size(), result);
      m_elements = std::move(result);
    }
  }
  /// Puts the element of index `order[i]` at index i; `order` names every index once.
  void Reorder(std::span<const int> order) {
    std::vector<TYPE> result;
    result.reserve(m_elements.size());
    for (const int index : order) {
      result.push_back(std::move_if_noexcept(ElementAt(index)));
    }
    m_elements = std::move(result);
  }

 private:
  static std::size_t Position(int index) noexcept { return static_cast<std::size_t>(index); }

  /// Elements move to another place as the framework moves them: nothing is assigned. Those whose
  /// move may fail are copied, and stay in their old place until all have arrived.
  static void Relocate(std::vector<TYPE>& elements, std::size_t first, std::size_t last,
                       std::vector<TYPE>& result) {
    for (; first < last; ++first) {
      result.push_back(std::move_if_noexcept(elements[first]));
    }
  }
  /// Appends elements that are made already, so that none is left half-way.
  void AddAll(std::vector<TYPE> elements) {
    m_elements.insert(m_elements.end(), std::make_move_iterator(elements.begin()),
                      std::make_move_iterator(elements.end()));
  }

  std::vector<TYPE> m_elements;
};
