// Lists the lines that still need a decision, with their designations; a CSV file with --output.
//
//   velkmap run examples/scripts/open-lines.js --mapping mapping.json --source examples/release-1 \
//       --output open.csv
//
// An argument limits it to the projects whose paths contain it. Ends with status 10 if lines are open.
const part = args.length > 0 ? args[0] : "";
let open = 0;
if (output)
    output.writeRow(["project", "line", "designation", "why", "target", "target line"]);
for (let i = 0; i < mapping.projectCount; ++i) {
    const project = mapping.projectAt(i);
    if (!project.path.includes(part))
        continue;
    const rows = [];
    for (let row = 0; row < project.rowCount; ++row) {
        if (project.isOpenAt(row))
            rows.push(row);
    }
    if (rows.length === 0)
        continue;
    open += rows.length;
    print(project.path + ": " + rows.length);
    if (!output)
        continue;
    const table = project.sourceTable();
    for (const row of rows) {
        const line = project.sourceLineAt(row);
        const why = project.isConflictAt(row) ? "conflict"
                  : project.targetLineAt(row) < 0 ? "without target" : "to check";
        output.writeRow([project.path, line, table.designationOf(line), why,
                         project.targetPathAt(row), project.targetLineAt(row)]);
    }
}
print(open + " open lines");
exit(open > 0 ? 10 : 0);
