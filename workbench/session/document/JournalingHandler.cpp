#include "JournalingHandler.h"

#include "MappingDocument.h"

JournalingHandler::JournalingHandler(const std::shared_ptr<CatalogMappingHandlerI> &handler,
                                     MappingDocument *document)
    : m_handler(handler)
    , m_document(document)
{
}

JournalingHandler::~JournalingHandler() = default;

boost::shared_ptr<CatalogStructureNodeI> JournalingHandler::getRootStructureNode() const
{
    return m_handler->getRootStructureNode();
}

CatalogMappingC JournalingHandler::getCatalogMapping() const
{
    return m_handler->getCatalogMapping();
}

void JournalingHandler::updateMapping(const PrjMappingC &mapping)
{
    if (m_document && m_document->handler() == m_handler.get())
        m_document->updateByEditor(mapping);
}

bool JournalingHandler::commitModifications()
{
    return m_document && m_document->handler() == m_handler.get() &&
           m_document->save().result == SaveResult::Saved;
}

int JournalingHandler::countLines() const
{
    return m_handler->countLines();
}

int JournalingHandler::countNotFound() const
{
    return m_handler->countNotFound();
}

int JournalingHandler::countMapped() const
{
    return m_handler->countMapped();
}

int JournalingHandler::countToCheck() const
{
    return m_handler->countToCheck();
}

int JournalingHandler::countVerified() const
{
    return m_handler->countVerified();
}
