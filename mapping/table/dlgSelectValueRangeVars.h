#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QDialogButtonBox;
QT_END_NAMESPACE

/// Asks which value-range variables are to be resolved. Ok needs at least one.
class dlgSelectValueRangeVars : public QDialog
{
    Q_OBJECT

public:
    dlgSelectValueRangeVars(const QStringList &names, QWidget *parent);
    ~dlgSelectValueRangeVars() override;

    /// In the order in which the names were given.
    [[nodiscard]] QStringList selectedNames() const;

public Q_SLOTS:
    void updateOkButton();

private:
    QList<QCheckBox *> m_boxes;
    QDialogButtonBox *m_buttons;
};
