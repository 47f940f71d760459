// Memory runs out in the strings, arrays and lists of the host's framework.

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/arrays.h>
#include <mqPostCommon/platform/lists.h>
#include <mqPostCommon/platform/owned.h>
#include <mqPostCommon/platform/wide_string.h>

#include "faults/allocation_failures.h"
#include "params/record_test_support.h"

namespace mqp::test {
namespace {

constexpr Guarantee kStrong = Guarantee::Strong;
constexpr Guarantee kNeverFails = Guarantee::NeverFails;

/// Too long to lie in the string itself.
constexpr const mqChar* kLong =
    MQ_TEXT("a text that needs memory of its own, longer than names are");

TEST_F(AllocationFailures, InAString) {
  using Text = CString;
  const Subject<Text> subject = {
      "CString", [] { return Text(MQ_TEXT("  a text that lies in the string  ")); },
      [] { return Text(MQ_TEXT("another text that needs memory of its own, longer than names")); },
      [](const Text& text) { return Show(text); }};
  // clang-format off
  Try(subject, {ValueOperations<Text>(kStrong), {
      {"made of a zero-terminated text", kStrong, [](Text&, Text&) { const Text made(kLong); }},
      {"made of a counted text",         kStrong, [](Text&, Text&) { const Text made(kLong, 50); }},
      {"made of a repeated unit",        kStrong, [](Text&, Text&) { const Text made(MQ_TEXT('x'), 100); }},
      {"made of a view",                 kStrong, [](Text&, Text& other) { const Text made(other.View()); }},
      {"= text",             kStrong,     [](Text& text, Text&) { text = kLong; }},
      {"+= string",          kStrong,     [](Text& text, Text& other) { text += other; }},
      {"+= itself",          kStrong,     [](Text& text, Text&) { text += text; }},
      {"+= text",            kStrong,     [](Text& text, Text&) { text += kLong; }},
      {"+= its own units",   kStrong,     [](Text& text, Text&) { text += text.GetString(); }},
      {"+= unit, often",     Guarantee::Basic, [](Text& text, Text&) { for (int unit = 0; unit < 200; ++unit) { text += MQ_TEXT('x'); } }},
      {"string + string",    kStrong,     [](Text& text, Text& other) { const Text sum = text + other; }},
      {"string + text",      kStrong,     [](Text& text, Text&) { const Text sum = text + kLong; }},
      {"text + string",      kStrong,     [](Text& text, Text&) { const Text sum = kLong + text; }},
      {"string + unit",      kStrong,     [](Text&, Text& other) { const Text sum = other + MQ_TEXT('x'); }},
      {"unit + string",      kStrong,     [](Text&, Text& other) { const Text sum = MQ_TEXT('x') + other; }},
      {"Left",               kStrong,     [](Text&, Text& other) { const Text part = other.Left(50); }},
      {"Right",              kStrong,     [](Text&, Text& other) { const Text part = other.Right(50); }},
      {"Mid",                kStrong,     [](Text&, Text& other) { const Text part = other.Mid(2); }},
      {"Mid, counted",       kStrong,     [](Text&, Text& other) { const Text part = other.Mid(2, 50); }},
      {"Replace",            kStrong,     [](Text& text, Text& other) { text.Replace(CString(MQ_TEXT("e")), other); }},
      {"Insert",             kStrong,     [](Text& text, Text& other) { text.Insert(3, other); }},
      {"Insert itself",      kStrong,     [](Text& text, Text&) { text.Insert(3, text); }},
      {"Format",             kStrong,     [](Text& text, Text& other) { text.Format(MQ_TEXT("%s %030d %.20f"), other.GetString(), 7, 1.5); }},
      {"Format of itself",   kStrong,     [](Text& text, Text&) { text.Format(MQ_TEXT("%s%s%s%s"), text.GetString(), text.GetString(), text.GetString(), text.GetString()); }},
      {"AppendFormat",       kStrong,     [](Text& text, Text& other) { text.AppendFormat(MQ_TEXT("%s %x"), other.GetString(), -1); }},
      {"Trim of long units", kStrong,     [](Text& text, Text&) { text.Trim(MQ_TEXT(" 0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKL")); }},
      {"Replace by nothing", kNeverFails, [](Text& text, Text& other) { text.Replace(other, other); }},
      {"Replace units",      kNeverFails, [](Text& text, Text&) { text.Replace(MQ_TEXT('o'), MQ_TEXT('u')); }},
      {"Remove",             kNeverFails, [](Text&, Text& other) { other.Remove(MQ_TEXT('e')); }},
      {"Delete",             kNeverFails, [](Text&, Text& other) { other.Delete(2, 5); }},
      {"Trim",               kNeverFails, [](Text& text, Text&) { text.Trim(); }},
      {"Trim unit",          kNeverFails, [](Text& text, Text&) { text.Trim(MQ_TEXT(' ')); }},
      {"Empty",              kNeverFails, [](Text&, Text& other) { other.Empty(); }},
      {"SetAt",              kNeverFails, [](Text& text, Text&) { text.SetAt(0, MQ_TEXT('x')); }},
      {"comparisons",        kNeverFails, [](Text& text, Text& other) { Use(text.Compare(other), text.CompareNoCase(other), text == other, text < other); }},
      {"searches",           kNeverFails, [](Text& text, Text& other) { Use(text.Find(other), text.Find(kLong), text.Find(MQ_TEXT('t')), text.ReverseFind(MQ_TEXT('t'))); }},
  }});
  // clang-format on
}

/// As many numbers or texts, with no room for more.
template <class Array>
Array Numbers(int size) {
  Array array;
  for (int number = 0; number < size; ++number) {
    array.Add(number);
  }
  array.FreeExtra();
  return array;
}
template <class Array>
Array Texts(int size) {
  Array array;
  for (int number = 0; number < size; ++number) {
    CString text;
    text.Format(MQ_TEXT("text number %d, which is longer than any display name"), number);
    array.Add(text);
  }
  array.FreeExtra();
  return array;
}

template <class Array>
std::string DescribeArray(const Array& array) {
  std::string text = std::to_string(array.GetSize()) + ':';
  for (int index = 0; index < array.GetSize(); ++index) {
    text += ' ' + Show(array[index]);
  }
  return text;
}

/// What every array does, whatever its elements are.
template <class Array>
std::vector<Operation<Array>> ArrayOperations() {
  // clang-format off
  return {
      {"Add",                       kStrong,     [](Array& array, Array& other) { array.Add(other[0]); }},
      {"Add of its own",            kStrong,     [](Array& array, Array&) { array.Add(array[1]); }},
      {"Append",                    kStrong,     [](Array& array, Array& other) { array.Append(other); }},
      {"Append itself",             kStrong,     [](Array& array, Array&) { array.Append(array); }},
      {"Append often",              Guarantee::Basic, [](Array& array, Array& other) { for (int time = 0; time < 5; ++time) { array.Append(other); } }},
      {"Copy",                      kStrong,     [](Array& array, Array& other) { array.Copy(other); }},
      {"SetSize, longer",           kStrong,     [](Array& array, Array&) { array.SetSize(9); }},
      {"SetSize, shorter",          kNeverFails, [](Array& array, Array&) { array.SetSize(1); }},
      {"SetAtGrow behind the end",  kStrong,     [](Array& array, Array& other) { array.SetAtGrow(9, other[0]); }},
      {"SetAtGrow of its own",      kStrong,     [](Array& array, Array&) { array.SetAtGrow(3, array[2]); }},
      {"InsertAt the front",        kStrong,     [](Array& array, Array& other) { array.InsertAt(0, other[1]); }},
      {"InsertAt the middle",       kStrong,     [](Array& array, Array& other) { array.InsertAt(1, other[1], 3); }},
      {"InsertAt the end",          kStrong,     [](Array& array, Array& other) { array.InsertAt(3, other[1], 2); }},
      {"InsertAt of its own",       kStrong,     [](Array& array, Array&) { array.InsertAt(1, array[2], 2); }},
      {"Reorder",                   kStrong,     [](Array& array, Array&) { constexpr int kOrder[] = {2, 0, 1}; array.Reorder(kOrder); }},
      {"FreeExtra",                 kStrong,     [](Array& array, Array&) { array.SetSize(2); array.FreeExtra(); }},
      {"RemoveAt",                  kNeverFails, [](Array& array, Array&) { array.RemoveAt(0); }},
      {"RemoveAt, several",         kNeverFails, [](Array& array, Array&) { array.RemoveAt(1, 2); }},
      {"RemoveAll",                 kNeverFails, [](Array& array, Array&) { array.RemoveAll(); }},
  };
  // clang-format on
}

TEST_F(AllocationFailures, InAnArrayOfNumbers) {
  using Array = ValueArray<int>;
  const Subject<Array> subject = {"ValueArray<int>", [] { return Numbers<Array>(3); },
                                  [] { return Numbers<Array>(5); }, DescribeArray<Array>};
  Try(subject, {ValueOperations<Array>(kStrong), ArrayOperations<Array>()});
}

TEST_F(AllocationFailures, InAnArrayOfTexts) {
  using Array = ValueArray<CString>;
  const Subject<Array> subject = {"ValueArray<CString>", [] { return Texts<Array>(3); },
                                  [] { return Texts<Array>(5); }, DescribeArray<Array>};
  Try(subject, {ValueOperations<Array>(kStrong), ArrayOperations<Array>()});
}

TEST_F(AllocationFailures, InAnArrayThatIsNotCopiedByItself) {
  using Array = CArray<CString, CString>;
  const Subject<Array> subject = {"CArray<CString, CString>", [] { return Texts<Array>(3); },
                                  [] { return Texts<Array>(5); }, DescribeArray<Array>};
  Try(subject, {ArrayOperations<Array>()});
}

/// An element without a move of its own, as most values of the library are.
struct CopiedText {
  CopiedText() = default;
  CopiedText(const CopiedText&) = default;
  CopiedText& operator=(const CopiedText&) = default;
  ~CopiedText() = default;
  operator const CString&() const { return text; }  // NOLINT(google-explicit-constructor)
  CString text;
};

TEST_F(AllocationFailures, InAnArrayOfElementsThatAreCopiedToTheirPlaces) {
  using Array = ValueArray<CopiedText>;
  const auto make = [](int size) {
    Array array;
    for (int number = 0; number < size; ++number) {
      CopiedText element;
      element.text.Format(MQ_TEXT("text number %d, which is longer than any display name"), number);
      array.Add(element);
    }
    array.FreeExtra();
    return array;
  };
  const Subject<Array> subject = {"ValueArray of copied elements", [make] { return make(3); },
                                  [make] { return make(5); }, DescribeArray<Array>};
  std::vector<Operation<Array>> operations = ArrayOperations<Array>();
  for (Operation<Array>& operation : operations) {
    // Elements behind the gap are copied to their new places.
    if (std::string(operation.name).starts_with("RemoveAt")) {
      operation.guarantee = kStrong;
    }
  }
  Try(subject, {ValueOperations<Array>(kStrong), operations});
}

CStringList StringList(int size) {
  CStringList list;
  for (int number = 0; number < size; ++number) {
    CString text;
    text.Format(MQ_TEXT("text number %d, which is longer than any display name"), number);
    list.AddTail(text);
  }
  return list;
}

std::string DescribeList(const CStringList& list) {
  std::string text = std::to_string(list.GetCount()) + ':';
  for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
    text += ' ' + Show(list.GetNext(position));
  }
  text += " backwards:";
  for (POSITION position = list.GetTailPosition(); position != nullptr;) {
    text += ' ' + Show(list.GetPrev(position));
  }
  return text;
}

/// A list has no room left when it has ten elements.
TEST_F(AllocationFailures, InAListOfTexts) {
  using List = CStringList;
  const Subject<List> subject = {"CStringList", [] { return StringList(10); },
                                 [] { return StringList(4); }, DescribeList};
  // clang-format off
  Try(subject, {{
      {"AddHead",                kStrong,     [](List& list, List& other) { list.AddHead(other.GetTail()); }},
      {"AddTail",                kStrong,     [](List& list, List& other) { list.AddTail(other.GetTail()); }},
      {"AddTail of its own",     kStrong,     [](List& list, List&) { list.AddTail(list.GetHead()); }},
      {"InsertBefore",           kStrong,     [](List& list, List& other) { list.InsertBefore(list.FindIndex(1), other.GetTail()); }},
      {"InsertBefore nothing",   kStrong,     [](List& list, List& other) { list.InsertBefore(nullptr, other.GetTail()); }},
      {"InsertAfter",            kStrong,     [](List& list, List& other) { list.InsertAfter(list.FindIndex(1), other.GetTail()); }},
      {"InsertAfter nothing",    kStrong,     [](List& list, List& other) { list.InsertAfter(nullptr, other.GetTail()); }},
      {"SetAt",                  kStrong,     [](List& list, List&) { list.SetAt(list.FindIndex(1), CString(MQ_TEXT('x'), 100)); }},
      {"Find",                   kNeverFails, [](List& list, List& other) { Use(list.Find(other.GetTail())); }},
      {"RemoveHead",             kNeverFails, [](List& list, List&) { list.RemoveHead(); }},
      {"RemoveTail",             kNeverFails, [](List& list, List&) { list.RemoveTail(); }},
      {"RemoveAt",               kNeverFails, [](List& list, List&) { list.RemoveAt(list.FindIndex(1)); }},
      {"RemoveAll",              kNeverFails, [](List& list, List&) { list.RemoveAll(); }},
      {"construction",           kNeverFails, [](List&, List&) { const List made; }},
      {"move construction",      kNeverFails, [](List& list, List&) { const List moved(std::move(list)); }},
      {"move assignment",        kNeverFails, [](List& list, List& other) { list = std::move(other); }},
  }});
  // clang-format on
}

TEST_F(AllocationFailures, InAListOfTextsThatIsAValue) {
  const auto make = [](int size) {
    StringValues values;
    for (int number = 0; number < size; ++number) {
      values.AddTail(CString(MQ_TEXT('a'), 60 + number));
    }
    return values;
  };
  const Subject<StringValues> subject = {
      "StringValues", [make] { return make(3); }, [make] { return make(4); },
      [](const StringValues& list) { return DescribeList(list); }};
  Try(subject, {ValueOperations<StringValues>(kStrong)});
}

struct Thing : CObject {
  explicit Thing(int size = 0) : text(MQ_TEXT('t'), 60 + size) {}
  CString text;
};
using Things = CTypedPtrList<CObList, Thing*>;
using OwnedThings = OwnedList<Thing>;

std::string DescribeThings(const Things& things) {
  std::string text = std::to_string(things.GetCount()) + ':';
  for (POSITION position = things.GetHeadPosition(); position != nullptr;) {
    const Thing* thing = things.GetNext(position);
    text += ' ' + (thing == nullptr ? "null" : test::Show(thing->text));
  }
  return text;
}

TEST_F(AllocationFailures, InAListOfPointers) {
  const auto make = [] {
    Things things;
    for (int number = 0; number < 10; ++number) {
      things.AddTail(nullptr);
    }
    return things;
  };
  const Subject<Things> subject = {"CTypedPtrList", make, make, DescribeThings};
  // clang-format off
  Try(subject, {{
      {"AddHead",      kStrong,     [](Things& list, Things&) { list.AddHead(nullptr); }},
      {"AddTail",      kStrong,     [](Things& list, Things&) { list.AddTail(nullptr); }},
      {"InsertBefore", kStrong,     [](Things& list, Things&) { list.InsertBefore(list.FindIndex(1), nullptr); }},
      {"InsertAfter",  kStrong,     [](Things& list, Things&) { list.InsertAfter(list.FindIndex(1), nullptr); }},
      {"SetAt",        kNeverFails, [](Things& list, Things&) { list.SetAt(list.FindIndex(1), nullptr); }},
      {"Find",         kNeverFails, [](Things& list, Things&) { Use(list.Find(nullptr)); }},
      {"RemoveHead",   kNeverFails, [](Things& list, Things&) { list.RemoveHead(); }},
      {"RemoveTail",   kNeverFails, [](Things& list, Things&) { list.RemoveTail(); }},
      {"RemoveAll",    kNeverFails, [](Things& list, Things&) { list.RemoveAll(); }},
      {"AddTail in the room of another", kNeverFails, [](Things& list, Things&) { list.RemoveAt(list.FindIndex(4)); list.AddTail(nullptr); }},
  }});
  // clang-format on
}

TEST_F(AllocationFailures, AListAllocatesForTenElementsAndGivesAllBackWithTheLast) {
  const long blocks = CountAllocations().liveBlocks;
  Things things;
  for (int count = 1; count <= 25; ++count) {
    things.AddTail(nullptr);
    EXPECT_EQ(CountAllocations().liveBlocks - blocks, (count + 9) / 10) << count;
  }
  for (int count = 24; count >= 0; --count) {
    things.RemoveAt(things.FindIndex(count / 2));
    EXPECT_EQ(CountAllocations().liveBlocks - blocks, count > 0 ? 3 : 0) << count;
  }
}

TEST_F(AllocationFailures, InAListThatOwnsItsObjects) {
  const auto make = [](int size) {
    OwnedThings things;
    for (int number = 0; number < size; ++number) {
      things.Append(std::make_unique<Thing>(number));
    }
    return things;
  };
  const Subject<OwnedThings> subject = {
      "OwnedList", [make] { return make(3); }, [make] { return make(4); },
      [](const OwnedThings& things) { return DescribeThings(things); }};
  // clang-format off
  Try(subject, {ValueOperations<OwnedThings>(kStrong), {
      {"Append",    kStrong,     [](OwnedThings& list, OwnedThings&) { list.Append(std::make_unique<Thing>(9)); }},
      {"DeleteAll", kNeverFails, [](OwnedThings& list, OwnedThings&) { list.DeleteAll(); }},
  }});
  // clang-format on
}

}  // namespace
}  // namespace mqp::test
