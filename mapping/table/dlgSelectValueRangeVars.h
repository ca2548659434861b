#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>

#include <functional>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QDialogButtonBox;
class QLabel;
QT_END_NAMESPACE

/// Asks which value-range variables are to be resolved. Ok needs at least one.
class dlgSelectValueRangeVars : public QDialog
{
    Q_OBJECT

public:
    dlgSelectValueRangeVars(const QStringList &names, QWidget *parent);
    ~dlgSelectValueRangeVars() override;

    /// Tells below the boxes how many value combinations the checked ones have.
    using Counter = std::function<qint64(const QStringList &names)>;
    void setCounter(const Counter &counter);

    /// In the order in which the names were given.
    [[nodiscard]] QStringList selectedNames() const;

public Q_SLOTS:
    void updateOkButton();

private:
    void writeCount();

    Counter m_counter;
    QLabel *m_count = nullptr; ///< if there is a counter
    QList<QCheckBox *> m_boxes;
    QDialogButtonBox *m_buttons;
};
