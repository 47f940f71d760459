"""The constant tables of a shared library: which there are, of which cells, what a cell means.

Tables are the objects in the read-only and constant sections, found in the symbol table, their
cells those of their types in the debug information, down to integers, enumerators and pointers.
Texts that have no name of their own are found between the objects.
"""

import collections
import functools
import re
import struct

from elftools.elf.elffile import ELFFile

SECTIONS = (".rodata", ".data.rel.ro", ".data")

# What lies beside the tables and is none: by symbol, and between symbols.
LEFT_OUT = (
    (r"_ZT[VIS]|DW\.ref\.", "virtual tables and type names"),
    (r"_ZZ?NK?St", "tables of the standard library"),
)
# A byte of the number before it may stand in front of a text.
STANDARD_TEXT = re.compile(r".*(/usr/|vector::|basic_string|std::|\b__\w|this->| <= size\(\))")

Leaf = collections.namedtuple("Leaf", "offset width path neighbour")
Swap = collections.namedtuple("Swap", "offset width path")
Table = collections.namedtuple("Table", "name symbol address data leaves swaps")


def attribute(die, name):
    found = die.attributes.get(name)
    return None if found is None else found.value


def type_of(die):
    """The type of a variable, a member or an element, without qualifiers and aliases."""
    while "DW_AT_type" not in die.attributes:
        origin = next(name for name in ("DW_AT_specification", "DW_AT_abstract_origin")
                      if name in die.attributes)
        die = die.get_DIE_from_attribute(origin)
    found = die.get_DIE_from_attribute("DW_AT_type")
    while found.tag in ("DW_TAG_const_type", "DW_TAG_volatile_type", "DW_TAG_typedef"):
        found = found.get_DIE_from_attribute("DW_AT_type")
    return found


def bounds_of(array):
    counts = []
    for child in array.iter_children():
        if child.tag == "DW_TAG_subrange_type":
            count = attribute(child, "DW_AT_count")
            counts.append(attribute(child, "DW_AT_upper_bound") + 1 if count is None else count)
    return counts


def members_of(structure):
    for child in structure.iter_children():
        if child.tag == "DW_TAG_inheritance":
            yield attribute(child, "DW_AT_data_member_location"), "", type_of(child)
        elif child.tag == "DW_TAG_member" and "DW_AT_data_member_location" in child.attributes:
            name = attribute(child, "DW_AT_name").decode()
            # The one member of std::array says nothing.
            path = "" if name == "_M_elems" else "." + name
            yield attribute(child, "DW_AT_data_member_location"), path, type_of(child)


class Layout:
    """Collects the cells of a type, and the elements that can change places with the next one."""

    def __init__(self):
        self.leaves = []
        self.swaps = []

    def add(self, kind, offset, path, neighbour):
        if kind.tag in ("DW_TAG_structure_type", "DW_TAG_class_type"):
            for place, name, member in members_of(kind):
                self.add(member, offset + place, path + name, neighbour)
        elif kind.tag == "DW_TAG_array_type":
            self.add_array(type_of(kind), bounds_of(kind), offset, path, neighbour)
        else:
            width = 8 if "pointer" in kind.tag or "ptr_to" in kind.tag else size_of(kind)
            self.leaves.append(Leaf(offset, width, path, neighbour))

    def add_array(self, element, counts, offset, path, neighbour):
        if not counts:
            self.add(element, offset, path, neighbour)
            return
        width = size_of(element)
        for count in counts[1:]:
            width *= count
        is_row = len(counts) > 1 or element.tag in ("DW_TAG_structure_type", "DW_TAG_class_type",
                                                    "DW_TAG_array_type")
        for index in range(counts[0]):
            step = neighbour if counts[0] == 1 else (width if index + 1 < counts[0] else -width)
            self.add_array(element, counts[1:], offset + index * width, f"{path}[{index}]", step)
            if is_row and index + 1 < counts[0]:
                self.swaps.append(Swap(offset + index * width, width, f"{path}[{index}]"))


def size_of(kind):
    if kind.tag == "DW_TAG_array_type":
        size = size_of(type_of(kind))
        for count in bounds_of(kind):
            size *= count
        return size
    return attribute(kind, "DW_AT_byte_size") or 8


