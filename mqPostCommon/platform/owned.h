/// \file
/// Containers of the host's framework that are copied together with the object whose member they
/// are. The framework's own ones are not copied at all. A copy or an assignment that runs out of
/// memory throws `std::bad_alloc` and leaves the target as it was.
#pragma once

#include <memory>
#include <utility>

#include <mqPostCommon/platform/arrays.h>
#include <mqPostCommon/platform/lists.h>

namespace mqp {

/// An array; copies hold equal elements of their own.
template <class TYPE>
class ValueArray : public CArray<TYPE> {
 public:
  ValueArray() = default;
  ValueArray(const ValueArray& other) : CArray<TYPE>() { this->Copy(other); }
  ValueArray(ValueArray&&) noexcept = default;
  ValueArray& operator=(const ValueArray& other) {
    if (this != &other) {
      this->Copy(other);
    }
    return *this;
  }
  ValueArray& operator=(ValueArray&&) noexcept = default;
  ~ValueArray() = default;
};

/// A list of strings; copies hold equal strings of their own.
class StringValues : public CStringList {
 public:
  StringValues() = default;
  StringValues(const StringValues& other) : CStringList() {
    for (POSITION position = other.GetHeadPosition(); position != nullptr;) {
      AddTail(other.GetNext(position));
    }
  }
  StringValues(StringValues&&) noexcept = default;
  StringValues& operator=(const StringValues& other) {
    if (this != &other) {
      *this = StringValues(other);
    }
    return *this;
  }
  StringValues& operator=(StringValues&&) noexcept = default;
  ~StringValues() = default;
};

/// A container that stays with its object: a copy starts with an empty one, and an assignment, from
/// whatever it is, leaves the target its own.
template <class CONTAINER>
class NeverCopied : public CONTAINER {
 public:
  NeverCopied() = default;
  NeverCopied(const NeverCopied& /*other*/) noexcept : CONTAINER() {}
  // NOLINTNEXTLINE(cert-oop54-cpp): on itself it does nothing either
  NeverCopied& operator=(const NeverCopied& /*other*/) noexcept { return *this; }
  ~NeverCopied() = default;
};

/// A list of pointers that owns the objects; copies own copies of them. No pointer is null. What
/// is removed by `RemoveAt`, `RemoveAll`, `RemoveHead` or `RemoveTail`, or replaced by `SetAt`, is
/// the caller's from then on; `DeleteAll` deletes.
template <class OBJECT>
class OwnedList : public CTypedPtrList<CObList, OBJECT*> {
  using Pointers = CTypedPtrList<CObList, OBJECT*>;

 public:
  OwnedList() = default;
  OwnedList(const OwnedList& other) : OwnedList() {
    for (POSITION position = other.GetHeadPosition(); position != nullptr;) {
      Append(std::make_unique<OBJECT>(*other.GetNext(position)));
    }
  }
  OwnedList(OwnedList&&) noexcept = default;
  /// Takes new copies over before the old objects are deleted; nothing happens on itself.
  OwnedList& operator=(const OwnedList& other) {
    if (this != &other) {
      *this = OwnedList(other);
    }
    return *this;
  }
  OwnedList& operator=(OwnedList&& other) noexcept {
    if (this != &other) {
      DeleteAll();
      Pointers::operator=(std::move(other));
    }
    return *this;
  }
  ~OwnedList() { DeleteAll(); }

  OBJECT& Append(std::unique_ptr<OBJECT> object) {
    this->AddTail(object.get());
    return *object.release();
  }
  void DeleteAll() noexcept {
    for (POSITION position = this->GetHeadPosition(); position != nullptr;) {
      delete this->GetNext(position);
    }
    this->RemoveAll();
  }
};

}  // namespace mqp
