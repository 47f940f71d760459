// The queries that answer with a number, with random arguments drawn beforehand.

#include <array>
#include <cstddef>
#include <memory>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>

#include "empty_functions.h"
#include "family.h"
#include "peers/maps.h"
#include "peers/sqlite_answers.h"
#include "peers/switch_ladder.h"

namespace mqp::bench {
namespace {

/// The arguments of a question; each operation takes those that it knows.
struct Query {
  int analysisType;
  int resultType;
  int component;
  int meshKind;
  int meshFlags;
  int option;
  int isExtra;
  int isMore;
  int choice;
};

int Total(const Query& q) {
  return vekPostCommonGetComponentTotal(q.analysisType, q.resultType, q.isExtra, q.meshKind, 0,
                                        q.isMore, q.meshFlags, q.option, q.choice);
}

class Draw {
 public:
  Query Any() {
    return {Code(kAnalysisTypeNames[Below(kAnalysisTypeNames.size())].code),
            Code(kResultTypeNames[Below(kResultTypeNames.size())].code),
            Number(16),
            Number(5),
            2 * Number(2),
            Number(3),
            Number(2),
            Number(2),
            6 + Number(2)};
  }
  /// A component that its study has.
  Query Offered() {
    for (;;) {
      if (const Query query = Any(); query.component < Total(query)) {
        return query;
      }
    }
  }

 private:
  std::size_t Below(std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random);
  }
  int Number(int end) { return static_cast<int>(Below(static_cast<std::size_t>(end))); }

