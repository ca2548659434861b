#include "TableMappingWidgetPrivate.h"
#include "LineActionButton.h"

#include <core/text/PString.h>
#include <geomcoregui/table/VkTableView.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

QLabel *createLabel(const QString &name, const QString &meaning, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setObjectName(name);
    label->setAccessibleName(meaning);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMinimumWidth(1); // a long text must not keep the pane from getting narrower
    return label;
}

/// A caption, a text and room behind them.
QHBoxLayout *createRow(const QString &caption, QLabel *label)
{
    auto *const row = new QHBoxLayout;
    row->setContentsMargins(4, 0, 0, 0);
    row->addWidget(new QLabel(caption, label->parentWidget()));
    row->addWidget(label);
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    return row;
}

QCheckBox *createBox(const char *name, const QString &text, QWidget *parent)
{
    auto *const box = new QCheckBox(text, parent);
    box->setObjectName(QLatin1String(name));
    return box;
}

} // namespace

TableMappingWidgetPrivate::TableMappingWidgetPrivate(TableMappingWidget *widget)
    : PPrivateData<TableMappingWidget>(widget)
    , valueRangeWarning(PString::translate(
          "Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der "
          "Tabellengröße, sehr lange dauern.\nWirklich fortfahren?",
          "VelkLinkDbGui"))
{
    auto *const layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    setupStatusKeys(options);
    auto *const splitter = new QSplitter(Qt::Horizontal, q);
    splitter->setObjectName(QStringLiteral("tableSplitter"));
    layout->addWidget(splitter, 1);
    splitter->addWidget(createSourcePane());
    splitter->addWidget(createTargetPane());
    QCheckBox *const hiddenBox = createBox(
        "chkShowHiddenCols", PString::translate("Versteckte Spalten anzeigen", "VelkLinkDbGui"), q);
    connect(hiddenBox, SIGNAL(toggled(bool)), this, SLOT(onToggleShowHiddenCols()));
    layout->addWidget(hiddenBox);
}

TableMappingWidgetPrivate::~TableMappingWidgetPrivate() = default;

VkTableView *TableMappingWidgetPrivate::createView(const char *name)
{
    auto *const view = new VkTableView(q);
    view->setObjectName(QLatin1String(name));
    view->setHeaderVisible(false);
    view->setShowTopoValues(false);
    return view;
}

QWidget *TableMappingWidgetPrivate::createSourcePane()
{
    sourceView = createView("sourceView");
    sourceView->connectPopupShow(
        [this, alive = reference()](const VKTab::Content &content, QMenu *menu, int area, int row) {
            return alive.expired() ? 0 : onSourcePopupShow(content, menu, area, row);
        });
    sourceView->connectIconClicked(
        [this, alive = reference()](const VKTab::Content &content, int row, const QString &key) {
            return alive.expired() ? 0 : onStatusIconClicked(content, row, key);
        });
    sourceView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    sourceView->setShowInternalValues(true);
    btnResolvedRanges =
        createButton("btnResolvedRanges", ":/toolicons/actionFormatRanges_16.png",
                     PString::translate("Aufgelöste Wertebereiche zuordnen", "VelkLinkDbGui"), {},
                     SLOT(onMapResolvedValueRangesClicked()));
    btnResolvedRanges->setEnabled(false);
    btnCondition =
        createButton("btnCondition", ":/toolicons/actionFormatAlgorithm_16.png",
                     PString::translate("Bedingung für die markierte Zeile generieren und in die "
                                        "Zwischenablage kopieren",
                                        "VelkLinkDbGui"),
                     {}, SLOT(onCreateConditionClicked()));
    QPushButton *const verifyAll =
        createButton("btnVerifyAll", ":/bitmaps/double_check.png",
                     PString::translate("Alle Zuordnungen bestätigen", "VelkLinkDbGui"), {},
                     SLOT(onVerifyAllClicked()));
    chkFilterSource = createBox(
        "chkFilterSource",
        PString::translate("Zeige nur nicht zugewiesene Zeilen (Quellprojekt)", "VelkLinkDbGui"),
        q);
    connect(chkFilterSource, SIGNAL(stateChanged(int)), this, SLOT(onChkFilterNotMappedLines(int)));
    const Pane pane = createTablePane(
        "source", sourceView, {btnResolvedRanges, btnCondition, verifyAll}, chkFilterSource);
    sourcePathLabel = pane.path;
    sourceNumberLabel = pane.number;
    designationLabels.sourceLabel = pane.designation;
    return pane.widget;
}

