#include "wrapPrompt.h"

#include <QInputDialog>
#include <QLabel>

#include <algorithm>

void wrapPrompt(QInputDialog *dialog)
{
    constexpr int LettersInARow = 60;
    auto *const label = dialog->findChild<QLabel *>();
    const int wide = label->fontMetrics().averageCharWidth() * LettersInARow;
    label->setMinimumWidth(std::min(label->sizeHint().width(), wide));
    label->setWordWrap(true);
}
