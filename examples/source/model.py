"""Tables, fields and rows of the example catalog, in memory."""

import re
from dataclasses import dataclass, field


def text(value):
    """The text of a cell: numbers in their shortest form, with a decimal point."""
    if value is None:
        return ""
    if isinstance(value, float):
        return f"{value:.6g}"
    return str(value)


@dataclass
class Field:
    """One variable of a table."""

    name: str
    title: str
    english: str
    flags: frozenset

    @property
    def is_text(self):
        return "text" in self.flags

    @property
    def is_range(self):
        return "range" in self.flags


@dataclass
class Row:
    """One line: its cells, and where it comes from in the release before."""

    cells: dict
    origin: tuple = None

    def __getitem__(self, name):
        return self.cells.get(name, "")


@dataclass
class Table:
    """One project with its table. `path` is relative to the catalog, without ending."""

    path: str
    norm: str
    designation: str
    title: str
    english: str
    fields: list
    rows: list
    date: str
    decimal: str = "."
    broken: bool = False
    attributes: dict = field(default_factory=dict)

    @property
    def id_field(self):
        return next((f for f in self.fields if "id" in f.flags), None)

    def field_named(self, name):
        return next(f for f in self.fields if f.name == name)

    def line_id(self, index):
        """The id that the product gives to the row at `index`."""
        if self.id_field:
            return int(self.rows[index][self.id_field.name])
        return index + 1

    def designation_of(self, row):
        return re.sub(r"\{(\w+)\}", lambda m: row[m.group(1)], self.designation)


def fields(description):
    """Reads rows of "name | German title | English title | flags"; flags: text, key, id, range, hidden."""
    result = []
    for line in description.strip().splitlines():
        parts = [part.strip() for part in line.split("|")]
        flags = frozenset(parts[3].split()) if len(parts) > 3 else frozenset()
        result.append(Field(parts[0], parts[1], parts[2], flags))
    return result


def rows(names, data):
    """Rows from tuples, in the order of the blank separated names."""
    keys = names.split()
    result = []
    for item in data:
        if len(item) != len(keys):
            raise ValueError(f"{len(item)} cells for {len(keys)} variables: {item}")
        result.append(Row(dict(zip(keys, map(text, item)))))
    return result


def between(values, low, high):
    """The values of a series from low to high, both included."""
    return [value for value in values if low <= value <= high]


def listed(values):
    """A range cell that lists its values."""
    return ";".join(text(value) for value in values)


def stepped(low, high, step):
    """A range cell with two ends and a step."""
    return f"{text(low)}..{text(high)}/{text(step)}"
