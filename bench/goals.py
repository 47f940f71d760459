"""What `bench/run` holds the operations to.

A goal is (most, than): our time is at most so many times that of the variant `than`. Less than 1
means that many times faster. "peers" stands for each variant but ours and the limit.
"""

import collections

Goal = collections.namedtuple("Goal", "most than")
# `bound_by_memory`: the times of rows that wait for memory differ more from run to run.
Row = collections.namedtuple("Row", "operation goals bound_by_memory largest", defaults=[False, None])

LIMIT = "limit"
PEERS = "peers"
SLACK, SLACK_OF_MEMORY = 1.15, 1.40


def rows(operations, *goals, **about):
    return [Row(operation, [Goal(*goal) for goal in goals], **about) for operation in operations]


# By program, in the order of the table. An operation that grows with a number of records has a
# time for each number, and the goals hold for all of them up to `largest`: a curve has few points,
# and as they may be out of order all of them are looked at.
FAMILIES = {
    "mqCatalogueBench": [
        *rows(["component total", "data type with members", "default component",
               "envelope bounds", "reference availability", "unit type",
               "default unit of a system", "vector direction"],
              (2.5, LIMIT), (1 / 8, "unordered_map")),
        *rows(["component total, each answer in the next question"], (1.3, "dense array")),
    ],
    "mqNamesBench": [
        *rows(["component name by value", "text of an id into the same buffer",
               "colour-bar name by value", "unit name by value"], (0.5, LIMIT)),
        *rows(["name to component, candidates tried"], (1.3, LIMIT)),
    ],
    "mqLoadingBench": rows(["load and unload"], (1.3, LIMIT)),
    "mqRecordsBench": [
        *rows(["graph record, written to memory"], (3.0, LIMIT), (1.0, PEERS)),
        *rows(["graph record, read from memory"], (8.0, LIMIT), (1.0, PEERS)),
        *rows(["equation record of 40 variables, written to memory"], (6.0, LIMIT), (1.0, PEERS)),
        *rows(["equation record of 40 variables, read from memory"], (20.0, LIMIT), (1.0, PEERS)),
    ],
    "mqDisplayBench": [
        *rows(["element none holds, in the list"], (1.3, LIMIT), bound_by_memory=True),
        *rows(["element to component, by the index"], (0.5, PEERS), bound_by_memory=True),
        *rows(["body to component, by the index"], (1.0, PEERS), bound_by_memory=True),
        *rows(["colours of a list, few", "colours of a list, all different"],
              (4.0, LIMIT), bound_by_memory=True),
        *rows(["sort by last element"], (1.3, LIMIT), bound_by_memory=True),
    ],
    "mqMaterialsBench": [
        *rows(["curve, temperatures random"], (1.0, "GSL"), largest=100),
        *rows(["curve, temperatures swept"]),
        *rows(["names of materials, few", "names of materials, all different"],
              (4.0, LIMIT), bound_by_memory=True),
        *rows(["units of element stresses"], (1.25, LIMIT), bound_by_memory=True),
    ],
    "mqDocumentBench": [
        *rows(["graph record, written to a stream of libgsf",
               "graph record, read from a stream of libgsf"]),
    ],
    # Built by `cmake --preset windows -DMQ_BUILD_BENCH=ON`.
    "mqDocumentBench.exe": [
        *rows(["graph record, written to a stream of structured storage",
               "graph record, read from a stream of structured storage"], (0.2, "field by field")),
    ],
}
