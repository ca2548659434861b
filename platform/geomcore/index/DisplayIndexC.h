#pragma once

#include <QHashFunctions>
#include <QVariant>

/// Names a piece of data of an item of the index tree: a field's number, and for some fields a
/// second value that says in which form it is wanted. A value.
class DisplayIndexC
{
public:
    enum Field {
        FileName = 2,
        Description = 6,
        Icon = 23, ///< With Erp as second value: with a mark if the project is known to the ERP.
        Path = 35, ///< Native; with CatalogRelative as second value: "catalog/folder/name.prj".
        Selectable = 44, ///< "true" for projects, else "false".
    };
    enum Form { Plain = 0, Erp = 1, CatalogRelative = 4 };

    DisplayIndexC(int field)
        : m_field(field)
    {
    }
    DisplayIndexC(const QVariant &field, const QVariant &form)
        : m_field(field.toInt())
        , m_form(form.toInt())
    {
    }

    [[nodiscard]] int field() const { return m_field; }
    [[nodiscard]] int form() const { return m_form; }

    friend bool operator==(const DisplayIndexC &, const DisplayIndexC &) = default;
    friend size_t qHash(const DisplayIndexC &index, size_t seed = 0)
    {
        return qHashMulti(seed, index.m_field, index.m_form);
    }

private:
    int m_field;
    int m_form = Plain;
};
