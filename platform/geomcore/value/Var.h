#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "TableEnums.h"
#include "VarId.h"
#include "VIDA.h"

#include <QMetaType>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>

namespace VKTab {

class VarData;

/// Description of a variable (a column of a table). A copy shares its data until one of the two is
/// changed, so lists of variables are cheap. A default variable is not valid.
class VELKGEOMCORE_EXPORT Var
{
public:
    Var();
    explicit Var(VarType type);
    Var(const Var &other);
    Var(Var &&other) noexcept;
    Var &operator=(const Var &other);
    Var &operator=(Var &&other) noexcept;
    ~Var();

    [[nodiscard]] bool isValid() const;

    [[nodiscard]] VarId getVarId() const;
    void setVarId(const VarId &id);
    /// The type of the layer that supplies the variable, 0 if none was set.
    [[nodiscard]] int getVarSource() const;
    void setVarSource(int layerType);
    [[nodiscard]] VarType getVarType() const;
    void setVarType(VarType type);
    [[nodiscard]] DataType getDataType() const;
    void setDataType(DataType type);
    [[nodiscard]] VIDA getVida() const;
    void setVida(const VIDA &vida);

    [[nodiscard]] QString getName() const;
    void setName(const QString &name);
    [[nodiscard]] QString getDescription() const;
    void setDescription(const QString &description);
    [[nodiscard]] QString getUnit() const;
    void setUnit(const QString &unit);
    /// The kind of choice that a range offers: "SM", "GM", "FM", "DM", or whatever the table says.
    [[nodiscard]] QString getZTypeAsString() const;
    void setZTypeAsString(const QString &type);

    /// Value-range variable: a line offers a range of values instead of one. So is every variable
    /// of type VarTypeRange, and any other for which it was set.
    [[nodiscard]] bool isFW() const;
    void setFW(bool range);
    [[nodiscard]] bool isNumeric() const;
    [[nodiscard]] bool isHidden() const;
    void setHidden(bool hidden);
    [[nodiscard]] QStringList getGroups() const;
    void setGroups(const QStringList &groups);

    /// Equal in every attribute.
    VELKGEOMCORE_EXPORT friend bool operator==(const Var &a, const Var &b);

private:
    QSharedDataPointer<VarData> d;
};

} // namespace VKTab

Q_DECLARE_METATYPE(VKTab::Var)
