#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QPlainTextEdit;
QT_END_NAMESPACE

/// Lets the modeller edit the value range text of a line. The text is not checked.
class dlgEditValueRangeMappings : public QDialog
{
    Q_OBJECT

public:
    dlgEditValueRangeMappings(const QString &text, QWidget *parent);
    ~dlgEditValueRangeMappings() override;

    [[nodiscard]] QString text() const;

private:
    QPlainTextEdit *m_edit;
};