  std::mt19937 m_random{20260101};
};

/// What a result view asks: three in four are components that the study has.
const std::vector<Query>& Drawn() {
  static const std::vector<Query> queries = [] {
    Draw draw;
    std::vector<Query> drawn(kDrawn);
    for (std::size_t place = 0; place < kDrawn; ++place) {
      // The multiplier scatters the others, so that no predictor sees a rhythm.
      drawn[place] = place * 0x9E3779B9U % 64 < 16 ? draw.Any() : draw.Offered();
    }
    return drawn;
  }();
  return queries;
}

/// Registers a variant that is asked with random codes.
template <class Call>
void Ask(const std::string& operation, const std::string& variant, Call call) {
  const Query* const drawn = Drawn().data();
  Add(operation, variant, [call, drawn](std::size_t place) { Keep(call(drawn[place])); });
}

/// Registers a peer, whose answers must be those of `ours`.
template <class Ours, class Call>
void AskPeer(const std::string& operation, const std::string& variant, Ours ours, Call call) {
  for (const Query& query : Drawn()) {
    RequireSame(ours(query) == call(query), operation + " of " + variant);
  }
  Ask(operation, variant, call);
}

/// Calls `visit` with every question that may be drawn.
template <class Visit>
void ForEachQuery(Visit visit) {
  for (const auto& study : kAnalysisTypeNames) {
    for (const auto& result : kResultTypeNames) {
      for (int rest = 0; rest < 16 * 5 * 2 * 3 * 2 * 2 * 2; ++rest) {
        int left = rest;
        const auto take = [&left](int end) { return std::exchange(left, left / end) % end; };
        visit(Query{Code(study.code), Code(result.code), take(16), take(5), 2 * take(2), take(3),
                    take(2), take(2), 6 + take(2)});
      }
    }
  }
}

/// The answers that are not nothing, by the arguments that the operation takes.
template <class Map, class Ours, class KeyOf>
std::shared_ptr<const Map> MakeMap(Ours ours, KeyOf keyOf) {
  auto map = std::make_shared<Map>();
  ForEachQuery([&](const Query& query) {
    if (const auto answer = ours(query); answer != typename Map::mapped_type{}) {
      map->insert_or_assign(keyOf(query), answer);
    }
  });
  return map;
}

/// An operation, its limit, and the maps that hold its answers.
template <class KeyOf, class Ours, class Limit>
void Compare(const std::string& operation, KeyOf keyOf, Ours ours, Limit limit) {
  using Answer = decltype(ours(Query()));
  using Key = decltype(keyOf(Query()));
  Ask(operation, kOurs, ours);
  Ask(operation, kLimit, limit);
  const auto hash = MakeMap<HashMap<Key, Answer>>(ours, keyOf);
  AskPeer(operation, "unordered_map", ours,
          [keyOf, hash](const Query& q) { return FindIn(*hash, keyOf(q)); });
  const auto tree = MakeMap<TreeMap<Key, Answer>>(ours, keyOf);
  AskPeer(operation, "map", ours,
          [keyOf, tree](const Query& q) { return FindIn(*tree, keyOf(q)); });
}

// -------------------------------------------------------------------------------------------------
// Totals

void RegisterTotals() {
  const std::string operation = "component total";
  const auto keyOf = [](const Query& q) {
    return std::tuple(q.analysisType, q.resultType, q.isExtra, q.meshKind, q.isMore, q.meshFlags,
                      q.option, q.choice);
  };
  Compare(operation, keyOf, Total, [](const Query& q) {
    return EmptyTotal(q.analysisType, q.resultType, q.isExtra, q.meshKind, 0, q.isMore, q.meshFlags,
                      q.option, q.choice);
  });
  AskPeer(operation, "switch", Total, [](const Query& q) {
    return LadderTotal(q.analysisType, q.resultType, q.isExtra, q.meshKind, q.isMore, q.meshFlags,
                       q.option, q.choice);
  });
  const auto rowOf = [](const Query& q) {
    return SqliteAnswers::Key{q.analysisType, q.resultType, q.isExtra, q.meshKind,
                              q.isMore,       q.meshFlags,  q.option,  q.choice};
  };
  const auto answers = std::make_shared<const SqliteAnswers>(
      *MakeMap<TreeMap<SqliteAnswers::Key, int>>(Total, rowOf));
  AskPeer(operation, "SQLite", Total,
          [answers, rowOf](const Query& q) { return answers->Find(rowOf(q)); });
}

/// Each answer has a part in the next question, so that the time is that from a question to its
/// answer. The part comes to nothing, which the compiler cannot know.
template <class Call>
void AskInChain(const std::string& variant, Call call) {
  const Query* const drawn = Drawn().data();
  int nothing = 0;
  benchmark::DoNotOptimize(nothing);
  Add("component total, each answer in the next question", variant,
      [call, drawn, nothing, answer = 0](std::size_t place) mutable {
        Query query = drawn[place];
        query.resultType += answer & nothing;
        answer = call(query);
      });
}

void RegisterChain() {
  const auto total = [](const Query& q) {
    return vekPostCommonGetComponentTotal(q.analysisType, q.resultType, 0, q.meshKind, 0, 0, 0,
                                          q.option, 7);
  };
  const auto dense = [](const Query& q) {
    return DenseTotal(q.analysisType, q.resultType, 0, q.meshKind, 0, 0, 0, q.option, 7);
  };
  for (const Query& q : Drawn()) {
    DenseCell(q.analysisType, q.resultType, q.meshKind, q.option) =
        static_cast<unsigned char>(total(q));
  }
  for (const Query& query : Drawn()) {
    RequireSame(dense(query) == total(query), "dense array");
  }
  AskInChain(kOurs, total);
  AskInChain("dense array", dense);
}

// -------------------------------------------------------------------------------------------------
// The others

struct TypeAndMembers {
  int type = 0;
  std::array<int, 3> members{};
  bool operator==(const TypeAndMembers&) const = default;
};

using Direction = std::array<float, 4>;

void RegisterOthers() {
  const auto byMesh = [](const Query& q) {
    return std::tuple(q.analysisType, q.resultType, q.meshKind, q.option);
  };
  const auto byComponent = [](const Query& q) {
    return std::tuple(q.analysisType, q.resultType, q.component, q.option);
  };
  const auto byComponentAndMesh = [](const Query& q) {
    return std::tuple(q.analysisType, q.resultType, q.component, q.meshKind);
  };
  Compare(
      "data type with members", byComponent,
      [](const Query& q) {
        TypeAndMembers answer;
        answer.type = vekPostCommonGetComponentDataType(q.analysisType, q.resultType, q.component,
                                                        answer.members.data(), q.option);
        return answer;
      },
      [](const Query& q) {
        TypeAndMembers answer;
        answer.type = EmptyDataType(q.analysisType, q.resultType, q.component,
                                    answer.members.data(), q.option);
        return answer;
      });
  Compare(
      "default component", byMesh,
      [](const Query& q) {
        return vekPostCommonGetComponentDefault(q.analysisType, q.resultType, 0, q.meshKind,
                                                q.option);
      },
      [](const Query& q) {
        return EmptyDefault(q.analysisType, q.resultType, 0, q.meshKind, q.option);
      });
  Compare(
      "envelope bounds", byComponent,
      [](const Query& q) {
        return vekPostCommonGetEnvelopBoundTotal(q.analysisType, q.resultType, q.component,
                                                 q.option);
      },
      [](const Query& q) {
        return EmptyQuery(q.analysisType, q.resultType, q.component, q.option);
      });
  Compare(
      "reference availability", byComponentAndMesh,
      [](const Query& q) {
        return vekPostCommonIsReferenceAvailable(q.analysisType, q.resultType, q.component,
                                                 q.meshKind);
      },
      [](const Query& q) {
        return EmptyQuery(q.analysisType, q.resultType, q.component, q.meshKind);
      });
  Compare(
      "unit type",
      [](const Query& q) {
        return std::tuple(q.analysisType, q.resultType, q.component, q.option, q.isExtra);
      },
      [](const Query& q) {
        return vekPostCommonGetUnitType(q.analysisType, q.resultType, q.component, q.option,
                                        q.isExtra);
      },
      [](const Query& q) {
        return EmptyUnitType(q.analysisType, q.resultType, q.component, q.option, q.isExtra);
      });
  Compare(
      "default unit of a system",
      [](const Query& q) {
        return std::tuple(q.meshKind, q.analysisType, q.resultType, q.component, q.option,
                          q.isExtra);
      },
      [](const Query& q) {
        return vekPostCommonGetComponentUnitsBasedOnSystemUnit(
            q.meshKind, q.analysisType, q.resultType, q.component, q.option, q.isExtra);
      },
      [](const Query& q) {
        return EmptyUnitDefault(q.meshKind, q.analysisType, q.resultType, q.component, q.option,
                                q.isExtra);
      });
  Compare(
      "vector direction", byComponent,
      [](const Query& q) {
        Direction direction;
        vekPostCommonGetComponentVectorDir(q.analysisType, q.resultType, q.component, q.option,
                                           direction.data());
        return direction;
      },
      [](const Query& q) {
        Direction direction;
        EmptyDirection(q.analysisType, q.resultType, q.component, q.option, direction.data());
        return direction;
      });
}

}  // namespace
}  // namespace mqp::bench

int main(int argc, char** argv) {
  mqp::bench::RegisterTotals();
  mqp::bench::RegisterChain();
  mqp::bench::RegisterOthers();
  return mqp::bench::RunFamily(argc, argv);
}
