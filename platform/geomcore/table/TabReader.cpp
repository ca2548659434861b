#include "TabReader.h"

#include "FileLayer.h"
#include "OpenTables.h"
#include "TableData.h"

#include <boost/make_shared.hpp>

namespace VKTab {

TabReader::TabReader()
    : m_data(boost::make_shared<FileLayer>())
{
}

TabReader::~TabReader() = default;

void TabReader::setReadMode(int mode)
{
    Q_ASSERT(mode == ReadEverything || mode == ReadHead);
    m_mode = mode;
}

int TabReader::readFile(const QString &nativePath, bool keep)
{
    m_errors.clear();
    const auto layer = readLayer(nativePath);
    if (layer)
        m_data = layer;
    else if (!keep)
        m_data = boost::make_shared<FileLayer>();
    return layer ? 1 : -1;
}

boost::shared_ptr<FileLayer> TabReader::readLayer(const QString &nativePath)
{
    if (m_mode == ReadHead) {
        const auto descriptor = TableDescriptor::read(nativePath, m_errors);
        return descriptor ? boost::make_shared<FileLayer>(*descriptor) : nullptr;
    }
    const TableReadResult result = OpenTables::instance().open(nativePath);
    m_errors = result ? result.data->warnings() : result.errors;
    return result ? boost::make_shared<FileLayer>(result.data) : nullptr;
}

} // namespace VKTab
