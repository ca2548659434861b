#include <geomcore/binding/VarsetSource.h>
#include <geomcore/expression/Program.h>
#include <geomcore/expression/StatementParser.h>

#include <cstdint>

/// Parses any text as a statement and, if it is one, evaluates it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using Varset = QHash<QString, MapVarValueC>;
    static const Varset values = [] {
        Varset result;
        result[QStringLiteral("A")].setValue(VKTab::Value(12));
        result[QStringLiteral("B")].setValue(VKTab::Value("größer"));
        return result;
    }();
    VKTab::StatementNames anyName;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const VKTab::ParsedStatement parsed = VKTab::StatementParser(text, anyName).parse();
    if (!parsed.node)
        return 0;
    const VKTab::Program program(*parsed.node);
    const VKTab::VarsetSource source(program, values, values);
    VKTab::ExpressionValue result;
    program.evaluate(source, result);
    (void)program.holds(source);
    return 0;
}
