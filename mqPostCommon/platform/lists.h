/// \file
/// The doubly linked lists of the host's framework: `CObList` with its typed pointer list, and
/// `CStringList`. Elements are reached through a `POSITION`, which stays valid until its element
/// is removed.
#pragma once

#include <memory>
#include <ranges>
#include <utility>

#include <mqPostCommon/platform/wide_string.h>

struct __POSITION;  // NOLINT(bugprone-reserved-identifier): the framework's name
/// The place of an element in a list; null behind the last one.
using POSITION = __POSITION*;

/// The base of everything that a `CObList` can hold.
class CObject {
 public:
  virtual ~CObject() = default;

 protected:
  CObject() = default;
  CObject(const CObject&) = default;
  CObject& operator=(const CObject&) = default;
};

namespace mqp {

/// A doubly linked list of values. It owns its nodes, for which it takes memory ten by ten and
/// gives it back when it becomes empty; what the values point to is the caller's. As in the
/// framework it is not copied by itself; a list that is moved takes its nodes and their positions
/// along and leaves an empty one. Positions handed in must come from this list and not be null
/// unless said otherwise; an empty list has no head and no tail to return or remove.
///
/// An element that is added takes memory: when there is none the function throws `std::bad_alloc`
/// and the list is as it was.
template <class Value>
class LinkedList {
 public:
  /// \param blockSize has no effect
  explicit LinkedList(int /*blockSize*/ = 10) {}
  LinkedList(const LinkedList&) = delete;
  LinkedList& operator=(const LinkedList&) = delete;
  LinkedList(LinkedList&& other) noexcept { Swap(other); }
  LinkedList& operator=(LinkedList&& other) noexcept {
    LinkedList taken(std::move(other));
    Swap(taken);
    return *this;
  }
  ~LinkedList() { RemoveAll(); }

  [[nodiscard]] int GetCount() const noexcept { return m_count; }
  [[nodiscard]] int GetSize() const noexcept { return m_count; }
  [[nodiscard]] bool IsEmpty() const noexcept { return m_count == 0; }

  [[nodiscard]] POSITION GetHeadPosition() const noexcept { return ToPosition(m_head); }
  [[nodiscard]] POSITION GetTailPosition() const noexcept { return ToPosition(m_tail); }
  [[nodiscard]] Value& GetHead() { return m_head->value; }
  [[nodiscard]] const Value& GetHead() const { return m_head->value; }
  [[nodiscard]] Value& GetTail() { return m_tail->value; }
  [[nodiscard]] const Value& GetTail() const { return m_tail->value; }

  [[nodiscard]] Value& GetAt(POSITION position) { return ToNode(position)->value; }
  [[nodiscard]] const Value& GetAt(POSITION position) const { return ToNode(position)->value; }
  void SetAt(POSITION position, const Value& value) { ToNode(position)->value = value; }

  /// Returns the element at `position` and moves `position` to the one behind it.
  Value& GetNext(POSITION& position) {
    Node* node = ToNode(position);
    position = ToPosition(node->next);
    return node->value;
  }
  const Value& GetNext(POSITION& position) const {
    const Node* node = ToNode(position);
    position = ToPosition(node->next);
    return node->value;
  }
  /// Returns the element at `position` and moves `position` to the one before it.
  Value& GetPrev(POSITION& position) {
    Node* node = ToNode(position);
    position = ToPosition(node->previous);
    return node->value;
  }
  const Value& GetPrev(POSITION& position) const {
    const Node* node = ToNode(position);
    position = ToPosition(node->previous);
    return node->value;
  }

  POSITION AddHead(const Value& value) { return Insert(nullptr, m_head, value); }
  POSITION AddTail(const Value& value) { return Insert(m_tail, nullptr, value); }
  /// Inserts before `position`; a null position inserts at the head, as the framework does.
  POSITION InsertBefore(POSITION position, const Value& value) {
    Node* node = ToNode(position);
    return node == nullptr ? AddHead(value) : Insert(node->previous, node, value);
  }
  /// Inserts behind `position`; a null position appends at the tail, as the framework does.
  POSITION InsertAfter(POSITION position, const Value& value) {
    Node* node = ToNode(position);
    return node == nullptr ? AddTail(value) : Insert(node, node->next, value);
  }

  Value RemoveHead() { return Extract(m_head); }
  Value RemoveTail() { return Extract(m_tail); }
  void RemoveAt(POSITION position) { Unlink(ToNode(position)); }
  void RemoveAll() noexcept {
    for (Node* node = m_head; node != nullptr; node = node->next) {
      std::destroy_at(&node->value);
    }
    for (const Block* block = m_blocks; block != nullptr;) {
      delete std::exchange(block, block->older);
    }
    m_head = nullptr;
    m_tail = nullptr;
    m_count = 0;
    m_free = nullptr;
    m_blocks = nullptr;
  }

