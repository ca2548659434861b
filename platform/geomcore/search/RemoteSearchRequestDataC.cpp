#include "RemoteSearchRequestDataC.h"

#include <algorithm>

RemoteSearchRequestDataC::RemoteSearchRequestDataC() = default;

RemoteSearchRequestDataC::~RemoteSearchRequestDataC() = default;

PRefPtr<RemoteSearchRequestDataC> RemoteSearchRequestDataC::clone() const
{
    auto *const copy = new RemoteSearchRequestDataC(*this);
    for (PRefPtr<IndexTreeBaseSearchC> &search : copy->m_searches)
        search = search->clone();
    return copy;
}

PRefPtr<IndexTreeBaseSearchC> RemoteSearchRequestDataC::getSearchClassByName(const QString &name,
                                                                             bool exact) const
{
    const Qt::CaseSensitivity sensitivity = exact ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const auto found =
        std::find_if(m_searches.cbegin(), m_searches.cend(), [&](const auto &search) {
            return search->getName().compare(name, sensitivity) == 0;
        });
    return found == m_searches.cend() ? nullptr : *found;
}

void RemoteSearchRequestDataC::addSearchClass(const PRefPtr<IndexTreeBaseSearchC> &search)
{
    if (!search)
        return;
    m_searches.removeIf(
        [&search](const auto &known) { return known->getName() == search->getName(); });
    m_searches.append(search);
}
