#pragma once

#include "ValueMap.h"

#include <core/text/PString.h>

#include <QDialog>

class NewRecordDialogCPrivate;

/// Form for the values of one document record, made of the columns that it is given: a row for
/// each, those of the two systems last, with boxes that offer what the table already has. GUI
/// thread.
class NewRecordDialogC : public QDialog
{
    Q_OBJECT

public:
    NewRecordDialogC();
    ~NewRecordDialogC() override;

    /// What the boxes of the two systems offer; before or after setFields().
    void setSystemLists(const PStringList &cad, const PStringList &pdm);
    /// Empty before setFields().
    [[nodiscard]] PString cadSystem() const;
    [[nodiscard]] PString pdmSystem() const;
    /// Once; upper-case names.
    void setFields(const PStringList &columns);
    /// Does nothing if there is no such column.
    void setXVarset(const PString &xvarset);
    /// Columns that are not in the map stay as they are.
    void setValues(const ValueMap &values);
    [[nodiscard]] ValueMap values() const;

private:
    NewRecordDialogCPrivate *const d;
};
