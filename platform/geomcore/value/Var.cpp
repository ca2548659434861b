#include "Var.h"

namespace VKTab {

class VarData : public QSharedData
{
public:
    VarId id;
    int source = 0;
    VarType type = VarTypeNone;
    DataType dataType = DataTypeText;
    VIDA vida;
    bool range = false;
    bool hidden = false;
    QString name;
    QString description;
    QString unit;
    QString zType;
    QStringList groups;
};

namespace {

/// What all default variables share, so that making one costs no allocation.
const QSharedDataPointer<VarData> &noVar()
{
    static const QSharedDataPointer<VarData> data(new VarData);
    return data;
}

} // namespace

Var::Var()
    : d(noVar())
{
}

Var::Var(VarType type)
    : d(new VarData)
{
    d->type = type;
}

Var::Var(const Var &other) = default;
Var::Var(Var &&other) noexcept = default;
Var &Var::operator=(const Var &other) = default;
Var &Var::operator=(Var &&other) noexcept = default;
Var::~Var() = default;

bool Var::isValid() const
{
    return d->type != VarTypeNone && d->id.isValid();
}

VarId Var::getVarId() const
{
    return d->id;
}
void Var::setVarId(const VarId &id)
{
    d->id = id;
}

int Var::getVarSource() const
{
    return d->source;
}
void Var::setVarSource(int layerType)
{
    d->source = layerType;
}

VarType Var::getVarType() const
{
    return d->type;
}
void Var::setVarType(VarType type)
{
    d->type = type;
}

DataType Var::getDataType() const
{
    return d->dataType;
}
void Var::setDataType(DataType type)
{
    d->dataType = type;
}

VIDA Var::getVida() const
{
    return d->vida;
}
void Var::setVida(const VIDA &vida)
{
    d->vida = vida;
}

QString Var::getName() const
{
    return d->name;
}
void Var::setName(const QString &name)
{
    d->name = name;
}

QString Var::getDescription() const
{
    return d->description;
}
void Var::setDescription(const QString &description)
{
    d->description = description;
}

QString Var::getUnit() const
{
    return d->unit;
}
void Var::setUnit(const QString &unit)
{
    d->unit = unit;
}

QString Var::getZTypeAsString() const
{
    return d->zType;
}
void Var::setZTypeAsString(const QString &type)
{
    d->zType = type;
}

bool Var::isFW() const
{
    return d->range || d->type == VarTypeRange;
}
void Var::setFW(bool range)
{
    d->range = range;
}

bool Var::isNumeric() const
{
    return d->dataType == DataTypeNumber || d->dataType == DataTypeInteger;
}

bool Var::isHidden() const
{
    return d->hidden;
}
void Var::setHidden(bool hidden)
{
    d->hidden = hidden;
}

QStringList Var::getGroups() const
{
    return d->groups;
}
void Var::setGroups(const QStringList &groups)
{
    d->groups = groups;
}

bool operator==(const Var &a, const Var &b)
{
    const VarData &x = *a.d;
    const VarData &y = *b.d;
    return &x == &y ||
           (x.id == y.id && x.source == y.source && x.type == y.type && x.dataType == y.dataType &&
            x.vida == y.vida && x.range == y.range && x.hidden == y.hidden && x.name == y.name &&
            x.description == y.description && x.unit == y.unit && x.zType == y.zType &&
            x.groups == y.groups);
}

} // namespace VKTab
