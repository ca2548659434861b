#pragma once

#include <gui/progress/ProgressDisplayI.h>

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>

/// Notes what it is given: "count/total text" of each progress, joined by ", "; "-" for none.
class RecordingDisplay : public ProgressDisplayI
{
public:
    void showProgress(const QList<PProgressInfo> &running) override
    {
        QStringList texts;
        for (const PProgressInfo &info : running)
            texts.append(
                QStringLiteral("%1/%2 %3")
                    .arg(QString::number(info.count), QString::number(info.total), info.text)
                    .trimmed());
        shown.append(running.isEmpty() ? QStringLiteral("-") : texts.join(", "));
        if (onShow)
            onShow(running);
    }
    bool acceptsInput(const QWidget *widget) const override { return widget && widget == own; }

    QStringList shown;
    std::function<void(const QList<PProgressInfo> &)> onShow;
    QPointer<QWidget> own;
};