QWidget *TableMappingWidgetPrivate::createTargetPane()
{
    targetView = createView("targetView");
    targetView->connectPopupShow(
        [this, alive = reference()](const VKTab::Content &content, QMenu *menu, int area, int row) {
            return alive.expired() ? 0 : onTargetPopupShow(content, menu, area, row);
        });
    targetView->setShowInternalValues(true);
    btnMapLine = createButton(
        "btnMapLine", ":/bitmaps/line.png",
        PString::translate("Aktuell markierte Zeile zuordnen", "VelkLinkDbGui") + " (v)",
        QKeySequence(Qt::Key_V), SLOT(onMapLineClicked()));
    btnRemoveLine = createButton(
        "btnRemoveLine", "bitmaps:indextree/state_deleted.png",
        PString::translate("Zuordnung zu diesem Projekt aufheben", "VelkLinkDbGui") + " (x)",
        QKeySequence(Qt::Key_X), SLOT(onRemoveLineMappingClicked()));
    btnRemoveVerifyLine = createButton(
        "btnRemoveVerifyLine", ":/bitmaps/remove_verify.png",
        PString::translate("Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)",
                           "VelkLinkDbGui"),
        QKeySequence(Qt::CTRL | Qt::Key_X), SLOT(onRemoveVerifyLineMappingClicked()));
    chkFilterTarget = createBox(
        "chkFilterTarget",
        PString::translate("Zeige nur nicht zugewiesene Zeilen (Zielprojekt)", "VelkLinkDbGui"), q);
    connect(chkFilterTarget, SIGNAL(stateChanged(int)), this, SLOT(onChkFilterTargetLines(int)));
    const Pane pane = createTablePane(
        "target", targetView, {btnMapLine, btnRemoveLine, btnRemoveVerifyLine}, chkFilterTarget);
    targetPathLabel = pane.path;
    targetNumberLabel = pane.number;
    designationLabels.targetLabel = pane.designation;
    return pane.widget;
}

TableMappingWidgetPrivate::Pane
TableMappingWidgetPrivate::createTablePane(const QString &side, VkTableView *view,
                                           const QList<QPushButton *> &buttons, QCheckBox *box)
{
    const QString designation = PString::translate("Normbezeichnung", "VelkLinkDbGui");
    const QString number = PString::translate("Normnummer", "VelkLinkDbGui");
    const QString path = PString::translate("Pfad:", "VelkLinkDbGui");
    Pane pane;
    pane.widget = new QWidget(q);
    pane.path = createLabel(side + "PathLabel", path, pane.widget);
    pane.designation = createLabel(side + "DesignationLabel", designation, pane.widget);
    pane.number = createLabel(side + "NumberLabel", number, pane.widget);
    auto *const layout = new QVBoxLayout(pane.widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(createRow(path + " ", pane.path));
    layout->addLayout(createRow(designation + ": ", pane.designation));
    QHBoxLayout *const numberRow = createRow(number + ": ", pane.number);
    for (QPushButton *const button : buttons)
        numberRow->addWidget(button);
    layout->addLayout(numberRow);
    layout->addWidget(view, 1);
    layout->addWidget(box);
    return pane;
}

QPushButton *TableMappingWidgetPrivate::createButton(const char *name, const QString &icon,
                                                     const QString &toolTip,
                                                     const QKeySequence &keys, const char *slot)
{
    auto *const button = new LineActionButton(QIcon(icon), QString(), q);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setShortcut(keys);
    button->setFocusPolicy(Qt::TabFocus); // after a click the arrow keys still walk the lines
    connect(button, SIGNAL(clicked()), this, slot);
    return button;
}
