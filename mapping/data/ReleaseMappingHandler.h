#pragma once

#include "CatalogMappingHandlerI.h"

#include <QString>

class ReleaseMappingHandlerPrivate;

/// CatalogMappingHandlerI over one release: keeps the working copy and five counters, builds the
/// tree from the source paths, and writes the release into a mapping file that can hold several.
/// The release passed in is never written back to: the result is in getCatalogMapping() or in the
/// file.
class VELKLINKDBGUI_EXPORT ReleaseMappingHandler : public CatalogMappingHandlerI
{
public:
    /// \a rootName is the text of the root node, \a mappingFile the path of the mapping file.
    ReleaseMappingHandler(const ReleaseMappingC &release, const QString &rootName,
                          const QString &mappingFile);
    ReleaseMappingHandler(const ReleaseMappingHandler &) = delete;
    ReleaseMappingHandler &operator=(const ReleaseMappingHandler &) = delete;
    ~ReleaseMappingHandler() override;

    boost::shared_ptr<CatalogStructureNodeI> getRootStructureNode() const override;
    /// A catalog mapping with a copy of the working copy as its only release.
    CatalogMappingC getCatalogMapping() const override;
    /// Stores the mapping and moves the counters by the difference. A project that the release did
    /// not know is added, yet the tree does not show it.
    void updateMapping(const PrjMappingC &mapping) override;
    /// Puts the release into the mapping file, beside the releases of other dates. The file is
    /// written over directly, without lock or backup; content that is no JSON is replaced. False if
    /// the file could not be opened or written completely; the working copy is unharmed.
    bool commitModifications() override;
    int countLines() const override;
    int countNotFound() const override;
    int countMapped() const override;
    int countToCheck() const override;
    int countVerified() const override;

private:
    ReleaseMappingHandlerPrivate *const d;
};
