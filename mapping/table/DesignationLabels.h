#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

/// Shows the norm designations of a source and a target line against each other: both green if they
/// are equal, else both red.
struct DesignationLabels
{
    QLabel *sourceLabel = nullptr; ///< not owned
    QLabel *targetLabel = nullptr; ///< not owned
    QString sourceText;
    QString targetText;

    void setSourceText(const QString &text);
    void setTargetText(const QString &text);
    /// Does nothing until both labels are there. To be called too when the palette round the labels
    /// changed.
    void show() const;
};
