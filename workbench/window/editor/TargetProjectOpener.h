#pragma once

#include <mapping/data/ApplicationHandlerI.h>

#include <functional>

/// Passes the editor's wish to see a target project on to the workbench.
class TargetProjectOpener : public ApplicationHandlerI
{
public:
    explicit TargetProjectOpener(std::function<void(const QString &)> open)
        : m_open(std::move(open))
    {
    }
    void openTargetProject(const QString &targetPath) override { m_open(targetPath); }

private:
    const std::function<void(const QString &)> m_open;
};
