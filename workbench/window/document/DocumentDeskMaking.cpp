#include "DocumentDesk.h"

#include "MappingMaker.h"
#include "NewMappingDialog.h"

#include <core/message/PMessage.h>
#include <workbench/window/message/Question.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

bool DocumentDesk::makeByDialog()
{
    if (!mayClose())
        return false;
    NewMappingDialog dialog(m_settings->store(), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    leave();
    MappingMaker maker;
    if (!maker.make(dialog.wish()))
        return false;
    if (m_document->openNew(maker.release(), dialog.wish().mappingFile) !=
        MappingDocument::OpenResult::Opened) {
        Question::tell(m_window, tr("Die Mapping-Datei kann nicht angelegt werden."),
                       m_document->errorText());
        return false;
    }
    m_document->setCatalogRoots({dialog.wish().sourceRoot, dialog.wish().targetRoot});
    setUp();
    Q_EMIT noted(maker.summary());
    return true;
}

QString DocumentDesk::exampleSource()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           "/../share/velkworkbench/examples");
}

bool DocumentDesk::openExample()
{
    if (!mayClose())
        return false;
    const QString directory = QFileInfo(m_settings->store()->fileName()).path() + "/example";
    const QString file = directory + "/standardparts.mapping.json";
    const CatalogRoots roots{exampleSource() + "/release-1", exampleSource() + "/release-2"};
    if (QFileInfo::exists(file))
        return open({.file = file, .roots = roots});
    leave();
    MappingMaker maker;
    QDir().mkpath(directory);
    if (!maker.make({.sourceRoot = roots.source,
                     .targetRoot = roots.target,
                     .sourceCatalog = "standardparts",
                     .targetCatalog = "standardparts",
                     .mappingFile = file}) ||
        m_document->openNew(maker.release(), file) != MappingDocument::OpenResult::Opened)
        return false;
    m_document->setCatalogRoots(roots);
    // The example is there to be tried: nobody should be asked whether to keep it unchanged.
    if (!save())
        return false;
    setUp();
    Q_EMIT noted(maker.summary());
    return true;
}
