#include "KTNearestWord.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

/** The Levenshtein distance, or one more than the maximum as soon as it is certain to be greater. */
int edits(const QString &from, const QString &to, int maximum)
{
    if (std::abs(from.size() - to.size()) > maximum)
        return maximum + 1;
    std::vector<int> row(static_cast<std::size_t>(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < from.size(); ++i) {
        int diagonal = std::exchange(row[0], i + 1);
        for (int j = 0; j < to.size(); ++j) {
            const auto column = static_cast<std::size_t>(j);
            const int substitution = diagonal + (from.at(i) == to.at(j) ? 0 : 1);
            diagonal = row[column + 1];
            row[column + 1] = std::min({substitution, diagonal + 1, row[column] + 1});
        }
        if (*std::min_element(row.begin(), row.end()) > maximum)
            return maximum + 1;
    }
    return row.back();
}

} // namespace

QString KTNearestWord::find(const QString &word, const QStringList &candidates, int maximumEdits)
{
    QString nearest;
    int fewest = maximumEdits + 1;
    for (const QString &candidate : candidates) {
        const int count = edits(word.toLower(), candidate.toLower(), maximumEdits);
        if (count < fewest) {
            fewest = count;
            nearest = candidate;
        }
    }
    return nearest;
}
