/// \file
/// The records that the benchmarks write and read: a graph with a name, and an equation plot of 40
/// variables.
#pragma once

#include <cstddef>
#include <string>

#include "plain_records.h"

namespace mqp::bench {

/// Gives each number a value of its own.
struct Filler {
  int next = 1;
  Filler& operator&(int& value) {
    value = 0x0101'0101 * next++;
    return *this;
  }
  Filler& operator&(double& value) {
    value = 1.0 / next++;
    return *this;
  }
  Filler& operator&(std::u16string& /*text*/) { return *this; }
  template <class Value, std::size_t Count>
  Filler& operator&(std::array<Value, Count>& values) {
    for (Value& value : values) {
      *this& value;
    }
    return *this;
  }
};

inline PlainGraph SampleGraph() {
  PlainGraph graph;
  Filler filler;
  graph.serialize(filler);
  graph.titles[0] = u"Graph 1";
  return graph;
}

inline PlainEquation SampleEquation() {
  PlainEquation plot;
  for (int index = 0; index < 40; ++index) {
    std::u16string name = u"\"Variable";
    for (const char digit : std::to_string(index)) {
      name += static_cast<char16_t>(digit);
    }
    name += u'"';
    plot.equation += (index == 0 ? u"" : u"+") + name;
    plot.variables.push_back({name, 1 + index % 3, index % 12, 1.0 + index});
  }
  plot.flag = 1;
  return plot;
}

}  // namespace mqp::bench
