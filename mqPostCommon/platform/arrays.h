/// \file
/// `CArray`, the growable array of the host's framework.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

/// A growable array that owns its elements. As in the framework it is not copied by itself:
/// `Copy` and `Append` say so where it is meant. Indices outside the array are the caller's
/// error, except in `SetAtGrow`, which makes room. An element of the array itself may be handed
/// in wherever an element is taken.
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
      return;
    }
    // Growing moves the elements, `element` perhaps among them.
    TYPE kept = element;
    SetSize(index + 1);
    ElementAt(index) = std::move(kept);
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
    const int count = other.GetSize();
    for (int index = 0; index < count; ++index) {
      m_elements.push_back(other.m_elements[Position(index)]);
    }
    return first;
  }
  /// Replaces the elements by those of `other`.
  void Copy(const CArray& other) { m_elements = other.m_elements; }
  void InsertAt(int index, ARG_TYPE element, int count = 1) {
    m_elements.insert(m_elements.begin() + index, Position(count), element);
  }
  void RemoveAt(int index, int count = 1) {
    m_elements.erase(m_elements.begin() + index, m_elements.begin() + index + count);
  }

 private:
  static std::size_t Position(int index) noexcept { return static_cast<std::size_t>(index); }

  std::vector<TYPE> m_elements;
};
