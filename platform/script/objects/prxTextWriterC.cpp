#include "prxTextWriterC.h"

#include "scriptFailure.h"

#include <core/component/mzComExceptionC.h>
#include <core/component/proxyMember.h>
#include <core/files/DurableFile.h>
#include <geomcore/csv/csvCell.h>

namespace {

constexpr int mostCells = 10'000;

mzComVariantC read(const mzIDispatchC &object, const QString &name)
{
    mzComVariantC value;
    std::optional<PScriptException> exception;
    const int outcome = object.invoke(name, proxyMemberDescS::PropertyRead, {}, value, exception);
    if (outcome != mzComSuccess)
        throw mzComExceptionC(mzComResult(outcome), exception.value_or(PScriptException()));
    return value;
}

QString textOf(const mzComVariantC &cell)
{
    const mzComVariantC plain = cell.skipVariableAndProps();
    mzComStringC text;
    double number = 0;
    bool truth = false;
    if (plain.getExt(text) == mzComSuccess)
        return text.text();
    if (plain.getExt(number) == mzComSuccess)
        return QString::number(number, 'g', QLocale::FloatingPointShortest);
    if (plain.getExt(truth) == mzComSuccess)
        return truth ? QStringLiteral("true") : QStringLiteral("false");
    if (!plain.isEmpty())
        scriptFailure(QStringLiteral("An object cannot be written into a cell"));
    return {};
}

} // namespace

prxTextWriterC::~prxTextWriterC() = default;

bool prxTextWriterC::open(const QString &path, QString *error)
{
    m_file.setFileName(path);
    return DurableFile::open(m_file, error);
}

bool prxTextWriterC::commit(QString *error)
{
    return DurableFile::commit(m_file, error);
}

void prxTextWriterC::write(const QString &text)
{
    put(text.toUtf8());
}

void prxTextWriterC::writeLine(const QString &text)
{
    put(text.toUtf8() + '\n');
}

void prxTextWriterC::writeRow(const mzIDispatchC &cells)
{
    int count = -1;
    if (read(cells, QStringLiteral("length")).getExt(count) != mzComSuccess || count < 0)
        proxyObjectC::throwAutoTypeCastException();
    if (count > mostCells)
        scriptFailure(QStringLiteral("A row has at most %1 cells").arg(mostCells));
    QByteArray row;
    for (int i = 0; i < count; ++i) {
        row += i > 0 ? "," : "";
        row += csvCell(textOf(read(cells, QString::number(i))));
    }
    // A row of one empty cell would be no row.
    put((count == 1 && row.isEmpty() ? QByteArray("\"\"") : row) + '\n');
}

void prxTextWriterC::put(const QByteArray &bytes)
{
    if (!m_file.isOpen())
        scriptFailure(QStringLiteral("The output is closed"));
    if (m_file.write(bytes) != bytes.size())
        scriptFailure(QStringLiteral("%1 cannot be written: ").arg(path()) + m_file.errorString());
}

const proxyMemberDescListS *prxTextWriterC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxTextWriterC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescS members[] = {
        proxyPropertyRead<&prxTextWriterC::path>("path"),
        proxyMethod<&prxTextWriterC::write>("write"),
        proxyMethod<&prxTextWriterC::writeLine>("writeLine"),
        proxyMethod<&prxTextWriterC::writeRow>("writeRow"),
    };
    static const proxyMemberDescListS description{.className = "prxTextWriterC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}
