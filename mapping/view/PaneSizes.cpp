#include "PaneSizes.h"

#include "TableRoom.h"

#include <QDataStream>
#include <QIODevice>
#include <QMap>
#include <QSplitter>

namespace {

QString takenKey(const QSplitter &splitter)
{
    return splitter.objectName() + QStringLiteral(".taken");
}

} // namespace

QByteArray PaneSizes::save(const QWidget &editor)
{
    QMap<QString, QByteArray> states;
    const auto splitters = editor.findChildren<QSplitter *>();
    for (const QSplitter *splitter : splitters) {
        if (splitter->objectName().isEmpty())
            continue;
        states.insert(splitter->objectName(), splitter->saveState());
        if (const TableRoom *const room = TableRoom::of(*splitter))
            states.insert(takenKey(*splitter), QByteArray::number(room->taken()));
    }
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << states;
    return state;
}

bool PaneSizes::restore(QWidget &editor, const QByteArray &state)
{
    QMap<QString, QByteArray> states;
    QDataStream stream(state);
    stream.setVersion(QDataStream::Qt_6_4);
    stream >> states;
    if (stream.status() != QDataStream::Ok || states.isEmpty())
        return false;
    const auto splitters = editor.findChildren<QSplitter *>();
    for (QSplitter *splitter : splitters) {
        splitter->restoreState(states.value(splitter->objectName()));
        if (TableRoom *const room = TableRoom::of(*splitter))
            room->setTaken(states.value(takenKey(*splitter)).toInt());
    }
    return true;
}

void PaneSizes::setStandard(QWidget &editor)
{
    // Sizes of splitters are shares of the room that there is.
    const auto divide = [&editor](const char *name, const QList<int> &shares) {
        if (auto *splitter = editor.findChild<QSplitter *>(QLatin1String(name))) {
            splitter->setSizes(shares);
            if (TableRoom *const room = TableRoom::of(*splitter))
                room->setTaken(0);
            for (int i = 0; i < shares.size(); ++i)
                splitter->setStretchFactor(i, i + 1 == shares.size() ? 1 : 0);
        }
    };
    divide("catalogSplitter", {300, 1100});
    divide("conflictSplitter", {60, 740});
    divide("editorSplitter", {190, 550});
}
