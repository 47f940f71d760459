"""The list of equivalents: the changes that no answer of the library tells, and why.

equivalents.json has a line for each kind: table, member and change, where * stands for anything and
| for or, the reason, and where not all rows are meant, either their numbers or `where`, the name of
a rule below.
"""

import collections
import functools
import itertools
import json
import pathlib
import re

LIST = pathlib.Path(__file__).with_name("equivalents.json")
CELL_SIZE = 10    # of an index: two lists, of which the first value and the count, and a condition
LIST_SIZE = 4
CHOICE_SIZE = 8   # two conditions, then by bytes what is chosen while none, the first, the second, both hold


def number_at(table, place):
    return int.from_bytes(table.data[place:place + 2], "little")


def is_behind_text(table, mutant):
    """The unit and the one before it are zeros, of which the first ends the text."""
    place = mutant.offset - mutant.offset % 2
    return place >= 2 and number_at(table, place) == number_at(table, place - 2) == 0


def has_no_condition(table, mutant):
    return number_at(table, mutant.rows[0] * CELL_SIZE + 2 * LIST_SIZE) == 0


def place_of_list(mutant):
    cell, number = mutant.rows
    return cell * CELL_SIZE + number * LIST_SIZE


def is_never_taken(table, mutant):
    return mutant.rows[1] == 1 and has_no_condition(table, mutant)


def is_list_empty(table, mutant):
    return number_at(table, place_of_list(mutant) + 2) == 0


def list_of(table, data, place):
    """The values of components 0 to 128 by the list that `place` describes."""
    first, count = (int.from_bytes(data[place + step:][:2], "little") for step in (0, 2))
    begin, end = (leaf_at(table, f".values[{row}]") for row in (0, 1))
    width = end - begin
    return [data[begin + width * (first + min(component, count)):][:width]
            for component in range(129)]


def leaf_at(table, path):
    return next(leaf.offset for leaf in table.leaves if leaf.path.startswith(path))


def reads_the_same(table, mutant):
    changed = bytearray(table.data)
    changed[mutant.offset:mutant.offset + len(mutant.bytes)] = mutant.bytes
    place = place_of_list(mutant)
    return list_of(table, table.data, place) == list_of(table, bytes(changed), place)


def has_no_such_condition(table, mutant):
    row, held = mutant.rows
    return any(held >> place & 1 and number_at(table, row * CHOICE_SIZE + 2 * place) == 0
               for place in (0, 1))


def chooses_zero_alone(table, mutant):
    """No value and no condition."""
    return not any(table.data[mutant.rows[0] * CHOICE_SIZE:][:CHOICE_SIZE])


def is_of_one_unit(table, mutant):
    first, last = (number_at(table, mutant.offset // 12 * 12 + place) for place in (0, 2))
    return first == last


def is_behind_no_member(table, mutant):
    """The first of three members says that there are none."""
    first = leaf_at(table, f".values[{mutant.rows[0]}][0]")
    return mutant.rows[1] > 0 and table.data[first] == 0xFF


WHERE = {"behind the end of a text": is_behind_text,
         "the cell has no condition": has_no_condition,
         "it is the second list of a cell without a condition": is_never_taken,
         "there are no members": is_behind_no_member,
         "the list is empty": is_list_empty,
         "the list reads the same": reads_the_same,
         "there is no such condition": has_no_such_condition,
         "nothing is chosen": chooses_zero_alone,
         "the range is of one unit": is_of_one_unit}


def write_rows(rows):
    """(3, 4), (3, 5), (3, 7) as 3:4-5,7; rows with one index without the colon."""
    lines = []
    for front, group in itertools.groupby(sorted(rows), key=lambda row: row[:-1]):
        ranges = []
        for row in group:
            if ranges and ranges[-1][1] == row[-1] - 1:
                ranges[-1][1] = row[-1]
            else:
                ranges.append([row[-1], row[-1]])
        text = ",".join(str(low) if low == high else f"{low}-{high}" for low, high in ranges)
        lines.append(":".join([*map(str, front), text]))
    return " ".join(lines)


def read_rows(text):
    rows = set()
    for group in text.split():
        *front, ranges = group.split(":")
        for part in ranges.split(","):
            low, _, high = part.partition("-")
            rows.update((*map(int, front), last) for last in range(int(low), int(high or low) + 1))
    return rows


def matches(pattern, text):
    return any(re.fullmatch(".*".join(map(re.escape, choice.split("*"))), text)
               for choice in pattern.split("|"))


class Equivalents:
    def __init__(self, all_tables):
        self.tables = all_tables
        self.entries = json.loads(LIST.read_text(encoding="utf-8")) if LIST.exists() else []
        for entry in self.entries:
            if not entry["reason"]:
                raise SystemExit(f"{LIST.name} has no reason for {entry}")
            if "rows" in entry:
                entry["rows"] = read_rows(entry["rows"])

    @functools.lru_cache(maxsize=None)
    def entries_of(self, *key):
        return [entry for entry in self.entries
                if all(matches(entry[name], part)
                       for name, part in zip(("table", "member", "change"), key))]

    def key_of(self, mutant):
        return self.tables[mutant.table].name, mutant.member, mutant.change

    def has(self, mutant):
        return any(("rows" not in entry or (mutant.rows or (0,)) in entry["rows"]) and
                   ("where" not in entry or
                    WHERE[entry["where"]](self.tables[mutant.table], mutant))
                   for entry in self.entries_of(*self.key_of(mutant)))

    def differences(self, asked, equivalent_ids):
        """Lines like those of the list for every mutant that is listed and no equivalent, or the
        other way round."""
        rows = collections.defaultdict(set)
        for mutant in asked:
            is_equivalent = mutant.id in equivalent_ids
            if is_equivalent != self.has(mutant):
                what = ("no answer tells, and not listed: " if is_equivalent else
                        "answers tell, but listed: ")
                rows[what, *self.key_of(mutant)].add(mutant.rows or (0,))
        return [what + json.dumps({"table": table, "member": member, "change": change,
                                   "rows": write_rows(found), "reason": ""}, ensure_ascii=False)
                for (what, table, member, change), found in sorted(rows.items())]
