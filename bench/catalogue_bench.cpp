// One query of each function family, with random arguments drawn beforehand.

#include <array>
#include <random>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>

#include "empty_functions.h"
#include "family.h"

namespace mqp::bench {
namespace {

struct Query {
  int analysisType;
  int resultType;
  int component;
  int meshKind;
  int option;
};

/// Mostly known codes, some unknown: what a result view asks.
const std::vector<Query>& Queries() {
  static const std::vector<Query> queries = [] {
    std::mt19937 random(20260101);
    std::vector<Query> drawn(kDrawn);
    for (Query& query : drawn) {
      const auto any = [&](int last) { return std::uniform_int_distribution(0, last)(random); };
      const auto study = static_cast<std::size_t>(any(kAnalysisTypeNames.size() - 1));
      const auto result = static_cast<std::size_t>(any(kResultTypeNames.size() - 1));
      query = {Code(kAnalysisTypeNames[study].code), Code(kResultTypeNames[result].code), any(15),
               any(4), any(2)};
    }
    return drawn;
  }();
  return queries;
}

/// Registers a variant that is asked with random codes.
template <class Call>
void Ask(const std::string& operation, const std::string& variant, Call call) {
  Add(operation, variant, [call](std::size_t place) { call(Queries()[place]); });
}

/// An operation and its limit.
template <class Ours, class Limit>
void Compare(const std::string& operation, Ours ours, Limit limit) {
  Ask(operation, kOurs, ours);
  Ask(operation, kLimit, limit);
}

void RegisterNumbers() {
  Compare(
      "component total",
      [](const Query& q) {
        Keep(vekPostCommonGetComponentTotal(q.analysisType, q.resultType, q.option, q.meshKind, 0,
                                            q.option, q.option, q.option, 7));
      },
      [](const Query& q) {
        Keep(EmptyTotal(q.analysisType, q.resultType, q.option, q.meshKind, 0, q.option, q.option,
                        q.option, 7));
      });
  Compare(
      "data type with members",
      [](const Query& q) {
        std::array<int, 3> members;
        Keep(vekPostCommonGetComponentDataType(q.analysisType, q.resultType, q.component,
                                               members.data(), 0));
      },
      [](const Query& q) {
        std::array<int, 3> members;
        Keep(EmptyDataType(q.analysisType, q.resultType, q.component, members.data(), 0));
      });
  Compare(
      "default component",
      [](const Query& q) {
        Keep(vekPostCommonGetComponentDefault(q.analysisType, q.resultType, 0, q.meshKind,
                                              q.option));
      },
      [](const Query& q) {
        Keep(EmptyDefault(q.analysisType, q.resultType, 0, q.meshKind, q.option));
      });
  Compare(
      "envelope bounds",
      [](const Query& q) {
        Keep(
            vekPostCommonGetEnvelopBoundTotal(q.analysisType, q.resultType, q.component, q.option));
      },
      [](const Query& q) {
        Keep(EmptyQuery(q.analysisType, q.resultType, q.component, q.option));
      });
  Compare(
      "reference availability",
      [](const Query& q) {
        Keep(vekPostCommonIsReferenceAvailable(q.analysisType, q.resultType, q.component,
                                               q.meshKind));
      },
      [](const Query& q) {
        Keep(EmptyQuery(q.analysisType, q.resultType, q.component, q.meshKind));
      });
  Compare(
      "unit type",
      [](const Query& q) {
        Keep(vekPostCommonGetUnitType(q.analysisType, q.resultType, q.component, q.option, 1));
      },
      [](const Query& q) {
        Keep(EmptyUnitType(q.analysisType, q.resultType, q.component, q.option, 1));
      });
  Compare(
      "default unit of a system",
      [](const Query& q) {
        Keep(vekPostCommonGetComponentUnitsBasedOnSystemUnit(q.option, q.analysisType, q.resultType,
                                                             q.component, 2, 1));
      },
      [](const Query& q) {
        Keep(EmptyUnitDefault(q.option, q.analysisType, q.resultType, q.component, 2, 1));
      });
  Compare(
      "vector direction",
      [](const Query& q) {
        std::array<float, 4> direction;
        vekPostCommonGetComponentVectorDir(q.analysisType, q.resultType, q.component, q.option,
                                           direction.data());
        Keep(direction);
      },
      [](const Query& q) {
        std::array<float, 4> direction;
        EmptyDirection(q.analysisType, q.resultType, q.component, q.option, direction.data());
        Keep(direction);
      });
}

void RegisterTexts() {
  Compare(
      "full name",
      [](const Query& q) {
        Keep(vekPostCommonGetComponentName(q.analysisType, q.resultType, 0, q.component, q.meshKind,
                                           q.option));
      },
      [](const Query& q) {
        Keep(EmptyName(q.analysisType, q.resultType, 0, q.component, q.meshKind, q.option));
      });
  Compare(
      "colour-bar name",
      [](const Query& q) {
        Keep(vekPostCommonGetComponentNameBar(q.analysisType, q.resultType, 0, q.component,
                                              q.meshKind, q.option));
      },
      [](const Query& q) {
        Keep(EmptyName(q.analysisType, q.resultType, 0, q.component, q.meshKind, q.option));
      });
  Compare(
      "unit name", [](const Query& q) { Keep(vekPostCommonGetUnitName(q.resultType, q.option)); },
      [](const Query& q) { Keep(EmptyUnitName(q.resultType, q.option)); });

  // The tenth candidate of a Static stress.
  const CString name = vekPostCommonGetComponentName(0, 2, 0, 9, 0, 0);
  Compare(
      "name to component, 10 candidates tried",
      [name](const Query&) { Keep(vekPostCommonGetComponentIndexByName(0, 2, 0, name, 0)); },
      [name](const Query&) { Keep(EmptyLookup(0, 2, 0, name, 0)); });
}

}  // namespace
}  // namespace mqp::bench

int main(int argc, char** argv) {
  mqp::bench::RegisterNumbers();
  mqp::bench::RegisterTexts();
  return mqp::bench::RunFamily(argc, argv);
}
