#pragma once

#include "SessionFixture.h"

#include <workbench/session/document/MappingDocument.h>

#include <QCoreApplication>

#include <memory>

/// A document and the file that it is to open, both made anew for each test function.
struct SessionDocument
{
    void begin()
    {
        m_files = std::make_unique<SessionFixture>();
        m_document = std::make_unique<MappingDocument>();
        m_file = m_files->write();
    }
    void end()
    {
        m_document.reset();
        m_files.reset();
    }

    MappingDocument &open(MappingDocument::Access access = MappingDocument::Access::ReadWrite)
    {
        m_document->open({m_file, {}, {}, access, MappingDocument::Recovery::Ask});
        return *m_document;
    }
    /// One user action.
    void change(const PrjMappingC &mapping)
    {
        m_document->updateMapping(mapping);
        QCoreApplication::processEvents();
    }

    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<MappingDocument> m_document;
    QString m_file;
};
