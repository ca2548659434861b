"""Writes the tables of a release as project files, descriptors and CSV files."""

import csv
import io
import json

CATALOG = "standardparts"


def project_text(table):
    """An INI-like project file; SACHM names the table's descriptor."""
    name = table.path.rsplit("/", 1)[-1]
    lexemes = {"NAME": f"{table.norm} {table.title}", "DATE": table.date, "SACHM": name + ".json",
               "VERSIONPRJ": "v" + table.date[2:4] + "-" + table.date[5:7]}
    return "[PROJECT]\n" + "".join(f"{key}={value}\n" for key, value in lexemes.items())


def field_json(table, field):
    result = {"name": field.name, "title": field.title,
              "type": "string" if field.is_text else "integer" if "id" in field.flags else "number",
              "kind": "range" if field.is_range else "internal" if "id" in field.flags else "plain"}
    if "hidden" in field.flags:
        result["hidden"] = True
    if table.decimal != "." and result["type"] == "number":
        result["decimalChar"] = table.decimal
    if result["type"] == "number" and "bare" not in field.flags:
        result["unit"] = "mm"
    if field.english != field.title:
        result["translations"] = {"en": {field.title: field.english}}
    return result


def descriptor_text(table):
    result = {"name": table.path.rsplit("/", 1)[-1], "title": table.title,
              "normNumber": table.norm, "designation": table.title,
              "lineDesignation": table.designation, "finalDate": table.date}
    if table.id_field:
        result["lineIdField"] = table.id_field.name
    result["primaryKey"] = [field.name for field in table.fields if "key" in field.flags]
    if table.attributes:
        result["attributes"] = table.attributes
    result["translations"] = {"en": {table.title: table.english}}
    result["fields"] = [field_json(table, field) for field in table.fields]
    return json.dumps(result, indent=2, ensure_ascii=False) + "\n"


def csv_text(table):
    out = io.StringIO()
    writer = csv.writer(out, lineterminator="\n")
    names = [field.name for field in table.fields]
    writer.writerow(names)
    for row in table.rows:
        writer.writerow([row[name] for name in names])
    text = out.getvalue()
    if table.broken:
        head, last = text[:-1].rsplit("\n", 1)
        text = f'{head}\n"{last}\n'
    return text


def release_files(tables):
    """The files of a release by path below its folder."""
    files = {}
    for table in tables:
        base = f"{CATALOG}/{table.path}"
        files[base + ".prj"] = project_text(table)
        files[base + ".json"] = descriptor_text(table)
        files[base + ".csv"] = csv_text(table)
    return files
