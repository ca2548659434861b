"""Where every line of the first release went: truth.csv and CHANGES.md."""

import csv
import io

from .writer import CATALOG


def values(text):
    """The values that a range cell offers, as canonical texts."""
    result = []
    for part in text.split(";"):
        if ".." in part:
            ends, step = part.split("/")
            low, high = ends.split("..")
            value = float(low)
            while value <= float(high) + 1e-9:
                result.append(f"{value:g}")
                value += float(step)
        else:
            result.append(canonical(part))
    return result


def canonical(cell):
    try:
        return f"{float(cell.replace(',', '.')):g}"
    except ValueError:
        return cell


def differing(old_table, old, new_table, new):
    """Names of the variables of both tables whose values differ."""
    names = {field.name for field in new_table.fields}
    result = []
    for field in old_table.fields:
        if field.name not in names or "id" in field.flags:
            continue
        a, b = old[field.name], new[field.name]
        same = set(values(a)) == set(values(b)) if field.is_range else canonical(a) == canonical(b)
        if not same:
            result.append(field.name)
    return result


def common_cells(row, names):
    return tuple(canonical(row[name]) for name in names)


def twins(old_table, new_table):
    """Ids of lines of the new table by their cells in the variables of both tables."""
    known = {field.name for field in old_table.fields}
    names = [f.name for f in new_table.fields if f.name in known and "id" not in f.flags]
    found = {}
    for index, row in enumerate(new_table.rows):
        found.setdefault(common_cells(row, names), []).append(new_table.line_id(index))
    return names, found


def truth_rows(old_tables, release):
    """Rows of truth.csv, in the order of the first release."""
    by_origin = {}
    for table in release.tables.values():
        for index, row in enumerate(table.rows):
            if row.origin:
                by_origin[row.origin] = (table, index)
    cache = {}
    for old in old_tables:
        for index, row in enumerate(old.rows):
            line = old.line_id(index)
            if (old.path, line) not in by_origin:
                yield old, line, None, "", "gone"
                continue
            new, at = by_origin[(old.path, line)]
            if (old.path, new.path) not in cache:
                cache[(old.path, new.path)] = twins(old, new)
            names, found = cache[(old.path, new.path)]
            others = found[common_cells(new.rows[at], names)]
            different = differing(old, row, new, new.rows[at])
            how = "changed: " + ";".join(different) if different else "same"
            if len(others) > 1:
                how = "several: " + ";".join(str(other) for other in others)
            yield old, line, new, new.line_id(at), how


def truth_text(old_tables, release):
    out = io.StringIO()
    writer = csv.writer(out, lineterminator="\n")
    writer.writerow(["source_path", "source_line", "target_path", "target_line", "how"])
    for old, line, new, new_line, how in truth_rows(old_tables, release):
        writer.writerow([f"{CATALOG}/{old.path}.prj", line,
                         f"{CATALOG}/{new.path}.prj" if new else "", new_line, how])
    return out.getvalue()


def changes_text(old_tables, release):
    counts = {}
    for old, _, _, _, how in truth_rows(old_tables, release):
        count = counts.setdefault(old.path, {})
        kind = how.split(":")[0]
        count[kind] = count.get(kind, 0) + 1
    lines = ["# Changes from release 1 to release 2", "",
             f"{len(old_tables)} projects with {sum(len(t.rows) for t in old_tables)} lines became "
             f"{len(release.tables)} projects with "
             f"{sum(len(t.rows) for t in release.tables.values())} lines.",
             "The numbers tell, for each project of release 1, how many of its lines",
             "", "- are the same in all variables that both tables have,", "- have other values,",
             "- stand beside an equal line of the same table, so that no choice is safe (several),",
             "- are gone.", "",
             "| project | same | changed | several | gone | what happened |",
             "| --- | ---: | ---: | ---: | ---: | --- |"]
    for old in old_tables:
        count = counts[old.path]
        numbers = " | ".join(str(count.get(kind, "")) for kind in ("same", "changed", "several", "gone"))
        told = " ".join(sentence[0].upper() + sentence[1:] if not sentence.startswith("`") else sentence
                        for sentence in release.notes.get(old.path, ["unchanged."]))
        lines.append(f"| `{old.path}` | {numbers} | {told} |")
    lines += ["", "New projects, to which no old line belongs: "
              + ", ".join(f"`{path}`" for path in release.new_projects) + "."]
    return "\n".join(lines) + "\n"
