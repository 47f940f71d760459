/// \file
/// Answers in maps of the standard library, by the arguments that decide them.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <tuple>
#include <unordered_map>

namespace mqp::bench {

/// Combines the hashes of the parts of a tuple, the way boost does it.
struct TupleHash {
  template <class... Parts>
  std::size_t operator()(const std::tuple<Parts...>& tuple) const noexcept {
    return std::apply(
        [](const Parts&... parts) {
          std::size_t hash = 0;
          ((hash ^= std::hash<Parts>()(parts) + 0x9E3779B97F4A7C15U + (hash << 6U) + (hash >> 2U)),
           ...);
          return hash;
        },
        tuple);
  }
};

template <class Key, class Value>
using TreeMap = std::map<Key, Value>;
template <class Key, class Value>
using HashMap = std::unordered_map<Key, Value, TupleHash>;

/// The answer for a key; one without an entry has the answer of nothing.
template <class Map>
typename Map::mapped_type FindIn(const Map& map, const typename Map::key_type& key) {
  const auto found = map.find(key);
  return found == map.end() ? typename Map::mapped_type{} : found->second;
}

}  // namespace mqp::bench
