#include "TopSearchWidget.h"

#include "ConditionRow.h"
#include "searchText.h"

#include <core/text/PString.h>
#include <geomcore/index/DisplayIndexC.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/search/IndexTreeKeySearchC.h>
#include <geomcore/search/IndexTreeVarSearchC.h>

#include <QCheckBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

#include <QToolButton>

namespace {

constexpr int mostPlaceCharacters = 60; // of a place

template<class Search>
PRefPtr<Search> searchOf(RemoteSearchRequestDataC &request)
{
    PRefPtr<Search> search(
        dynamic_cast<Search *>(request.getSearchClassByName(Search::searchName(), true).get()));
    if (!search) {
        search = new Search(IndexTreeC::instance());
        request.addSearchClass(search);
    }
    return search;
}

PRefPtr<IndexTreeVarSearchConditionC> fullTextOf(const RemoteSearchRequestDataC &request)
{
    const auto *const search = dynamic_cast<const IndexTreeVarSearchC *>(
        request.getSearchClassByName(IndexTreeVarSearchC::searchName(), true).get());
    return search ? search->findFullTextCondition() : nullptr;
}

QString keyWordOf(const RemoteSearchRequestDataC &request)
{
    const auto *const search = dynamic_cast<const IndexTreeKeySearchC *>(
        request.getSearchClassByName(IndexTreeKeySearchC::searchName(), true).get());
    return search ? search->getKeyWord() : QString();
}

PRefPtr<IndexTreeNodeC> nodeOf(const IndexTreeDisplayItemI &item)
{
    const QString path =
        item.data(DisplayIndexC(DisplayIndexC::Path, DisplayIndexC::CatalogRelative)).toString();
    const auto node = IndexTreeC::instance()->findNodeByTreePath(
        PString(QStringLiteral("cat/") + path), PString());
    return node && node->isProject() ? node->parent() : node;
}

} // namespace

TopSearchWidget::TopSearchWidget(const QStringList &searchNames, QWidget *parent)
    : QWidget(parent)
    , m_hasConditions(searchNames.contains(IndexTreeVarSearchC::searchName()))
    , m_request(new RemoteSearchRequestDataC)
    , m_words(new QLineEdit(this))
    , m_add(new QToolButton(this))
    , m_scope(new QCheckBox(this))
{
    m_words->setObjectName(QStringLiteral("searchWords"));
    m_words->setPlaceholderText(searchText("Name, Norm, Bezeichnung oder Wert"));
    constexpr int FrameAndCursor = 16;
    m_words->setMinimumWidth(m_words->fontMetrics().horizontalAdvance(m_words->placeholderText()) +
                             FrameAndCursor);
    m_words->setAccessibleName(searchText("Suchwörter"));
    m_words->setClearButtonEnabled(true);
    m_words->installEventFilter(this);
    m_add->setObjectName(QStringLiteral("conditionAdd"));
    m_add->setText(searchText("Bedingung hinzufügen"));
    m_add->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_add->setVisible(m_hasConditions);
    m_scope->setObjectName(QStringLiteral("searchScope"));
    auto *const row = new QHBoxLayout;
    row->addWidget(m_words, 1);
    row->addWidget(m_add);
    m_rowLayout = new QVBoxLayout;
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addLayout(m_rowLayout);
    layout->addWidget(m_scope);
    const bool hasWords =
        searchNames.contains(IndexTreeKeySearchC::searchName()) || m_hasConditions;
    m_words->setVisible(hasWords);
    setFocusProxy(m_words);
    connect(m_words, &QLineEdit::textChanged, this, &TopSearchWidget::requestChanged);
    connect(m_scope, &QCheckBox::toggled, this, &TopSearchWidget::requestConfirmed);
    connect(m_add, &QToolButton::clicked, this, [this] { addRow()->focusVariable(); });
    showScope();
}

TopSearchWidget::~TopSearchWidget() = default;

QString TopSearchWidget::words() const
{
    return m_words->text().simplified();
}

void TopSearchWidget::setRecentWords(const QStringList &words)
{
    auto *const completer = new QCompleter(words, m_words);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchStartsWith);
    delete m_words->completer();
    m_words->setCompleter(completer);
}

void TopSearchWidget::focusWords()
{
    m_words->setFocus();
}

PRefPtr<RemoteSearchRequestDataC> TopSearchWidget::getRequestData() const
{
    PRefPtr<RemoteSearchRequestDataC> request = m_request->clone();
    writeWords(*request);
    writeConditions(*request);
    if (!m_scope->isChecked() && !request->isNodeListFixed())
        request->setNodeList({});
    return request;
}

