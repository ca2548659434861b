#include "ConditionRow.h"

#include "searchText.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

using Condition = IndexTreeVarSearchConditionC;
using Op = CatalogSearchCondition::Op;

QLineEdit *makeEdit(const QString &objectName, const QString &meaning, QWidget *parent)
{
    auto *const edit = new QLineEdit(parent);
    edit->setObjectName(objectName);
    edit->setPlaceholderText(meaning);
    edit->setAccessibleName(meaning);
    return edit;
}

void addOperators(QComboBox *box)
{
    box->addItem(QStringLiteral("="), Op::Equal);
    box->addItem(QStringLiteral("≠"), Op::NotEqual);
    box->addItem(QStringLiteral("<"), Op::Less);
    box->addItem(QStringLiteral("≤"), Op::LessEqual);
    box->addItem(QStringLiteral(">"), Op::Greater);
    box->addItem(QStringLiteral("≥"), Op::GreaterEqual);
    box->addItem(searchText("von–bis"), Op::Between);
    box->addItem(searchText("enthält"), Op::Contains);
    box->addItem(searchText("beginnt mit"), Op::StartsWith);
}

} // namespace

ConditionRow::ConditionRow(QWidget *parent)
    : QWidget(parent)
    , m_variable(makeEdit(QStringLiteral("conditionVariable"), searchText("Variable"), this))
    , m_operator(new QComboBox(this))
    , m_low(makeEdit(QStringLiteral("conditionValue"), searchText("Wert"), this))
    , m_to(new QLabel(searchText("bis"), this))
    , m_high(makeEdit(QStringLiteral("conditionHigh"), searchText("Wert"), this))
    , m_searchType(Condition::SearchVariable)
{
    setObjectName(QStringLiteral("conditionRow"));
    m_operator->setObjectName(QStringLiteral("conditionOperator"));
    m_operator->setAccessibleName(searchText("Vergleich"));
    addOperators(m_operator);
    auto *const remove = new QToolButton(this);
    remove->setObjectName(QStringLiteral("conditionRemove"));
    remove->setAutoRaise(true);
    remove->setText(QStringLiteral("✕"));
    remove->setToolTip(searchText("Bedingung entfernen"));
    remove->setAccessibleName(remove->toolTip());
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_variable, 2);
    layout->addWidget(m_operator);
    layout->addWidget(m_low, 2);
    layout->addWidget(m_to);
    layout->addWidget(m_high, 2);
    layout->addWidget(remove);
    for (QLineEdit *const edit : {m_variable, m_low, m_high}) {
        connect(edit, &QLineEdit::textEdited, this, &ConditionRow::changed);
        connect(edit, &QLineEdit::returnPressed, this, &ConditionRow::confirmed);
    }
    connect(m_operator, &QComboBox::currentIndexChanged, this, &ConditionRow::onOperatorChanged);
    connect(remove, &QToolButton::clicked, this, &ConditionRow::removeClicked);
    onOperatorChanged();
}

ConditionRow::~ConditionRow() = default;

void ConditionRow::onOperatorChanged()
{
    const bool isRange = m_operator->currentData().toInt() == Op::Between;
    m_to->setVisible(isRange);
    m_high->setVisible(isRange);
    Q_EMIT changed();
}

void ConditionRow::setCondition(const IndexTreeVarSearchConditionC &condition)
{
    m_variable->setText(condition.getVarName());
    m_operator->setCurrentIndex(m_operator->findData(int(condition.getCmpOp())));
    m_low->setText(condition.getValLow());
    m_high->setText(condition.getValHigh());
    m_unit = condition.getUnit();
    m_searchType = condition.getSearchType();
}

PRefPtr<IndexTreeVarSearchConditionC> ConditionRow::condition() const
{
    const auto op = Condition::CompareOp(m_operator->currentData().toInt());
    const QString variable = m_variable->text().trimmed();
    const QString high = op == Op::Between ? m_high->text().trimmed() : QString();
    const bool isIncomplete = variable.isEmpty() || m_low->text().trimmed().isEmpty() ||
                              (op == Op::Between && high.isEmpty());
    if (isIncomplete)
        return nullptr;
    const PRefPtr<Condition> result(
        new Condition(variable, op, m_low->text().trimmed(), high, m_unit));
    result->setSearchType(m_searchType);
    return result;
}

void ConditionRow::focusVariable()
{
    m_variable->setFocus();
}
