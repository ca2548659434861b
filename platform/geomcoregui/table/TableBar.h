#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QToolButton;
class QWidget;
QT_END_NAMESPACE

/// Text of the table view in the language of the moment.
[[nodiscard]] QString tableText(const char *text);
/// The same of a text with a count.
[[nodiscard]] QString tableText(const char *text, qsizetype count);

/// A flat button with a sign for a text, which keeps the keyboard's focus where it is.
[[nodiscard]] QToolButton *makeBarButton(const QString &objectName, const QString &sign,
                                         const QString &meaning, QWidget *parent);
