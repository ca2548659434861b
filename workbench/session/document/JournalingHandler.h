#pragma once

#include <mapping/data/CatalogMappingHandlerI.h>

#include <QPointer>

#include <memory>

class MappingDocument;

/// The handler that the host gives to the editor. Passes everything on to the handler of the
/// document's release, changes and saving by way of the document, so that nothing gets past its
/// journal, undo stack and guards. Belongs to the editor; what it stands for belongs to the
/// document.
class JournalingHandler : public CatalogMappingHandlerI
{
public:
    /// \a handler keeps the data; \a document may go first, then changes are ignored.
    JournalingHandler(const std::shared_ptr<CatalogMappingHandlerI> &handler,
                      MappingDocument *document);
    JournalingHandler(const JournalingHandler &) = delete;
    JournalingHandler &operator=(const JournalingHandler &) = delete;
    ~JournalingHandler() override;

    boost::shared_ptr<CatalogStructureNodeI> getRootStructureNode() const override;
    CatalogMappingC getCatalogMapping() const override;
    void updateMapping(const PrjMappingC &mapping) override;
    /// Saves with all guards; false if MappingDocument::save() would not give Saved.
    bool commitModifications() override;
    int countLines() const override;
    int countNotFound() const override;
    int countMapped() const override;
    int countToCheck() const override;
    int countVerified() const override;

private:
    const std::shared_ptr<CatalogMappingHandlerI> m_handler;
    const QPointer<MappingDocument> m_document;
};
