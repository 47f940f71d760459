#pragma once

#include <optional>
#include <vector>

#include "values.h"

/// The display list of an assembly as a plain vector of components, each a snapshot of its members.
namespace reference {

struct Entry {
  Fields component;
  int value = 0;
};

using Entries = std::vector<Entry>;
using Color = std::vector<Value>;

Fields DefaultComponent();
Fields RangeComponent(int id, int first, int last, const Color& color, const Color& bottom,
                      int hidden);

Color ColorAt(const Fields& component, std::string_view name);
void SetColor(Fields& component, std::string_view name, const Color& color);

int IsEqual(const Fields& one, const Fields& other);
int HasRange(const Fields& component);
void Flip(Fields& component);

int IsEqual(const Entries& one, const Entries& other);
void Append(Entries& entries, const Fields& component);

int AllHidden(const Entries& entries);
int CountWithResults(const Entries& entries);
int IsPartMissing(const Entries& entries, const Entries& other);
std::optional<int> VisibleIndex(const Entries& entries, int element);
int ActiveIndex(const Entries& entries, int index, int base);
int FindBody(const Entries& entries, long body);
std::vector<int> PartsNamed(const Entries& entries, const Text& name);
Entries OnesNamed(const Entries& entries, std::string_view which, const Text& name);
int Exists(const Entries& entries, const Text& name);
int Rename(Entries& entries, const Text& from, const Text& to);
void HideAllBut(Entries& entries, const Text& name);
void Unhide(Entries& entries);
void ListColors(const Entries& entries, std::vector<Color>& colors, std::vector<Color>& bottoms);

}  // namespace reference
