#pragma once

#include <core/text/PPrivateData.h>
#include <core/text/PString.h>

QT_BEGIN_NAMESPACE
class QComboBox;
class QGridLayout;
class QLineEdit;
class QWidget;
QT_END_NAMESPACE

class NewRecordDialogC;

/// State of NewRecordDialogC.
class NewRecordDialogCPrivate : public PPrivateData<NewRecordDialogC>
{
public:
    using PPrivateData::PPrivateData;

    /// Takes the fields out of the form into an area of their own, so that many columns find room
    /// on any screen.
    void makeScrollable(QWidget &form);
    void addRow(const QString &name, QWidget *field);
    [[nodiscard]] QLineEdit *addLineEdit(const QString &name);
    [[nodiscard]] QComboBox *addSystemBox(const QString &name, const PStringList &systems);
    /// Name of a row's column; null for a row without.
    [[nodiscard]] QString nameOf(int row) const;
    [[nodiscard]] QWidget *fieldOf(int row) const;
    /// Makes the window large enough for its fields, as far as the screen goes.
    void growToFields();

    QGridLayout *grid = nullptr; ///< null if the form lacks it
    QComboBox *cadBox = nullptr;
    QComboBox *pdmBox = nullptr;
    PStringList cadSystems;
    PStringList pdmSystems;
};
