#pragma once

#include <geomcore/value/Var.h>

#include <QHash>
#include <QList>
#include <QStringView>

namespace VKTab {

/// The variables of a layer in their order, found by id and by name through a hash. A value.
class LayerVars
{
public:
    [[nodiscard]] const QList<Var> &list() const { return m_vars; }
    /// Null if there is none.
    [[nodiscard]] const Var *find(const VarId &id) const;
    /// The first of that name; null if there is none.
    [[nodiscard]] const Var *find(QStringView name) const;
    /// To be changed in all but id and name.
    [[nodiscard]] Var *find(const VarId &id);
    /// Greater than every id that there is or was.
    [[nodiscard]] int nextId() const { return m_nextId; }

    /// Adds a variable, or puts it in place of the one with its id.
    void put(const Var &var);
    /// False if there is none.
    bool remove(const VarId &id);

private:
    void index();

    QList<Var> m_vars;
    QHash<VarId, qsizetype> m_byId;
    QHash<QString, qsizetype> m_byName;
    int m_nextId = 0;
};

} // namespace VKTab
