#pragma once

class QInputDialog;

/// Breaks the label of an input dialog into rows, which keeps dialogs that explain something as
/// narrow as others. The label's text has to be there already.
void wrapPrompt(QInputDialog *dialog);
