#pragma once

#include <workbench/session/SessionTypes.h>

#include <QList>
#include <QMetaType>
#include <QString>

/// Something that the locator finds and goes to.
struct LocatorItem
{
    /// Of things that fit as well as each other the first kind comes first.
    enum Kind { Line, Project, Command, Setting };

    Kind kind = Project;
    QString title;  ///< what is searched, but for a project, where it is the path
    QString detail; ///< says more, is not searched
    QString id;     ///< of a command or setting
    LineRef line;   ///< without a number for a project
    bool isEnabled = true;
};

/// What was found for some words.
struct LocatorHits
{
    QString words;
    QList<LocatorItem> items; ///< the best ones, in order
    int count = 0;            ///< of all
};
Q_DECLARE_METATYPE(LocatorHits)
