// Checks the ERP numbers of the link database against a mapping: numbers on lines that are gone or
// not decided, and numbers that two lines of a project claim.
//
//   velkmap run examples/scripts/check-erp-numbers.js --mapping mapping.json \
//       --source examples/release-1 --linkdb links.db
//
// Ends with status 10 if something is wrong.
let wrong = 0;
const tell = text => { ++wrong; print(text); };
for (let i = 0; i < mapping.projectCount; ++i) {
    const project = mapping.projectAt(i);
    const numbers = velk.erpNumbers(project.path);
    const lineOf = {};
    for (let k = 0; k < numbers.lineCount; ++k) {
        const line = numbers.lineAt(k);
        const place = project.path + ", line " + line + ": " + numbers.numbersOf(line);
        const row = project.rowOf(line);
        if (row < 0)
            tell(place + " - the mapping does not know the line");
        else if (project.isOpenAt(row))
            tell(place + " - the line is open");
        else if (project.targetLineAt(row) < 0)
            tell(place + " - the line is discontinued");
        for (const number of numbers.numbersOf(line).split("; ")) {
            if (number in lineOf)
                tell(place + " - line " + lineOf[number] + " has it, too");
            lineOf[number] = line;
        }
    }
}
print(wrong + " findings");
exit(wrong > 0 ? 10 : 0);
