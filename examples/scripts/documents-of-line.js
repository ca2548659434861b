// Opens the document dialog for a line, or for the one that is selected in the editor.
//
//   velkworkbench --mapping mapping.json --source examples/release-1 --target examples/release-2 \
//       --script examples/scripts/documents-of-line.js standardparts/screws/iso4014.prj 3
//
// Or open it in the editor by Edit > Script and run it there. Needs a link database.
if (args.length > 1) {
    if (!workbench.selectProject(args[0]))
        throw new Error("There is no project " + args[0]);
    if (!workbench.selectLine(Number(args[1])))
        throw new Error("The project has no line " + args[1]);
}
if (workbench.line < 0)
    throw new Error("Select a line first");
if (!velk.hasLinkDb)
    throw new Error("Connect a link database first");
const gui = createObject("tmvtools.linkdbgui");
gui.linkDbIface = createObject("tmvtools.linkdb");
const dialog = gui.createPdmDocViewDialog();
dialog.ParentWindow = workbench.window;
dialog.VelkTab = workbench.table;
const result = dialog.ShowDialog(workbench.projectFile, workbench.line, 0);
print("closed with " + result + (dialog.Modified ? ", documents were changed" : ""));
