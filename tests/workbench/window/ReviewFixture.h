#pragma once

#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcoregui/table/VkTableView.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/review/CandidateModel.h>
#include <workbench/review/DifferencePanel.h>
#include <workbench/review/PatternDock.h>
#include <workbench/review/PatternModel.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/review/ReviewCommands.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>

inline const QString seals = QStringLiteral("standardparts/seals/din3760.prj");
inline const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

/// A workbench with the list of patterns open and read.
class ReviewFixture : public WindowFixture
{
public:
    ReviewFixture()
    {
        open(mappingFile());
        press(Qt::Key_F7);
        waitForPatterns();
    }

    void waitForPatterns() const
    {
        QVERIFY(QTest::qWaitFor([this] { return review()->work()->hasPatterns(); }, 20000));
        QCoreApplication::processEvents();
    }
    [[nodiscard]] ReviewCommands *review() const { return window->review(); }
    [[nodiscard]] MappingDocument *document() const { return window->desk()->document(); }
    [[nodiscard]] QTreeView *list() const { return window->findChild<QTreeView *>("PatternList"); }
    [[nodiscard]] const PatternModel *model() const
    {
        return static_cast<const PatternModel *>(list()->model());
    }
    /// The row whose text begins so.
    [[nodiscard]] int rowOf(const QString &text) const
    {
        for (int row = 0; row < model()->rowCount(); ++row) {
            if (model()->index(row, 0).data().toString().startsWith(text))
                return row;
        }
        return -1;
    }
    void choose(const QString &text)
    {
        const int row = rowOf(text);
        QVERIFY2(row >= 0, qPrintable(text));
        list()->setFocus();
        list()->setCurrentIndex(model()->index(row, 0));
        press(Qt::Key_Return);
    }
    [[nodiscard]] int linesIn(int row) const
    {
        return model()->index(row, PatternModel::Lines).data(PatternModel::ValueRole).toInt();
    }
    [[nodiscard]] QString sum() const { return window->findChild<QLabel *>("PatternSum")->text(); }
    [[nodiscard]] LineRef here() const
    {
        return {window->editor()->currentProject(), window->editor()->currentLine()};
    }
    void explain() const
    {
        QVERIFY(QTest::qWaitFor(
            [this] {
                return window->findChild<QTreeView *>("CandidateList")->model()->rowCount() > 0;
            },
            10000));
    }
};
