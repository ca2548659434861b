"""The second release as the first one with named changes; each change is also told in words."""

import copy

from .model import Row, Table, text


class Release:
    """Tables by path. Every row remembers the line of the first release that it continues."""

    def __init__(self, tables, date):
        self.tables = {}
        self.notes = {}
        self.new_projects = []
        for table in tables:
            continued = copy.deepcopy(table)
            continued.date = date
            for index, row in enumerate(continued.rows):
                row.origin = (table.path, table.line_id(index))
            self.tables[table.path] = continued
        self.date = date

    def note(self, path, sentence):
        """Adds a sentence to what CHANGES.md tells about a project of the first release."""
        self.notes.setdefault(path, []).append(sentence)

    def _sources(self, path):
        """The projects of the first release that the rows of a table come from."""
        return list(dict.fromkeys(row.origin[0] for row in self.tables[path].rows if row.origin))

    def _note_all(self, path, sentence):
        for source in self._sources(path):
            self.note(source, sentence)

    def rename(self, path, new_path, norm=None, designation=None):
        table = self.tables.pop(path)
        table.path = new_path
        self.tables[new_path] = table
        sentence = f"is `{new_path}` now"
        if norm:
            old, table.norm, table.designation = table.norm, norm, designation
            sentence += f"; {old} became {norm}"
        self._note_all(new_path, sentence + ".")

    def designate(self, path, designation):
        self.tables[path].designation = designation
        self._note_all(path, f"designations read `{designation}` now.")

    def split(self, path, by, parts):
        """Parts: value of the variable `by`, new path, norm number, title, English title. The
        parts lose the variable."""
        table = self.tables.pop(path)
        for value, new_path, norm, title, english in parts:
            part = copy.deepcopy(table)
            part.path, part.norm, part.title, part.english = new_path, norm, title, english
            part.designation = part.designation.replace(table.norm, norm).replace("{%s} " % by, "")
            part.fields = [field for field in part.fields if field.name != by]
            part.rows = [row for row in part.rows if row[by] == value]
            for row in part.rows:
                del row.cells[by]
            self.tables[new_path] = part
        told = ", ".join(f"`{part[1]}` ({by} `{part[0]}`)" for part in parts)
        self.note(path, f"is split: {told}. The variable `{by}` is gone; as conditions of the "
                        "targets enter " + ", ".join(f"`{by} .EQ. '{part[0]}'`" for part in parts) + ".")

    def merge(self, paths, new_path, norm, designation, title, english, by=None, values=()):
        """Appends the tables; the optional field `by` tells them apart by `values`."""
        parts = [self.tables.pop(path) for path in paths]
        fields = [by] if by else []
        for part in parts:
            fields += [f for f in part.fields if f.name not in {known.name for known in fields}]
        rows = []
        for number, part in enumerate(parts):
            for row in part.rows:
                if by:
                    row.cells[by.name] = values[number]
                rows.append(row)
        self.tables[new_path] = Table(new_path, norm, designation, title, english, fields, rows,
                                      self.date)
        for path in paths:
            others = ", ".join(f"`{other}`" for other in paths if other != path)
            self.note(path, f"is merged with {others} into `{new_path}`.")

    def rename_field(self, path, name, new_name):
        table = self.tables[path]
        table.field_named(name).name = new_name
        for row in table.rows:
            row.cells[new_name] = row.cells.pop(name)
        table.designation = table.designation.replace("{%s}" % name, "{%s}" % new_name)
        self._note_all(path, f"the variable `{name}` is `{new_name}` now.")

    def add_field(self, path, field, value):
        self.tables[path].fields.append(field)
        for row in self.tables[path].rows:
            row.cells[field.name] = text(value(row))
        self._note_all(path, f"has a new variable `{field.name}`.")

    def drop_field(self, path, name):
        table = self.tables[path]
        table.fields = [field for field in table.fields if field.name != name]
        for row in table.rows:
            del row.cells[name]
        self._note_all(path, f"the variable `{name}` is gone.")

    def change(self, path, which, changes, sentence):
        """Puts texts, or the results of functions of a row, into the cells of some rows."""
        hits = [row for row in self.tables[path].rows if which(row)]
        if not hits:
            raise ValueError(f"no row of {path} for: {sentence}")
        for row in hits:
            row.cells.update({name: text(value(row) if callable(value) else value)
                              for name, value in changes.items()})
        self._note_all(path, sentence)

    def drop(self, path, which, sentence):
        table = self.tables[path]
        kept = [row for row in table.rows if not which(row)]
        if len(kept) == len(table.rows):
            raise ValueError(f"no row of {path} for: {sentence}")
        table.rows = kept
        self._note_all(path, sentence)

    def insert(self, path, before, new_rows, sentence):
        """New rows in front of the first row for which `before` holds, else at the end."""
        table = self.tables[path]
        at = next((i for i, row in enumerate(table.rows) if before(row)), len(table.rows))
        added = [Row({name: text(value) for name, value in cells.items()}) for cells in new_rows]
        names = {field.name for field in table.fields}
        for row in added:
            if set(row.cells) != names:
                raise ValueError(f"{path}: {row.cells}")
        table.rows[at:at] = added
        self._note_all(path, sentence)

    def double(self, path, which, sentence):
        """Repeats rows behind themselves; nothing tells the two apart."""
        table = self.tables[path]
        table.rows = [copy_ for row in table.rows
                      for copy_ in ([row, Row(dict(row.cells))] if which(row) else [row])]
        self._note_all(path, sentence)

    def reorder(self, path, key, sentence):
        self.tables[path].rows.sort(key=key)
        self._note_all(path, sentence)

    def decimal_comma(self, path):
        table = self.tables[path]
        table.decimal = ","
        for row in table.rows:
            for field in table.fields:
                if not field.is_text:
                    row.cells[field.name] = row[field.name].replace(".", ",")
        self._note_all(path, "numbers are written with a decimal comma now.")

    def remove(self, path):
        self.note(path, "is withdrawn; no project of the new release holds its lines.")
        del self.tables[path]

    def add(self, table):
        table.date = self.date
        self.tables[table.path] = table
        self.new_projects.append(table.path)
