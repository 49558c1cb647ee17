#pragma once

#include "KTArticleChecker.h"
#include "KTFinding.h"

#include <array>
#include <functional>

class QIODevice;

/**
 * Checks catalogues, one article at a time, and hands out what is wrong with them, in the order of the
 * places.
 *
 * Of a file it keeps nothing but where each article's number was first met.
 */
class KTCatalogueChecker
{
public:
    using Receiver = std::function<void(const KTFinding &)>;
    /** Told the number of articles of the present file after each one. */
    using Listener = std::function<void(int articles)>;

    explicit KTCatalogueChecker(Receiver receiver, const KTRuleSeverities &severities = KTRuleSeverities());

    void setListener(const Listener &listener) { myListener = listener; }

    /** Checks the file; "-" names standard input. False when it is not readable to its end. */
    bool checkFile(const QString &name);
    /** The same for an open device. */
    bool check(const QString &name, QIODevice *device);

private:
    /** The line of the first article with each number; neighbouring numbers share one entry. */
    class FirstLines
    {
    public:
        /** The line that the number is known from, or 0 when it was not; then it is now. */
        int knownLine(int number, int line);

    private:
        static constexpr int SHARED_BITS = 4;
        QHash<int, std::array<int, 1 << SHARED_BITS>> myLines;
    };

    void checkNumber(const KTCatalogueArticle &article, FirstLines *lines,
                     QVector<KTFinding> *findings) const;
    void reportFile(KTRule rule, const QString &name, const KTFilePosition &position, const QString &message);
    void report(const QString &name, const QVector<KTFinding> &findings);

    Receiver myReceiver;
    Listener myListener;
    KTRuleSeverities mySeverities;
    KTArticleChecker myArticleChecker;
};
