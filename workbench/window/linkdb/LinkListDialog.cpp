#include "LinkListDialog.h"

#include <core/text/countText.h>
#include <geomcore/linkdb/LinkDbDeletedRows.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>
#include <gui/application/PApplication.h>
#include <workbench/window/message/Question.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum LinkColumn { LinkNumber, LinkPath, LinkLine, LinkName };

QString likeText(const QString &search)
{
    QString text = search.toLower();
    for (const QChar sign : {u'\\', u'%', u'_'})
        text.replace(sign, QString(u'\\') + sign);
    return u'%' + text + u'%';
}

} // namespace

LinkListDialog::LinkListDialog(const PRefPtr<PLinkDbC> &linkDb, QWidget *parent)
    : QDialog(parent)
    , m_linkDb(linkDb)
    , m_search(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_count(new QLabel(this))
{
    setObjectName("LinkListDialog");
    setWindowTitle(tr("Linkmanager"));
    m_search->setObjectName("search");
    m_search->setPlaceholderText(tr("Nummer, Projekt oder Bezeichnung suchen"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_list->setObjectName("links");
    m_list->setAccessibleName(windowTitle());
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHeaderLabels({tr("Nummer"), tr("Projekt"), tr("Zeile"), tr("Bezeichnung")});
    m_count->setObjectName("count");
    auto *buttons = new QDialogButtonBox(this);
    const auto addButton = [&](const QString &text, const char *name) {
        QPushButton *const button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(name);
        button->setAutoDefault(false);
        return button;
    };
    m_show = addButton(tr("Zeile &zeigen"), "show");
    m_move = addButton(tr("Mit anderer Zeile &verknüpfen..."), "move");
    m_move->setToolTip(tr("Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit "
                          "\"Auswahl an Linkmanager\"."));
    QPushButton *const restore = addButton(tr("Zuletzt &Gelöschtes..."), "restore");
    buttons->addButton(tr("&Schließen"), QDialogButtonBox::RejectRole)->setObjectName("close");
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_list);
    layout->addWidget(m_count);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_search, &QLineEdit::returnPressed, this, &LinkListDialog::load);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (text.isEmpty())
            load();
    });
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &LinkListDialog::updateButtons);
    connect(m_list, &QTreeWidget::itemDoubleClicked, m_show, &QPushButton::click);
    connect(m_show, &QPushButton::clicked, this, [this] {
        if (const QTreeWidgetItem *const item = m_list->currentItem())
            Q_EMIT lineWanted(item->text(LinkPath), item->text(LinkLine).toInt());
    });
    connect(m_move, &QPushButton::clicked, this, [this] { setAwaiting(true); });
    connect(restore, &QPushButton::clicked, this, &LinkListDialog::restoreDeleted);
    resize(800, 500);
    PApplication::setupWindow(this);
    load();
}

LinkListDialog::~LinkListDialog()
{
    PApplication::saveWindow(this);
}

void LinkListDialog::load()
{
    const QString table = m_linkDb->getTableName("PLMTABLE2");
    QString statement = "SELECT GEO_ID, PDMID1, PRJ_PATH, LINE_ID, NBDEFAULTLANG FROM " + table;
    if (!m_search->text().isEmpty()) {
        // Each database has another idea of LIKE for capitals.
        const QString like =
            ") LIKE " + m_linkDb->literal(likeText(m_search->text())) + " ESCAPE '\\'";
        statement += " WHERE LOWER(PDMID1" + like + " OR LOWER(PRJ_PATH" + like +
                     " OR LOWER(NBDEFAULTLANG" + like;
    }
    statement += " ORDER BY PRJ_PATH, LINE_ID, PDMID1 LIMIT " + QString::number(MostRows + 1);
    const PRefPtr<PLinkDbQueryI> found = m_linkDb->executeSelectStatement(statement);
    if (!found->isValid())
        return m_linkDb->showLastError(); // what was found before stays
    PLinkDbQueryCacheC rows(found);
    QList<QTreeWidgetItem *> items;
    while (rows.next()) {
        auto *item = new QTreeWidgetItem({rows.value(1).toString(), rows.value(2).toString(),
                                          rows.value(3).toString(), rows.value(4).toString()});
        item->setData(0, Qt::UserRole, rows.value(0));
        items.append(item);
    }
    const bool isMore = items.size() > MostRows;
    if (isMore)
        delete items.takeLast();
    m_list->clear();
    m_list->addTopLevelItems(items);
    for (int column = 0; column < m_list->columnCount(); ++column)
        m_list->resizeColumnToContents(column);
    m_count->setText(isMore
                         ? tr("Die ersten %Ln Link(s); die Suche zeigt andere.", nullptr, MostRows)
                         : tr("Links: %1").arg(countText(items.size())));
    updateButtons();
}

QString LinkListDialog::currentId() const
{
    const QList<QTreeWidgetItem *> selected = m_list->selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->data(0, Qt::UserRole).toString();
}

void LinkListDialog::updateButtons()
{
    m_show->setEnabled(!currentId().isEmpty());
    m_move->setEnabled(!currentId().isEmpty());
}

void LinkListDialog::setAwaiting(bool awaiting)
{
    m_awaiting = awaiting;
    setVisible(!awaiting);
    if (!awaiting)
        raise();
    Q_EMIT awaitingChanged();
}

void LinkListDialog::takeSelection(const QString &path, int line)
{
    const QString id = currentId();
    if (!m_awaiting || id.isEmpty() || path.isEmpty() || line < 0)
        return;
    const bool done =
        m_linkDb->executeInsertStatement(
            "UPDATE " + m_linkDb->getTableName("PLMTABLE2") +
            " SET PRJ_PATH = " + m_linkDb->literal(QString(m_linkDb->makeRelativePath(path))) +
            ", LINE_ID = " + QString::number(line) + " WHERE GEO_ID = " + m_linkDb->literal(id)) &&
        m_linkDb->commit();
    if (!done)
        m_linkDb->showLastError();
    load();
    setAwaiting(false);
}

void LinkListDialog::cancelSelection()
{
    if (m_awaiting)
        setAwaiting(false);
}

/// The rows of the last statement that deleted any.
void LinkListDialog::restoreDeleted()
{
    QList<LinkDbDeletedRow> rows = LinkDbDeletedRows::list(*m_linkDb, MostRows);
    if (!rows.isEmpty())
        rows.removeIf(
            [last = rows.first().batch](const LinkDbDeletedRow &row) { return row.batch != last; });
    if (rows.isEmpty())
        return Question::tell(this, tr("Es ist nichts gelöscht, was wiederhergestellt werden "
                                       "könnte."));
    Question question(this);
    question.setText(
        tr("Zuletzt Gelöschtes wiederherstellen? Zeilen: %1").arg(countText(rows.size())));
    question.setDetails(
        tr("%1 hat sie am %2 aus %3 gelöscht.")
            .arg(rows.first().user,
                 QLocale().toString(rows.first().time.toLocalTime(), QLocale::ShortFormat),
                 rows.first().table));
    question.addAnswer(Question::Accept, tr("&Wiederherstellen"));
    question.addAnswer(Question::Cancel, Question::cancelText());
    if (question.ask() != Question::Accept)
        return;
    if (!LinkDbDeletedRows::restore(*m_linkDb, rows) || !m_linkDb->commit())
        m_linkDb->showLastError();
    load();
}
