#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "ColumnMapping.h"
#include "FilterBase.h"
#include "Line.h"
#include "LineInfo.h"
#include "LineMapping.h"
#include <geomcore/value/LineId.h>
#include <geomcore/value/TableEnums.h>
#include <geomcore/value/Var.h>

#include <boost/shared_ptr.hpp>

#include <QFlags>
#include <QList>
#include <QStringView>
#include <QVariant>
#include <QVector>

#include <memory>

namespace VKTab {

class BaseLayer;
class ContentData;
class FileLayer;
class LayerI;
class LineView;
class SignalConnect;
class TableData;
class TabOptions;

/// One table in memory: its layers, variables, lines, filters, selection, options. A handle: copies
/// see the same table. A default content is an empty table, which is not valid but takes options
/// and listeners before a reader fills it.
///
/// Reading is safe on any thread, beside the thread that owns the table and may write. Writing
/// (every operation that is not const, writes through a line or through the modify layer) belongs
/// to one thread, the owner's; listeners are called on it.
class VELKGEOMCORE_EXPORT Content
{
public:
    enum InvalidateFlag {
        InvalidateValues = 1,
        InvalidateColumns = 2,
        InvalidateFilter = 4,
    };
    Q_DECLARE_FLAGS(InvalidateFlags, InvalidateFlag)

    Content();
    Content(const Content &other);
    Content &operator=(const Content &other);
    virtual ~Content();

    /// False for a reference to nothing and for a table that was not read.
    [[nodiscard]] bool isValid() const;
    /// The same table, not an equal one.
    friend bool operator==(const Content &a, const Content &b) { return a.d == b.d; }

    // Lines. An id that names no line gives an invalid line or info.

    /// Neither form shows put-in values to any other line of the table. With `detached` the line is
    /// ready for the values of an iterator, without it takes room for them when the first is put
    /// in.
    [[nodiscard]] Line getLine(const LineId &id, bool detached) const;
    [[nodiscard]] LineInfo getLineInfo(const LineId &id) const;
    /// All lines in file order, filtered-out ones included. Built at the first request and shared
    /// from then on.
    [[nodiscard]] QVector<LineId> getLineIdList() const;
    /// As getLineIdList(); built at each request.
    [[nodiscard]] QList<LineInfo> getLineInfoList() const;
    [[nodiscard]] int getLineCount() const;
    /// The visible lines in display order.
    [[nodiscard]] LineMapping getLineMapping() const;
    /// False for a line that a filter hides and for an id without line.
    [[nodiscard]] bool isLineVisible(const LineId &id) const;

    // Variables, those of the file first, then those of each added layer.

    [[nodiscard]] QList<Var> getVarList() const;
    [[nodiscard]] Var getVar(QStringView name) const;
    [[nodiscard]] Var getVar(const VarId &id) const;
    /// All variables in display order, hidden ones included.
    [[nodiscard]] ColumnMapping getColumnMapping() const;

    /// Text of the range that a line offers for a variable, whatever was chosen from it; empty if
    /// the variable is no range.
    [[nodiscard]] QString getRangeText(const VarId &id, const LineId &line) const;
    /// Decimal character of a variable's cells, besides the point that is always understood.
    [[nodiscard]] char getDecimalChar(const VarId &id) const;

    // Facts about the table.

    [[nodiscard]] QVariant getKeyValue(KeyValueId id) const;
    /// An attribute of the table by its name, such as "POOLID".
    [[nodiscard]] QVariant getKeyValue(const QString &name) const;
    [[nodiscard]] QString translateText(const QString &text, const VarId &id) const;

    // Options; null when the table has none. They stay shared with the caller.

    [[nodiscard]] boost::shared_ptr<TabOptions> getOptions() const;
    void setOptions(const boost::shared_ptr<TabOptions> &options);

    // Selection. One line at most.

    [[nodiscard]] LineId getSelection() const;
    /// Selects a line, a hidden one too; an invalid id selects nothing. With `notify` the listeners
    /// hear first of the line that lost the selection, then of the one that got it. False, and no
    /// change, for an id without line.
    bool setSelection(const LineId &id, bool notify);

    // Filters. One of each class is kept; a line is visible if all of them show it.

    [[nodiscard]] FilterBase getFilter(const QString &className) const;
    /// Replaces the filter of the same class. Works at once for those who ask; views follow with
    /// invalidate().
    void setFilter(const FilterBase &filter);
    /// Has the filters evaluated anew and, with `notify`, tells the views.
    void invalidate(InvalidateFlags flags, bool notify);

    // Layers.

    /// Adds a copy of the layer; it replaces a layer of the same type. Views refresh their columns.
    void addLayer(const LayerI &layer);
    /// Null when there is none of that type.
    [[nodiscard]] boost::shared_ptr<LayerI> getLayer(int layerType) const;
    /// Null when the table was not read from a file.
    [[nodiscard]] boost::shared_ptr<FileLayer> getFileLayer() const;
    /// The layer that takes writes; null only for a reference to nothing. Ask anew for every write:
    /// reading the table again replaces it.
    [[nodiscard]] boost::shared_ptr<BaseLayer> getModifyLayer() const;
    /// The table's lines as they were read, or null. Kept alive by whoever holds the pointer.
    [[nodiscard]] std::shared_ptr<const TableData> getTableData() const;
    /// No cell differs from the file's, so that the file may be read directly.
    [[nodiscard]] bool isPlain() const;

    /// Makes this the table of the given file; null makes it empty. Changes, selection, filters and
    /// added layers of a former table go, options and listeners stay. A reference to nothing
    /// becomes a reference to a new table.
    void setFileLayer(const boost::shared_ptr<FileLayer> &layer);

    /// Where to listen. Of a reference to nothing it is a hub that never calls anybody.
    [[nodiscard]] SignalConnect &signalConnect() const;

protected:
    explicit Content(std::shared_ptr<ContentData> data);

private:
    friend class ContentData;
    friend class LineSearch;
    friend class LineView;

    std::shared_ptr<ContentData> d; // null for a reference to nothing
};

/// Shared reference to a table. A default one refers to nothing; assigning a content or another
/// reference rebinds it. The table lives as long as any reference, content or line of it.
class VELKGEOMCORE_EXPORT ContentRef : public Content
{
public:
    ContentRef();
    ContentRef(const Content &content);
    ContentRef(const ContentRef &other);
    ContentRef &operator=(const Content &content);
    ContentRef &operator=(const ContentRef &other);
    ~ContentRef() override;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Content::InvalidateFlags)

} // namespace VKTab
