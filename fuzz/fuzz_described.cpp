#include <geomcore/csv/TableDescriptor.h>
#include <geomcore/expression/StatementParser.h>
#include <geomcore/table/BoundExpression.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <boost/make_shared.hpp>

#include <cstdint>

using namespace VKTab;

namespace {

std::shared_ptr<const Program> programOf(const QByteArray &text)
{
    StatementNames anyName;
    const ParsedStatement parsed = StatementParser(QString::fromUtf8(text), anyName).parse();
    return parsed.node ? std::make_shared<const Program>(*parsed.node) : nullptr;
}

/// Every cell and the expression, on every line.
void walk(const std::shared_ptr<const TableData> &data, const BoundExpression &expression)
{
    Content content;
    content.setFileLayer(boost::make_shared<FileLayer>(data));
    std::string scratch;
    ExpressionValue result;
    for (const LineId &id : content.getLineIdList()) {
        const Line line = content.getLine(id, true);
        const LineView view(line);
        for (int column = 0; column < view.columnCount(); ++column)
            (void)view.text(column, scratch);
        (void)expression.holds(view);
        expression.evaluate(view, result);
    }
}

} // namespace

/// Reads any bytes as a descriptor, an expression and the lines of a table, with rows "---" between
/// them, and evaluates the computed columns and the expression on all lines.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const qsizetype first = bytes.indexOf("\n---\n");
    const qsizetype second = first < 0 ? -1 : bytes.indexOf("\n---\n", first + 5);
    if (second < 0)
        return 0;
    TableErrorList errors;
    const auto descriptor =
        TableDescriptor::fromJson(bytes.left(first), QStringLiteral("fuzz"), errors);
    if (!descriptor)
        return 0;
    const TableReadResult table = TableData::fromMemory(*descriptor, bytes.mid(second + 5));
    if (!table)
        return 0;
    const auto program = programOf(bytes.mid(first + 5, second - first - 5));
    walk(table.data, BoundExpression(program, table.data.get()));
    return 0;
}
