#pragma once

#include "../support/TestCatalog.h"

#include <mapping/data/ApplicationHandlerI.h>
#include <mapping/data/ReleaseMappingHandler.h>
#include <mapping/project/TargetMappingWidget.h>

#include <core/message/PScriptedMessageSink.h>
#include <geomcore/records/ReleaseMappingC.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

/// Makes a catalog root the local one of the process, as long as it lives.
class LocalCatalogs
{
public:
    explicit LocalCatalogs(const QString &root)
        : m_before(qgetenv("TORMEVA_DATA"))
    {
        QVERIFY(QFile::link(root, m_data.filePath(QStringLiteral("23d-libs"))));
        qputenv("TORMEVA_DATA", QFile::encodeName(m_data.path()));
    }
    ~LocalCatalogs() { qputenv("TORMEVA_DATA", m_before); }
    Q_DISABLE_COPY_MOVE(LocalCatalogs)

private:
    QTemporaryDir m_data;
    QByteArray m_before;
};

/// Takes the messages of the process, as long as it lives.
class MessageCapture
{
public:
    [[nodiscard]] PScriptedMessageSink *operator->() const { return m_sink.get(); }

private:
    std::shared_ptr<PScriptedMessageSink> m_sink = std::make_shared<PScriptedMessageSink>();
    PMessageSinkScope m_scope{m_sink};
};

/// Collects the warnings of Qt, as a connection by name that fails gives one.
class WarningCapture
{
public:
    WarningCapture()
    {
        list().clear();
        m_before = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &, const QString &text) {
                if (type != QtDebugMsg && type != QtInfoMsg)
                    list().append(text);
            });
    }
    ~WarningCapture() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY_MOVE(WarningCapture)

    [[nodiscard]] static QStringList &list()
    {
        static QStringList texts;
        return texts;
    }

private:
    QtMessageHandler m_before;
};

/// A mapping handler over one release that notes what is asked of it.
class NotingHandler : public ReleaseMappingHandler
{
public:
    explicit NotingHandler(const ReleaseMappingC &release, QStringList *calls = nullptr,
                           const QString &file = QString())
        : ReleaseMappingHandler(release, QStringLiteral("root"), file)
        , m_calls(calls)
    {
    }
    NotingHandler(const NotingHandler &) = delete;
    NotingHandler &operator=(const NotingHandler &) = delete;
    ~NotingHandler() override { note("~handler"); }

    CatalogMappingC getCatalogMapping() const override
    {
        note("getCatalogMapping");
        return ReleaseMappingHandler::getCatalogMapping();
    }
    boost::shared_ptr<CatalogStructureNodeI> getRootStructureNode() const override
    {
        note("getRootStructureNode");
        return ReleaseMappingHandler::getRootStructureNode();
    }
    void updateMapping(const PrjMappingC &mapping) override
    {
        note("updateMapping");
        updates.append(mapping);
        if (onUpdate)
            onUpdate();
        ReleaseMappingHandler::updateMapping(mapping);
    }
    bool commitModifications() override
    {
        note("commitModifications");
        return ReleaseMappingHandler::commitModifications();
    }
    int countLines() const override
    {
        return noted("countLines", ReleaseMappingHandler::countLines());
    }
    int countMapped() const override
    {
        return noted("countMapped", ReleaseMappingHandler::countMapped());
    }
    int countNotFound() const override
    {
        return noted("countNotFound", ReleaseMappingHandler::countNotFound());
    }
    int countToCheck() const override
    {
        return noted("countToCheck", ReleaseMappingHandler::countToCheck());
    }
    int countVerified() const override
    {
        return noted("countVerified", ReleaseMappingHandler::countVerified());
    }

    QList<PrjMappingC> updates;
    std::function<void()> onUpdate;

private:
    void note(const char *call) const
    {
        if (m_calls)
            m_calls->append(QLatin1String(call));
    }
    [[nodiscard]] int noted(const char *call, int count) const
    {
        note(call);
        return count;
    }

    QStringList *m_calls;
};

/// Notes the projects that are to be opened, and its end.
class NotingApplication : public ApplicationHandlerI
{
public:
    explicit NotingApplication(QStringList *calls)
        : m_calls(calls)
    {
    }
    NotingApplication(const NotingApplication &) = delete;
    NotingApplication &operator=(const NotingApplication &) = delete;
    ~NotingApplication() override { m_calls->append(QStringLiteral("~application")); }
    void openTargetProject(const QString &targetPath) override
    {
        m_calls->append(QStringLiteral("open ") + targetPath);
    }

private:
    QStringList *m_calls;
};

/// The panels of a project widget in the order in which they stand, none that is being deleted.
inline QList<TargetMappingWidget *> targetPanels(const QWidget *projectWidget)
{
    const auto *const targets =
        projectWidget->findChild<QWidget *>(QStringLiteral("targetsWidget"));
    QList<TargetMappingWidget *> panels;
    for (int place = 0; place < targets->layout()->count(); ++place)
        if (auto *const panel =
                qobject_cast<TargetMappingWidget *>(targets->layout()->itemAt(place)->widget()))
            panels.append(panel);
    return panels;
}

/// What stands on the panels: "new/a.prj new/b.prj".
inline QString panelPaths(const QWidget *projectWidget)
{
    QStringList paths;
    const QList<TargetMappingWidget *> panels = targetPanels(projectWidget);
    for (const TargetMappingWidget *const panel : panels)
        paths.append(panel->findChild<QLabel *>(QStringLiteral("pathLabel"))->text());
    return paths.join(u' ');
}

/// Paths of a mapping's targets in order, "-" for the not-found target.
inline QString targetPaths(const PrjMappingC &mapping)
{
    QStringList paths;
    const QList<PrjMappingTargetC> targets = mapping.getTargets();
    for (const PrjMappingTargetC &target : targets)
        paths.append(target.isNotFoundTarget() ? QStringLiteral("-") : target.getTargetPath());
    return paths.join(u' ');
}
