#pragma once

#include <core/text/PRefPtr.h>
#include <geomcore/search/IndexTreeVarSearchConditionC.h>

#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QLineEdit;
QT_END_NAMESPACE

/// One condition of a search in its own row: variable, comparison, value, for ranges a second one.
class ConditionRow : public QWidget
{
    Q_OBJECT

public:
    explicit ConditionRow(QWidget *parent = nullptr);
    ~ConditionRow() override;

    void setCondition(const IndexTreeVarSearchConditionC &condition);
    /// Null as long as variable or value is missing.
    [[nodiscard]] PRefPtr<IndexTreeVarSearchConditionC> condition() const;
    void focusVariable();

Q_SIGNALS:
    void changed();
    /// Return was pressed: the search shall not wait.
    void confirmed();
    void removeClicked();

private:
    void onOperatorChanged();

    QLineEdit *const m_variable;
    QComboBox *const m_operator;
    QLineEdit *const m_low;
    QLabel *const m_to;
    QLineEdit *const m_high;
    QString m_unit;
    int m_searchType;
};