def variables_of(elf):
    """The variables by name; one of the same name in another file has the same type or is none."""
    variables = collections.defaultdict(list)
    for unit in elf.get_dwarf_info().iter_CUs():
        for die in unit.iter_DIEs():
            if die.tag == "DW_TAG_variable":
                name = attribute(die, "DW_AT_name")
                if name is not None:
                    variables[name.decode()].append(die)
    return variables


def plain_name(symbol):
    """kFullIndex of _ZN3mqp12_GLOBAL__N_1L10kFullIndexE."""
    name, rest = symbol, symbol[2:]
    while symbol.startswith("_Z") and (found := re.match(r"[NL]*(\d+)", rest)):
        end = found.end() + int(found.group(1))
        name, rest = rest[found.end():end], rest[end:]
    return name


TEXT = re.compile(rb"(?P<wide>(?:[\x20-\x7e]\x00)+)\x00\x00|(?P<narrow>[\x20-\x7e]{2,})\x00")


def texts_between(data, begin, end):
    """The texts in data[begin:end] as (offset, width of a unit, bytes)."""
    place = begin
    while place < end:
        found = TEXT.match(data, place, end)
        if found and (found["narrow"] or place % 2 == 0):
            text = found["wide"] or found["narrow"]
            yield place, 2 if found["wide"] else 1, text
            place = found.end()
        else:
            place += 1


class Library:
    """The tables of a library; of what types is known from `variables`."""

    def __init__(self, path, variables):
        self.tables = []
        self.left_out = collections.Counter()
        self.variables = variables
        with open(path, "rb") as file:
            elf = ELFFile(file)
            symbols = objects_of(elf)
            for section in SECTIONS:
                self.read_section(elf.get_section_by_name(section), symbols)
        self.name_apart()

    def read_section(self, section, symbols):
        begin, data = section["sh_addr"], section.data()
        end = place = begin
        for address, size, symbol in sorted(
                {entry for entry in symbols if begin <= entry[0] < begin + len(data)}):
            self.read_gap(section, place, address)
            place = max(place, address + size)
            self.read_object(address, size, symbol, data[address - begin:][:size])
            end = place
        self.read_gap(section, end, begin + len(data))

    def read_object(self, address, size, symbol, data):
        for pattern, why in LEFT_OUT:
            if re.match(pattern, symbol):
                self.left_out[why] += size
                return
        name = plain_name(symbol)
        types = [kind for kind in map(type_of, self.variables.get(name, ())) if size_of(kind) == size]
        if not types:
            raise SystemExit(f"no type is known of {symbol}, {size} bytes")
        layout = Layout()
        layout.add(types[0], 0, "", 0)
        self.tables.append(Table(name, symbol, address, data, layout.leaves, layout.swaps))

    def read_gap(self, section, begin, end):
        first, data = section["sh_addr"], section.data()
        claimed = 0
        for offset, width, text in texts_between(data, begin - first, end - first):
            claimed += len(text) + width
            shown = text.decode("utf-16-le" if width == 2 else "ascii")
            if STANDARD_TEXT.match(shown):
                self.left_out["texts of the standard library"] += len(text) + width
                continue
            units = [Leaf(place, width, f"[{place // width}]",
                          0 if len(text) == width else
                          width if place + width < len(text) else -width)
                     for place in range(0, len(text), width)]
            self.tables.append(Table(f'text "{shown}"', "", first + offset, text, units, []))
        rest = data[begin - first:end - first]
        if any(rest) and len(rest) > claimed:
            self.left_out["numbers of the code, its jump tables, and what fills up"] += (
                len(rest) - claimed)

    def name_apart(self):
        """A text that the library has twice has its number."""
        seen = collections.Counter()
        for place, table in enumerate(self.tables):
            seen[table.name] += 1
            if seen[table.name] > 1:
                self.tables[place] = table._replace(name=f"{table.name} ({seen[table.name]})")


def objects_of(elf):
    return {(symbol["st_value"], symbol["st_size"], symbol.name)
            for symbol in elf.get_section_by_name(".symtab").iter_symbols()
            if symbol["st_info"]["type"] == "STT_OBJECT" and symbol["st_size"] > 0}


@functools.lru_cache(maxsize=None)
def addresses_in(program):
    """The addresses of the objects of a program by name and size."""
    with open(program, "rb") as file:
        return {(symbol, size): address for address, size, symbol in objects_of(ELFFile(file))}
