#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QString>

#include <functional>
#include <string>
#include <vector>

/// Finds texts by parts of their words, such as "din 93" among paths, case and accents aside. All
/// texts lie behind each other in one piece of memory that each search walks once, so there is no
/// index to be kept. Searches may run at the same time while nothing is added.
class VELKGEOMCORE_EXPORT PartFinder
{
public:
    struct Hit
    {
        int entry = -1;
        int rank = 0; ///< smaller is better; comparable between finders
    };
    struct Hits
    {
        QList<Hit> best; ///< in order: by rank, then short ones, then as they were added
        int count = 0;   ///< of all
    };

    /// Entries are counted from 0. Behind the last "/" is the name, which counts more.
    void add(QStringView text);
    [[nodiscard]] int count() const { return int(m_begins.size()); }

    /// The texts that contain all words of \a words somewhere; words are separated by blanks. None
    /// for no word. \a isStale is asked now and then, and ends the search if true.
    [[nodiscard]] Hits find(const QString &words, int limit,
                            const std::function<bool()> &isStale = {}) const;

private:
    [[nodiscard]] std::string_view text(int entry) const;

    std::string m_texts; ///< folded, in UTF-8, each with a line feed behind it
    std::vector<size_t> m_begins;
};
