#pragma once

/// What CatalogStructureNodeI::getNodeType() gives.
namespace CatalogNodeType {

enum Value : int {
    Root = 0,
    Directory = 1,
    Project = 2,
    OtherProject = 3, ///< of hosts with a tree of their own; the editor opens Project alone
};

/// A leaf with a mapping.
[[nodiscard]] constexpr bool isProject(int type)
{
    return type == Project || type == OtherProject;
}

} // namespace CatalogNodeType