  /// The position of the first element equal to `value` behind `startAfter` (from the head when
  /// that is null), or null.
  [[nodiscard]] POSITION Find(const Value& value, POSITION startAfter = nullptr) const {
    Node* node = startAfter == nullptr ? m_head : ToNode(startAfter)->next;
    while (node != nullptr && !(node->value == value)) {
      node = node->next;
    }
    return ToPosition(node);
  }
  /// The position of the element with a 0-based index, or null when there is none.
  [[nodiscard]] POSITION FindIndex(int index) const noexcept {
    if (index < 0 || index >= m_count) {
      return nullptr;
    }
    Node* node = m_head;
    for (; index > 0; --index) {
      node = node->next;
    }
    return ToPosition(node);
  }

 private:
  struct Node {
    Node() noexcept {}   // NOLINT(modernize-use-equals-default): without a value
    ~Node() noexcept {}  // NOLINT(modernize-use-equals-default)

    Node* previous;
    Node* next;  ///< of a free node the next free one
    union {
      Value value;
    };
  };
  struct Block {
    Block* older;
    Node nodes[10];
  };

  static Node* ToNode(POSITION position) noexcept { return reinterpret_cast<Node*>(position); }
  static POSITION ToPosition(Node* node) noexcept { return reinterpret_cast<POSITION>(node); }

  void Swap(LinkedList& other) noexcept {
    std::swap(m_head, other.m_head);
    std::swap(m_tail, other.m_tail);
    std::swap(m_count, other.m_count);
    std::swap(m_free, other.m_free);
    std::swap(m_blocks, other.m_blocks);
  }
  POSITION Insert(Node* previous, Node* next, const Value& value) {
    if (m_free == nullptr) {
      AddBlock();
    }
    std::construct_at(&m_free->value, value);
    Node* const node = std::exchange(m_free, m_free->next);  // NOLINT(clang-analyzer*): not null
    node->previous = previous;
    node->next = next;
    (previous == nullptr ? m_head : previous->next) = node;
    (next == nullptr ? m_tail : next->previous) = node;
    ++m_count;
    return ToPosition(node);
  }
  void Unlink(Node* node) noexcept {
    (node->previous == nullptr ? m_head : node->previous->next) = node->next;
    (node->next == nullptr ? m_tail : node->next->previous) = node->previous;
    std::destroy_at(&node->value);
    node->next = std::exchange(m_free, node);
    if (--m_count == 0) {
      RemoveAll();
    }
  }
  Value Extract(Node* node) {
    Value value = std::move(node->value);
    Unlink(node);
    return value;
  }
  void AddBlock() {
    m_blocks = new Block{.older = m_blocks, .nodes = {}};
    for (Node& node : std::views::reverse(m_blocks->nodes)) {  // so that the first goes first
      node.next = std::exchange(m_free, &node);
    }
  }

  Node* m_head = nullptr;
  Node* m_tail = nullptr;
  int m_count = 0;
  Node* m_free = nullptr;
  Block* m_blocks = nullptr;
};

}  // namespace mqp

/// A list of pointers to objects that it does not own.
class CObList : public mqp::LinkedList<CObject*> {
 public:
  using LinkedList::LinkedList;
};

/// A list of strings held by value.
class CStringList : public mqp::LinkedList<CString> {
 public:
  using LinkedList::LinkedList;
};

/// A `BASE_CLASS` of object pointers that takes and returns pointers of one type.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : private BASE_CLASS {
 public:
  using BASE_CLASS::BASE_CLASS;
  using BASE_CLASS::FindIndex;
  using BASE_CLASS::GetCount;
  using BASE_CLASS::GetHeadPosition;
  using BASE_CLASS::GetSize;
  using BASE_CLASS::GetTailPosition;
  using BASE_CLASS::IsEmpty;
  using BASE_CLASS::RemoveAll;
  using BASE_CLASS::RemoveAt;

  [[nodiscard]] TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
  [[nodiscard]] TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
  [[nodiscard]] TYPE GetAt(POSITION position) const {
    return static_cast<TYPE>(BASE_CLASS::GetAt(position));
  }
  TYPE GetNext(POSITION& position) const {
    return static_cast<TYPE>(BASE_CLASS::GetNext(position));
  }
  TYPE GetPrev(POSITION& position) const {
    return static_cast<TYPE>(BASE_CLASS::GetPrev(position));
  }
  void SetAt(POSITION position, TYPE element) { BASE_CLASS::SetAt(position, element); }
  POSITION AddHead(TYPE element) { return BASE_CLASS::AddHead(element); }
  POSITION AddTail(TYPE element) { return BASE_CLASS::AddTail(element); }
  POSITION InsertBefore(POSITION position, TYPE element) {
    return BASE_CLASS::InsertBefore(position, element);
  }
  POSITION InsertAfter(POSITION position, TYPE element) {
    return BASE_CLASS::InsertAfter(position, element);
  }
  TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
  TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
  [[nodiscard]] POSITION Find(TYPE element, POSITION startAfter = nullptr) const {
    return BASE_CLASS::Find(element, startAfter);
  }
};
