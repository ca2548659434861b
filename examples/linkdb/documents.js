// Shows the documents of a line and tells what became of them.
//   args: PROJECT_FILE LINE
// New records need a number; edited ones are marked with a new revision.

const project = args[0];
const line = Number(args[1]);

const gui = createObject("tmvtools.linkdbgui");
gui.linkDbIface = createObject("tmvtools.linkdb");
const documents = gui.createPdmDocViewDialog();
documents.VelkTab = velk.openTable(project);

const checks = {
  // 1 drops the record; whoever returns it says why.
  create(values, table) {
    if (values.item("PDMID1") === "") {
      print("A record needs a number in PDMID1");
      return 1;
    }
    print("new: " + values.item("PDMID1") + " for " + table.normNumberOf(line));
    return 0;
  },
  update(values) {
    const revision = values.item("PDMID2");
    values.addObj("PDMID2", revision === "" ? "A" : revision + "+");
    print("edited: " + values.item("PDMID1"));
    return 0;
  },
};
documents.SetCreateCallback(checks, "create");
documents.SetUpdateCallback(checks, "update");

const accepted = documents.ShowDialog(project, line, 0) === 1;
print(accepted ? "picked: " + documents.getXVarset() : "nothing picked");
if (documents.Modified) {
  documents.UpdatePLMInfo();
}
// Deleting leaves its last step to whoever commits.
gui.linkDbIface.commit();
