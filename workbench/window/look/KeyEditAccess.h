#pragma once

#include <QAccessibleWidget>

class QKeySequenceEdit;

/// Tells screen readers of fields for keys, of which Qt says no more than that they are there.
class KeyEditAccess : public QAccessibleWidget
{
public:
    explicit KeyEditAccess(QKeySequenceEdit *edit);
    ~KeyEditAccess() override;

    /// For all fields of the program from now on; once is enough.
    static void install();

    /// The key is the value.
    [[nodiscard]] QString text(QAccessible::Text which) const override;

private:
    QKeySequenceEdit *const m_edit;
};