void TopSearchWidget::writeWords(RemoteSearchRequestDataC &request) const
{
    if (const auto condition = fullTextOf(request))
        condition->setValLow(m_words->text());
    else if (!m_words->text().isEmpty() ||
             request.getSearchClassByName(IndexTreeKeySearchC::searchName(), true))
        searchOf<IndexTreeKeySearchC>(request)->setKeyWord(m_words->text());
}

void TopSearchWidget::writeConditions(RemoteSearchRequestDataC &request) const
{
    if (!m_hasConditions)
        return;
    const auto fullText = fullTextOf(request);
    if (!fullText && m_rows.isEmpty() &&
        !request.getSearchClassByName(IndexTreeVarSearchC::searchName(), true))
        return;
    const auto search = searchOf<IndexTreeVarSearchC>(request);
    search->removeConditions();
    search->addCondition(fullText);
    for (const ConditionRow *const row : m_rows)
        search->addCondition(row->condition());
}

void TopSearchWidget::setRequestData(const PRefPtr<RemoteSearchRequestDataC> &request)
{
    m_request = request ? request->clone()
                        : PRefPtr<RemoteSearchRequestDataC>(new RemoteSearchRequestDataC);
    const auto fullText = fullTextOf(*m_request);
    QSignalBlocker blocker(this);
    QStringList words{keyWordOf(*m_request), fullText ? fullText->getValLow() : QString()};
    words.removeAll(QString());
    if (fullText && words.size() > 1)
        searchOf<IndexTreeKeySearchC>(*m_request)->setKeyWord({});
    m_words->setText(words.join(u' '));
    showConditions(*m_request);
    m_scope->setChecked(true);
    showScope();
    blocker.unblock();
    Q_EMIT requestConfirmed();
}

void TopSearchWidget::showConditions(const RemoteSearchRequestDataC &request)
{
    while (!m_rows.isEmpty())
        delete m_rows.takeLast();
    const auto *const search = dynamic_cast<const IndexTreeVarSearchC *>(
        request.getSearchClassByName(IndexTreeVarSearchC::searchName(), true).get());
    if (!search || !m_hasConditions)
        return;
    for (const auto &condition : search->getConditions()) {
        if (!condition->isFullText())
            addRow()->setCondition(*condition);
    }
}

ConditionRow *TopSearchWidget::addRow()
{
    auto *const row = new ConditionRow(this);
    m_rows.append(row);
    m_rowLayout->addWidget(row);
    row->show();
    connect(row, &ConditionRow::changed, this, &TopSearchWidget::requestChanged);
    connect(row, &ConditionRow::confirmed, this, &TopSearchWidget::requestConfirmed);
    connect(row, &ConditionRow::removeClicked, this, [this, row] {
        m_rows.removeOne(row);
        row->hide();
        row->deleteLater();
        m_words->setFocus();
        Q_EMIT requestConfirmed();
    });
    return row;
}

void TopSearchWidget::onIndexNodeSelected(const PRefPtr<IndexTreeDisplayItemI> &item)
{
    if (m_request->isNodeListFixed() || !item)
        return;
    const PRefPtr<IndexTreeNodeC> node = nodeOf(*item);
    m_request->setNodeList(node ? QList{node} : QList<PRefPtr<IndexTreeNodeC>>());
    {
        const QSignalBlocker blocker(m_scope);
        m_scope->setChecked(true);
    }
    showScope();
    Q_EMIT requestConfirmed();
}

/// Names the places; as plain text, whatever the catalogs are called.
void TopSearchWidget::showScope()
{
    QStringList places;
    for (const auto &node : m_request->getNodeList()) {
        if (node && !node->catalogPath().isEmpty())
            places.append(node->catalogPath().simplified().left(mostPlaceCharacters));
    }
    m_scope->setVisible(!places.isEmpty());
    m_scope->setEnabled(!m_request->isNodeListFixed());
    m_scope->setText(
        searchText("Nur in %1 suchen")
            .arg(places.join(QStringLiteral(", ")).replace(u'&', QStringLiteral("&&"))));
}

bool TopSearchWidget::eventFilter(QObject *object, QEvent *event)
{
    if (object != m_words || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(object, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    // Return must not reach the default button of a dialog.
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        Q_EMIT requestConfirmed();
    else if (key == Qt::Key_Down)
        Q_EMIT resultsWanted();
    else
        return QWidget::eventFilter(object, event);
    return true;
}
