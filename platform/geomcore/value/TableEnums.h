#pragma once

#include <QFlags>

namespace VKTab {

/// Facts about a whole table or layer.
enum KeyValueId {
    KeyNormNumber = 11,
    KeyColumnOrder = 18, ///< string list of variable names; "..." stands for all other columns
    KeyProjectPath = 20,
};

enum VarType {
    VarTypeNone = 0,
    VarTypePlain = 1,
    VarTypeRange = 2,
    VarTypeComputed = 3,
    VarTypeInternal = 4,
    VarTypeTopology = 5,
    VarTypeForeign = 6,
};

enum DataType {
    DataTypeText = 1,
    DataTypeNumber = 2,
    DataTypeInteger = 6,
};

/// Kinds of variable that Finder::toValueList takes.
enum VarTypeFilterFlag {
    FilterInternal = 1,
    FilterPlain = 2,
    FilterHiddenRange = 4,
    FilterShownRange = 8,
    FilterDefault = FilterPlain | FilterShownRange,
    FilterComputed = 16,
    FilterForeign = 32,
    FilterAll = 63,
};
Q_DECLARE_FLAGS(VarTypeFilterFlags, VarTypeFilterFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(VarTypeFilterFlags)

/// How a cell is turned into a value.
enum FormatFlag {
    FormatPlain = 0x01,        ///< decimal point, no unit, no padding
    FormatUntranslated = 0x10, ///< as stored, whatever the language
};
Q_DECLARE_FLAGS(FormatFlags, FormatFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(FormatFlags)

enum EvalFlag {
    EvalDefault = 0,
};
Q_DECLARE_FLAGS(EvalFlags, EvalFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(EvalFlags)

/// When a listener is called: lower groups first.
enum ConnectGroup {
    ConnectGroupLibrary = 0,
    ConnectGroupUser = 1,
};

/// Changeable attributes of a variable.
enum VarAttr {
    VarAttrDescription = 1,  ///< text
    VarAttrHidden = 2,       ///< bool
    VarAttrGroups = 3,       ///< string list, see LayerI::getVarGroups
    VarAttrRangeDefault = 4, ///< text, see LayerI::getRangeValueCustomDefault
};

/// Facts about a variable that its layer decides.
enum VarPropId {
    VarPropType = 1,     ///< int, a VarType
    VarPropDataType = 2, ///< int, a DataType
    VarPropSource = 3,   ///< int, the layer type
    VarPropRange = 4,    ///< bool
    VarPropUnit = 5,     ///< text
};

/// Facts about a line that a layer may know.
enum LinePropId {
    LinePropRow = 1,    ///< int, row of the line in its file, from 0
    LinePropHidden = 2, ///< bool, hidden by LayerI::setLineHidden
};

/// Facts about one cell.
enum CellPropId {
    CellPropChanged = 1, ///< bool, the layer holds a changed value
    CellPropRange = 2,   ///< text of the range that the cell offers, empty if it offers none
};

} // namespace VKTab
